#include "io/safe_write.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <new>
#include <streambuf>

#include "io/write_faults.h"

namespace tolmar::io {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBlock = 64 * 1024;

bool faultAt(WriteStep step) { return injectedFault() == step; }

// The file a chain of symbolic links ends at (which need not exist yet).
std::string followLinks(std::string path, int& err) {
  for (int hops = 0; hops < 40; ++hops) {
    struct stat st {};
    if (::lstat(path.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return path;
    char buf[PATH_MAX];
    const ssize_t n = ::readlink(path.c_str(), buf, sizeof buf);
    if (n < 0) {
      err = errno;
      return path;
    }
    const fs::path link(std::string(buf, static_cast<std::size_t>(n)));
    path = link.is_absolute() ? link.string() : (fs::path(path).parent_path() / link).string();
  }
  err = ELOOP;
  return path;
}

std::string folderOf(const std::string& target) {
  const fs::path dir = fs::path(target).parent_path();
  return dir.empty() ? std::string(".") : dir.string();
}

std::string tmpPrefix(const std::string& target) {
  std::string prefix = ".";
  prefix += fs::path(target).filename().string();
  prefix += ".tmp";
  return prefix;
}

// "PID" or "PID_N" after the prefix: a temporary of ours; the pid it names.
bool tmpPid(std::string_view rest, long& pid) {
  const auto bar = rest.find('_');
  const std::string_view digits = rest.substr(0, bar);
  if (digits.empty() || digits.size() > 9) return false;
  for (char c : rest)
    if ((c < '0' || c > '9') && c != '_') return false;
  if (bar != std::string_view::npos &&
      (rest.size() == bar + 1 || rest.find('_', bar + 1) != rest.npos))
    return false;
  pid = std::stol(std::string(digits));
  return pid > 0;
}

// Removes the temporaries of this target whose writer is no longer alive.
void removeStale(const std::string& dir, const std::string& prefix) {
  DIR* d = ::opendir(dir.c_str());
  if (d == nullptr) return;
  while (const dirent* e = ::readdir(d)) {
    const std::string_view name = e->d_name;
    long pid = 0;
    if (name.rfind(prefix, 0) != 0 || !tmpPid(name.substr(prefix.size()), pid)) continue;
    if (pid == ::getpid()) continue;
    if (::kill(static_cast<pid_t>(pid), 0) == 0 || errno != ESRCH) continue;
    ::unlink((fs::path(dir) / std::string(name)).c_str());
  }
  ::closedir(d);
}

}  // namespace

// The stream face of a SafeFile: a small put area handed on in blocks.
struct SafeFile::StreamParts : std::streambuf {
  explicit StreamParts(SafeFile& f) : file(f), os(this) { setp(area, area + sizeof area); }
  int_type overflow(int_type c) override {
    sync();
    if (c != traits_type::eof()) {
      *pptr() = traits_type::to_char_type(c);
      pbump(1);
    }
    return traits_type::not_eof(c);
  }
  int sync() override {
    file.write(std::string_view(pbase(), static_cast<std::size_t>(pptr() - pbase())));
    setp(area, area + sizeof area);
    return 0;
  }
  SafeFile& file;
  char area[8192];
  std::ostream os;
};

SafeFile::SafeFile(std::string path) : path_(std::move(path)) { start(); }

void SafeFile::start() {
  if (path_.empty()) {
    fail(ENOENT);
    return;
  }
  int err = 0;
  target_ = followLinks(path_, err);
  if (err != 0) {
    fail(err);
    return;
  }
  struct stat st {};
  if (::stat(target_.c_str(), &st) == 0) {
    if (S_ISDIR(st.st_mode)) return fail(EISDIR);
    if (!S_ISREG(st.st_mode)) return fail(kNotRegular);
    if (::access(target_.c_str(), W_OK) != 0) return fail(errno);
    mode_ = static_cast<int>(st.st_mode & 07777);
  } else if (errno != ENOENT) {
    return fail(errno);
  }

  const std::string dir = folderOf(target_);
  const std::string prefix = tmpPrefix(target_);
  removeStale(dir, prefix);
  if (faultAt(WriteStep::open)) return fail(EACCES);
  // O_EXCL: a file of someone else's of that name stays untouched.
  for (int attempt = 0; attempt < 100; ++attempt) {
    std::string name = prefix;
    name += std::to_string(::getpid());
    if (attempt > 0) {
      name += '_';
      name += std::to_string(attempt);
    }
    tmpPath_ = (fs::path(dir) / name).string();
    fd_ = ::open(tmpPath_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd_ >= 0) break;
    if (errno != EEXIST) break;
  }
  if (fd_ < 0) {
    fail(errno);
    tmpPath_.clear();
    return;
  }
  if (mode_ >= 0) {
    ::fchmod(fd_, static_cast<mode_t>(mode_));
    // Keeps the owner where the system lets us (root, or a group we are in).
    if (::fchown(fd_, st.st_uid, st.st_gid) != 0) {
      // Not ours to give away: the file becomes the writer's, as a new one.
    }
  }
}

SafeFile::~SafeFile() {
  if (!committed_) discard();
}

void SafeFile::fail(int err) {
  if (error_ == 0) error_ = err != 0 ? err : EIO;
}

void SafeFile::fail(int err, std::string text) {
  if (error_ != 0) return;
  fail(err);
  text_ = std::move(text);
}

std::ostream& SafeFile::stream() {
  if (!stream_) stream_ = std::make_unique<StreamParts>(*this);
  return stream_->os;
}

void SafeFile::write(std::string_view bytes) {
  if (error_ != 0) return;
  buf_.append(bytes);
  if (buf_.size() >= kBlock) flushBuffer(false);
}

void SafeFile::flushBuffer(bool last) {
  const char* p = buf_.data();
  std::size_t left = buf_.size();
  if (left > 0 && faultAt(WriteStep::write)) fail(ENOSPC);
  if (last && faultAt(WriteStep::flush)) {
    // A disk that fills up in the middle of the last block.
    left /= 2;
    if (left > 0 && ::write(fd_, p, left) < 0) fail(errno);
    fail(ENOSPC);
  }
  while (left > 0 && error_ == 0) {
    const ssize_t n = ::write(fd_, p, left);
    if (n < 0) {
      if (errno == EINTR) continue;
      fail(errno);
    } else if (n == 0) {
      fail(EIO);
    } else {
      p += n;
      left -= static_cast<std::size_t>(n);
    }
  }
  buf_.clear();
}

void SafeFile::discard() {
  if (fd_ >= 0) {
    ::close(fd_);
    fd_ = -1;
  }
  if (!tmpPath_.empty()) {
    ::unlink(tmpPath_.c_str());
    tmpPath_.clear();
  }
}

WriteResult SafeFile::prepare() {
  if (prepared_ || committed_) return {error_, errorText()};
  if (stream_ && error_ == 0) stream_->pubsync();
  if (error_ == 0) flushBuffer(true);
  if (error_ == 0) {
    if (faultAt(WriteStep::fsync)) {
      fail(EIO);
    } else if (::fsync(fd_) != 0 && errno != EINVAL && errno != EROFS) {
      fail(errno);  // EINVAL, EROFS: a file system with nothing to sync
    }
  }
  if (fd_ >= 0) {
    if (::close(fd_) != 0) fail(errno);
    if (faultAt(WriteStep::close)) fail(EIO);
    fd_ = -1;
  }
  if (error_ != 0) {
    discard();
    return {error_, errorText()};
  }
  prepared_ = true;
  return {};
}

WriteResult SafeFile::commit() {
  if (committed_) return {};
  if (const WriteResult r = prepare(); !r.ok()) return r;
  if (error_ == 0) {
    if (faultAt(WriteStep::rename))
      fail(EXDEV);
    else if (std::rename(tmpPath_.c_str(), target_.c_str()) != 0)
      fail(errno);
  }
  if (error_ != 0) {
    discard();
    return {error_, errorText()};
  }
  tmpPath_.clear();
  committed_ = true;

  const int dir = ::open(folderOf(target_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (dir >= 0) {
    if (faultAt(WriteStep::dirsync))
      fail(EIO);
    else if (::fsync(dir) != 0 && errno != EINVAL && errno != EROFS)
      fail(errno);
    ::close(dir);
  }
  if (error_ != 0) return {error_, errorText()};
  return {};
}

std::string SafeFile::errorText() const {
  if (error_ == 0) return {};
  return text_.empty() ? io::errorText(error_) : text_;
}

std::string errorText(int err) {
  if (err == kNotRegular) return "Not a regular file";
  return std::strerror(err);
}

WriteResult writeFileSafely(const std::string& path, std::string_view bytes) {
  SafeFile f(path);
  f.write(bytes);
  return f.commit();
}

WriteResult writeFilesSafely(const std::vector<std::pair<std::string, std::string>>& files,
                             std::size_t* failed) {
  std::vector<std::unique_ptr<SafeFile>> open;
  open.reserve(files.size());
  const auto failure = [failed](std::size_t k, WriteResult r) {
    if (failed) *failed = k;
    return r;
  };
  for (std::size_t k = 0; k < files.size(); ++k) {
    open.push_back(std::make_unique<SafeFile>(files[k].first));
    if (open[k]->error() != 0) return failure(k, {open[k]->error(), open[k]->errorText()});
    open[k]->write(files[k].second);
  }
  for (std::size_t k = 0; k < files.size(); ++k)
    if (const WriteResult r = open[k]->prepare(); !r.ok()) return failure(k, r);
  for (std::size_t k = 0; k < files.size(); ++k)
    if (const WriteResult r = open[k]->commit(); !r.ok()) return failure(k, r);
  return {};
}

WriteResult writeFileSafely(const std::string& path,
                            const std::function<void(std::ostream&)>& fill) {
  SafeFile f(path);
  if (f.error() == 0) {
    try {
      fill(f.stream());
    } catch (const std::bad_alloc&) {
      f.fail(ENOMEM);
    } catch (const std::exception& e) {
      f.fail(EIO, e.what());
    }
  }
  return f.commit();
}

}  // namespace tolmar::io

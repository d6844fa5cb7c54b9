#include "export/text_sink.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tolmar {

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;

}  // namespace

FileSink::FileSink(std::string path) : path_(std::move(path)) {
  // A name of our own beside the target, so that the rename stays within
  // one file system; O_EXCL keeps a file of someone else's untouched.
  for (int attempt = 0; attempt < 100; ++attempt) {
    tmpPath_ = path_ + ".tmp" + std::to_string(::getpid()) + "_" + std::to_string(attempt);
    fd_ = ::open(tmpPath_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd_ >= 0) return;
    if (errno != EEXIST) break;
  }
  fail(errno);
  tmpPath_.clear();
}

FileSink::~FileSink() {
  if (!committed_) discard();
}

void FileSink::fail(int err) {
  if (error_ == 0) error_ = err != 0 ? err : EIO;
}

void FileSink::write(std::string_view bytes) {
  if (error_ != 0) return;
  buf_.append(bytes);
  if (buf_.size() >= kBufferSize) flush();
}

void FileSink::flush() {
  const char* p = buf_.data();
  std::size_t left = buf_.size();
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

void FileSink::discard() {
  if (fd_ >= 0) {
    ::close(fd_);
    fd_ = -1;
  }
  if (!tmpPath_.empty()) {
    ::unlink(tmpPath_.c_str());
    tmpPath_.clear();
  }
}

bool FileSink::commit() {
  if (committed_) return error_ == 0;
  if (error_ == 0) flush();
  if (error_ == 0 && ::fsync(fd_) != 0 && errno != EINVAL && errno != EROFS) fail(errno);
  if (fd_ >= 0) {
    if (::close(fd_) != 0) fail(errno);
    fd_ = -1;
  }
  if (error_ == 0 && std::rename(tmpPath_.c_str(), path_.c_str()) != 0) fail(errno);
  if (error_ != 0) {
    discard();
    return false;
  }
  tmpPath_.clear();
  committed_ = true;
  return true;
}

std::string FileSink::errorText() const {
  return error_ == 0 ? std::string() : std::strerror(error_);
}

}  // namespace tolmar

// Writing the hull file, and the rules for the names of a saved hull.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ostream>
#include <random>
#include <sstream>

#include "hull/hull_file.h"
#include "text/number_format.h"
#include "text/number_text.h"

namespace tolmar {

namespace {

constexpr const char* kEol = "\r\n";

int lastLine(const HullStore& h) { return std::clamp<int>(h.nChines, 0, kMaxLine); }

FileResult systemError(int err) { return {false, std::strerror(err)}; }

// Writes all of text to fd, then flushes it to the disk.
bool writeAll(int fd, const std::string& text) {
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    done += static_cast<std::size_t>(n);
  }
  return ::fsync(fd) == 0;
}

}  // namespace

std::string makeDataTag(const HullStore& h) {
  std::string tag = "&";
  for (int n = 2; n <= lastLine(h); ++n) {
    tag += h.bowTurn(n) == 1 ? 'N' : 'R';
    tag += h.transomTurn(n) == 1 ? 'N' : 'R';
  }
  return tag + "C" + formatNumber(h.nChines, "00");
}

void writeHullFile(std::ostream& out, const HullStore& h) {
  std::string name;
  std::copy_if(h.hullName.begin(), h.hullName.end(), std::back_inserter(name),
               [](char c) { return static_cast<unsigned char>(c) >= 32; });
  const auto num = [&out](double v) { out << hullNumberText(v) << kEol; };
  out << name << " - Tolmar2008" << kEol;
  out << makeDataTag(h) << kEol;
  num(h.powerFwd);
  num(h.powerAft);
  num(h.shapeAft);
  num(h.shapeFwd);
  num(h.keelAdvance);
  num(h.bowAngle);
  num(h.transomAngle);
  for (int n = 0; n <= lastLine(h); ++n) {
    out << "LINE " << hullNumberText(n) << kEol;
    num(h.plankAngle(n));
    for (const LineArr* a : {&h.xFwd, &h.yFwd, &h.zFwd, &h.xMax, &h.yMax, &h.zMax, &h.xAft, &h.yAft,
                             &h.zAft, &h.planeA, &h.planeB, &h.planeC}) {
      num((*a)(n));
    }
  }
  num(h.stemShape);
  out << "EOF " << kEol;
}

FileResult saveHullFile(const std::filesystem::path& path, HullStore& h) {
  h.dataTag = makeDataTag(h);
  std::ostringstream text;
  writeHullFile(text, h);

  // A new file beside the target, renamed over it once complete.
  const std::filesystem::path dir = path.has_parent_path() ? path.parent_path() : ".";
  std::random_device rd;
  std::filesystem::path tmp;
  int fd = -1;
  for (int attempt = 0; attempt < 50 && fd < 0; ++attempt) {
    tmp = dir / ("." + path.filename().string() + ".tmp" + std::to_string(rd() % 1000000));
    fd = ::open(tmp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0 && errno != EEXIST) return systemError(errno);
  }
  if (fd < 0) return systemError(EEXIST);
  struct stat old {};
  if (::stat(path.c_str(), &old) == 0 && S_ISREG(old.st_mode)) ::fchmod(fd, old.st_mode & 07777);
  if (!writeAll(fd, text.str())) {
    const int err = errno;
    ::close(fd);
    ::unlink(tmp.c_str());
    return systemError(err);
  }
  if (::close(fd) != 0 || ::rename(tmp.c_str(), path.c_str()) != 0) {
    const int err = errno;
    ::unlink(tmp.c_str());
    return systemError(err);
  }
  return {};
}

std::string hullNameFromFileName(std::string_view fileName) {
  const auto dot = fileName.find('.');
  if (dot != std::string_view::npos && dot > 0) fileName = fileName.substr(0, dot);
  return std::string(fileName);
}

std::filesystem::path hullSavePath(const std::filesystem::path& chosen) {
  const std::string name = chosen.filename().string();
  return chosen.parent_path() / (name.substr(0, name.find('.')) + ".D50");
}

bool isOldLayoutPath(std::string_view path) {
  return path.size() >= 2 && path.substr(path.size() - 2) == "51";
}

}  // namespace tolmar

// Reading the hull file in every layout it has had, and the store side of
// opening one.
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <istream>

#include "hull/hull_file.h"
#include "io/safe_write.h"
#include "text/data_line.h"
#include "text/number_reader.h"

namespace tolmar {

namespace {

const FileResult kOutOfRange{false, "Subscript out of range"};
const FileResult kOverflow{false, "Overflow"};

bool holds(const std::string& s, const char* word) { return s.find(word) != std::string::npos; }

// An i16 field from its text; false leaves the field as it was.
bool readI16(const std::string& s, i16& field) {
  const auto v = toI16(readNumber(s));
  if (v.inRange) field = v.value;
  return v.inRange;
}

// The count after the first "C" of the tag, at most two characters; 4 when
// there is no "C" beyond the tag's first character.
int tagCount(const std::string& tag) {
  const auto p = tag.find('C');
  if (p == std::string::npos || p == 0) return 4;
  return static_cast<int>(roundHalfEven(readNumber(tag.substr(p + 1, 2))));
}

void copyLine(HullStore& h, int from, int to) {
  for (LineArr* a : {&h.xAft, &h.yAft, &h.zAft, &h.xMax, &h.yMax, &h.zMax, &h.xFwd, &h.yFwd,
                     &h.zFwd, &h.planeA, &h.planeB, &h.planeC}) {
    (*a)(to) = (*a)(from);
  }
}

void readFlags(HullStore& h) {
  const auto amp = h.dataTag.find('&');
  if (amp == std::string::npos) {
    for (int n : {2, 3}) h.bowTurn(n) = h.transomTurn(n) = 1;
    return;
  }
  h.dataTag.erase(0, amp + 1);
  const auto flag = [&h](std::size_t i) -> i16 {
    return i < h.dataTag.size() && h.dataTag[i] == 'N' ? 1 : -1;
  };
  for (int n = 2; n <= h.nChines; ++n) {
    const auto at = static_cast<std::size_t>(2 * (n - 2));
    h.bowTurn(n) = flag(at);
    h.transomTurn(n) = flag(at + 1);
  }
}

}  // namespace

FileResult readHullFile(std::istream& in, bool noShapeFwd, HullStore& h) {
  h.dataTag = readDataLine(in);
  if (holds(h.dataTag, "Tolmar2003") || holds(h.dataTag, "Tolmar2005") ||
      holds(h.dataTag, "Tolmar2008")) {
    h.dataTag = readDataLine(in);
  }
  const int count = tagCount(h.dataTag);
  if (count < 0) return kOutOfRange;
  h.nChines = static_cast<i16>(std::min(count, kMaxLine));

  const auto next = [&in] { return readNumber(readDataLine(in)); };
  h.powerFwd = next();
  h.powerAft = next();
  h.shapeAft = next();
  h.shapeFwd = noShapeFwd ? 0 : next();
  if (!readI16(readDataLine(in), h.keelAdvance)) return kOverflow;
  if (!readI16(readDataLine(in), h.bowAngle)) return kOverflow;
  if (!readI16(readDataLine(in), h.transomAngle)) return kOverflow;

  for (int n = 0; n <= count; ++n) {
    if (n > kMaxLine) return kOutOfRange;
    std::string s = readDataLine(in);
    if (holds(s, "LINE")) {
      s = readDataLine(in);
    } else if (holds(s, "EOF")) {
      // One block fewer than the count: the last line repeats the one before.
      if (n >= 2) h.plankAngle(n - 1) = h.plankAngle(n - 2);
      if (n >= 1) {
        h.plankAngle(n) = h.plankAngle(n - 1);
        copyLine(h, n - 1, n);
      }
      break;
    }
    if (!readI16(s, h.plankAngle(n))) return kOverflow;
    for (LineArr* a : {&h.xFwd, &h.yFwd, &h.zFwd, &h.xMax, &h.yMax, &h.zMax, &h.xAft, &h.yAft,
                       &h.zAft, &h.planeA, &h.planeB, &h.planeC}) {
      (*a)(n) = next();
    }
  }

  const std::string s = readDataLine(in);
  h.stemShape = holds(s, "EOF") ? 0 : readNumber(s);
  readFlags(h);
  return {};
}

FileResult openHullFile(const std::filesystem::path& path, HullStore& h, const BusyStep& busy) {
  h.hullName = hullNameFromFileName(path.filename().string());
  // A FIFO or a device would block the read or never end it: only a
  // regular file is opened.
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) return {false, std::strerror(errno)};
  if (S_ISDIR(st.st_mode)) return {false, std::strerror(EISDIR)};
  if (!S_ISREG(st.st_mode)) return {false, io::errorText(io::kNotRegular)};
  errno = 0;
  std::ifstream in(path, std::ios::binary);
  if (!in) return {false, std::strerror(errno != 0 ? errno : ENOENT)};
  const FileResult r = readHullFile(in, isOldLayoutPath(path.string()), h);
  if (!r.ok) return r;

  h.lineX.fill(0);
  h.lineY.fill(0);
  h.lineZ.fill(0);
  buildBottomLines(h);
  buildBottomEdges(h);
  for (int n = 2; n <= h.nChines; ++n) {
    if (busy) busy(n);
    buildLine(h, n);
  }
  return {};
}

}  // namespace tolmar

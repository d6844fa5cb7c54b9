// Writing the hull file, and the rules for the names of a saved hull.

#include <algorithm>
#include <ostream>

#include "hull/hull_file.h"
#include "io/safe_write.h"
#include "text/number_format.h"
#include "text/number_text.h"

namespace tolmar {

namespace {

constexpr const char* kEol = "\r\n";

int lastLine(const HullStore& h) { return std::clamp<int>(h.nChines, 0, kMaxLine); }

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
  const io::WriteResult r =
      io::writeFileSafely(path.string(), [&h](std::ostream& out) { writeHullFile(out, h); });
  return {r.ok(), r.message};
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

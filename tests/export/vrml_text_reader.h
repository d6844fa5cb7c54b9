// Reads back the face sets of VRML text written by this program: each
// IndexedFaceSet's coordIndex and point lists as the text gives them, for
// comparison with what an independent reader makes of the same file.
#pragma once

#include <array>
#include <sstream>
#include <string>
#include <vector>

namespace tolmar::test {

struct FaceSetText {
  std::vector<int> coordIndex;
  std::vector<std::array<double, 3>> points;
};

namespace vrmltext {

// The numbers between the '[' after `from` and the next ']'; commas are
// separators.  Returns the position after the ']'.
inline std::size_t numbersIn(const std::string& s, std::size_t from, std::vector<double>& out) {
  const std::size_t open = s.find('[', from);
  const std::size_t close = s.find(']', open);
  if (open == std::string::npos || close == std::string::npos) return std::string::npos;
  std::string inside = s.substr(open + 1, close - open - 1);
  for (char& c : inside)
    if (c == ',') c = ' ';
  std::istringstream in(inside);
  for (double v; in >> v;) out.push_back(v);
  return close + 1;
}

}  // namespace vrmltext

inline std::vector<FaceSetText> readFaceSets(const std::string& wrl) {
  std::vector<FaceSetText> out;
  std::size_t at = 0;
  while ((at = wrl.find("IndexedFaceSet", at)) != std::string::npos) {
    FaceSetText f;
    std::vector<double> index, point;
    at = vrmltext::numbersIn(wrl, wrl.find("coordIndex", at), index);
    if (at == std::string::npos) break;
    at = vrmltext::numbersIn(wrl, wrl.find("point", at), point);
    if (at == std::string::npos) break;
    for (double i : index) f.coordIndex.push_back(static_cast<int>(i));
    for (std::size_t k = 0; k + 2 < point.size(); k += 3)
      f.points.push_back({point[k], point[k + 1], point[k + 2]});
    out.push_back(std::move(f));
  }
  return out;
}

}  // namespace tolmar::test

// Reads back the polylines of DXF text written by this program: enough to
// check geometry in tests without depending on the exact record layout.
#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace tolmar::test {

struct Vertex {
  double x = 0, y = 0, z = 0;
};

struct Polyline {
  int layer = -1;
  int colour = -1;
  std::vector<Vertex> v;
};

inline std::vector<Polyline> readPolylines(const std::string& dxf) {
  std::vector<std::string> lines;
  std::istringstream in(dxf);
  for (std::string l; std::getline(in, l);) {
    if (!l.empty() && l.back() == '\r') l.pop_back();
    lines.push_back(l);
  }
  std::vector<Polyline> out;
  for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
    const std::string& code = lines[i];
    const std::string& value = lines[i + 1];
    const int c = std::stoi(code);
    if (c == 0 && value == "POLYLINE") out.push_back({});
    if (c == 0 && value == "VERTEX") out.back().v.push_back({});
    if (out.empty()) continue;
    Polyline& p = out.back();
    if (c == 8 && p.v.empty()) p.layer = std::stoi(value);
    if (c == 62) p.colour = std::stoi(value);
    if (c == 10) p.v.back().x = std::stod(value);
    if (c == 20) p.v.back().y = std::stod(value);
    if (c == 30) p.v.back().z = std::stod(value);
  }
  return out;
}

}  // namespace tolmar::test

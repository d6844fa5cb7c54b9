#include "mesh_export/mesh_files.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

namespace tolmar {

namespace {

void putU32(std::string& s, std::uint32_t v) {
  for (int i = 0; i < 4; ++i) s.push_back(static_cast<char>((v >> (8 * i)) & 0xff));
}

void putF32(std::string& s, double d) {
  const float f = std::isfinite(d) ? static_cast<float>(d) : 0.0f;
  std::uint32_t bits;
  std::memcpy(&bits, &f, 4);
  putU32(s, bits);
}

// Shortest text that reads back as the same float: what a file in float
// precision needs, without trailing noise.
void putNumber(std::string& s, double d) {
  char buf[32];
  const int n = std::snprintf(buf, sizeof buf, "%.7g", std::isfinite(d) ? d : 0.0);
  s.append(buf, static_cast<std::size_t>(n));
}

void putVertex(std::string& s, double x, double y, double z, double k) {
  s += "v ";
  putNumber(s, x * k);
  s += ' ';
  putNumber(s, y * k);
  s += ' ';
  putNumber(s, z * k);
  s += '\n';
}

}  // namespace

bool parseScale(const std::string& text, double& denominator) {
  std::string t = text;
  if (const auto p = t.find_first_of(":/"); p != std::string::npos) {
    const std::string one = t.substr(0, p);
    if (one != "1") return false;
    t = t.substr(p + 1);
  }
  if (t.empty()) return false;
  char* end = nullptr;
  const double v = std::strtod(t.c_str(), &end);
  if (end != t.c_str() + t.size() || !std::isfinite(v) || v <= 0) return false;
  denominator = v;
  return true;
}

std::string plateGroupName(const MeshTag& tag) {
  switch (tag.part) {
    case SurfacePart::bottom:
      return "bottom";
    case SurfacePart::transom:
      return "transom";
    case SurfacePart::pramBow:
      return "bow";
    case SurfacePart::lid:
      return "lid";
    case SurfacePart::plank:
      break;
  }
  char buf[8];
  std::snprintf(buf, sizeof buf, "p%02d", static_cast<int>(tag.index));
  return buf;
}

std::string stlBytes(const HullMesh& m, const MeshUnits& u) {
  const double k = u.factor();
  std::string s;
  s.reserve(84 + 50 * m.triangles.size());
  std::string header = u.millimetres ? "Tolmar hull, millimetres" : "Tolmar hull, metres";
  if (u.scaleDenominator != 1) {
    char buf[48];
    std::snprintf(buf, sizeof buf, ", scale 1:%g", u.scaleDenominator);
    header += buf;
  }
  header.resize(80, ' ');
  s += header;
  putU32(s, static_cast<std::uint32_t>(m.triangles.size()));
  for (const auto& t : m.triangles) {
    const Vec3 &a = m.vertices[t[0]], &b = m.vertices[t[1]], &c = m.vertices[t[2]];
    const Vec3 e{b.x - a.x, b.y - a.y, b.z - a.z}, f{c.x - a.x, c.y - a.y, c.z - a.z};
    Vec3 n{e.y * f.z - e.z * f.y, e.z * f.x - e.x * f.z, e.x * f.y - e.y * f.x};
    const double len = std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z);
    if (len > 0) n = {n.x / len, n.y / len, n.z / len};
    putF32(s, n.x);
    putF32(s, n.y);
    putF32(s, n.z);
    for (const Vec3* p : {&a, &b, &c}) {
      putF32(s, p->x * k);
      putF32(s, p->y * k);
      putF32(s, p->z * k);
    }
    s.push_back(0);
    s.push_back(0);
  }
  return s;
}

std::string objText(const HullStore& h, const HullMesh& m, const MeshUnits& u) {
  const double k = u.factor();
  std::string s;
  s.reserve(40 * m.vertices.size() + 30 * m.triangles.size());
  s += u.millimetres ? "# Tolmar hull, millimetres" : "# Tolmar hull, metres";
  if (u.scaleDenominator != 1) {
    char buf[48];
    std::snprintf(buf, sizeof buf, ", scale 1:%g", u.scaleDenominator);
    s += buf;
  }
  s += '\n';
  for (const Vec3& p : m.vertices) putVertex(s, p.x, p.y, p.z, k);

  // Facets by plate, in the order the plates come on the hull.
  std::map<std::string, std::vector<std::size_t>> groups;
  std::vector<std::string> order;
  for (std::size_t t = 0; t < m.triangles.size(); ++t) {
    const std::string g = plateGroupName(m.tags[t]);
    auto [it, fresh] = groups.try_emplace(g);
    if (fresh) order.push_back(g);
    it->second.push_back(t);
  }
  for (const std::string& g : order) {
    s += "g " + g + '\n';
    for (std::size_t t : groups[g]) {
      const auto& tri = m.triangles[t];
      s += "f " + std::to_string(tri[0] + 1) + ' ' + std::to_string(tri[1] + 1) + ' ' +
           std::to_string(tri[2] + 1) + '\n';
    }
  }

  // The lines after the facets, with vertices of their own.
  const int top = std::clamp<int>(h.nChines, 0, kMaxLine);
  std::size_t next = m.vertices.size() + 1;
  for (int line = 0; line <= top; ++line) {
    char name[16];
    if (line == 0)
      std::snprintf(name, sizeof name, "keel");
    else if (line == top)
      std::snprintf(name, sizeof name, "sheer");
    else
      std::snprintf(name, sizeof name, "chine%02d", line);
    // Points that repeat the one before are left out (readers take a
    // segment of no length for a point), and a line on the centre plane,
    // the keel of a flat-bottomed hull, is written once.
    bool onCentre = true;
    for (int i = 0; i <= kLastPoint; ++i)
      if (std::fabs(h.lineY(line, i)) > 1e-9) onCentre = false;
    std::string body;
    for (const double side : {1.0, -1.0}) {
      if (side < 0 && onCentre) break;
      std::string poly = "l";
      int count = 0;
      Vec3 last{NAN, NAN, NAN};
      for (int i = 0; i <= kLastPoint; ++i) {
        const Vec3 p{h.lineX(line, i), side * std::fabs(h.lineY(line, i)), h.lineZ(line, i)};
        if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z) || p == last)
          continue;
        last = p;
        putVertex(s, p.x, p.y, p.z, k);
        poly += ' ' + std::to_string(next++);
        ++count;
      }
      if (count >= 2) body += poly + '\n';
    }
    if (!body.empty()) s += "g " + std::string(name) + '\n' + body;
  }
  return s;
}

io::WriteResult writeHullModel(const HullStore& h, MeshFormat f, const MeshUnits& u,
                               const std::string& path) {
  const HullMesh m = weldedMesh(buildHullMesh(h));
  return io::writeFileSafely(path, f == MeshFormat::stl ? stlBytes(m, u) : objText(h, m, u));
}

}  // namespace tolmar

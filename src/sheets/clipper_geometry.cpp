#include "sheets/clipper_geometry.h"

#include <algorithm>
#include <cmath>

namespace tolmar::sheets {

using namespace ClipperLib;

Path toPath(const MmPolygon& p) {
  Path out;
  out.reserve(p.size());
  for (const MmPoint& q : p)
    out.emplace_back(static_cast<cInt>(std::llround(q.x * kUnitsPerMm)),
                     static_cast<cInt>(std::llround(q.y * kUnitsPerMm)));
  return out;
}

MmPolygon fromPath(const Path& p) {
  MmPolygon out;
  out.reserve(p.size());
  for (const IntPoint& q : p) out.push_back({q.X / kUnitsPerMm, q.Y / kUnitsPerMm});
  return out;
}

double pathsArea(const Paths& ps) {
  double a = 0;
  for (const Path& p : ps) a += Area(p);
  return a / (kUnitsPerMm * kUnitsPerMm);
}

namespace {

std::vector<MmPolygon> largestFirst(const Paths& ps) {
  std::vector<std::pair<double, MmPolygon>> sorted;
  for (const Path& p : ps) {
    const double a = std::abs(Area(p));
    if (a > 0) sorted.emplace_back(a, fromPath(p));
  }
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto& a, const auto& b) { return a.first > b.first; });
  std::vector<MmPolygon> out;
  for (auto& s : sorted) out.push_back(std::move(s.second));
  return out;
}

}  // namespace

MmPolygon cleanOutline(const MmPolygon& p) {
  Path path = toPath(p);
  CleanPolygon(path, 1.0);  // a hundredth of a millimetre
  if (path.size() < 3) return {};
  Paths simple;
  SimplifyPolygon(path, simple, pftNonZero);
  auto all = largestFirst(simple);
  return all.empty() ? MmPolygon{} : all.front();
}

std::vector<MmPolygon> clipBand(const MmPolygon& p, double x0, double x1) {
  const MmBox b = boundingBox(p);
  const double y0 = b.y0 - 10, y1 = b.y1 + 10;
  const Path band = toPath({{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}});
  Clipper c;
  c.AddPath(toPath(p), ptSubject, true);
  c.AddPath(band, ptClip, true);
  Paths out;
  c.Execute(ctIntersection, out, pftNonZero, pftNonZero);
  return largestFirst(out);
}

double unionArea(const std::vector<MmPolygon>& ps) {
  Clipper c;
  for (const MmPolygon& p : ps) c.AddPath(toPath(p), ptSubject, true);
  Paths out;
  c.Execute(ctUnion, out, pftNonZero, pftNonZero);
  return pathsArea(out);
}

double commonArea(const Paths& a, const Paths& b) {
  Clipper c;
  c.AddPaths(a, ptSubject, true);
  c.AddPaths(b, ptClip, true);
  Paths out;
  c.Execute(ctIntersection, out, pftNonZero, pftNonZero);
  return std::abs(pathsArea(out));
}

Paths grown(const Path& p, double dMm) {
  ClipperOffset o(2.0, 0.5);  // arcs within half a hundredth of a millimetre
  o.AddPath(p, jtRound, etClosedPolygon);
  Paths out;
  o.Execute(out, dMm * kUnitsPerMm);
  return out;
}

}  // namespace tolmar::sheets

#include "export/lines_dxf.h"

#include <algorithm>
#include <cmath>

#include "export/polyline_out.h"

namespace tolmar {

HullExtremes hullExtremes(const HullStore& h) {
  HullExtremes e;
  for (int k = 0; k <= lastLineOf(h); ++k) {
    for (int i = 0; i <= kLastPoint; ++i) {
      const auto x = static_cast<float>(h.lineX(k, i));
      const auto y = static_cast<float>(h.lineY(k, i));
      const auto z = static_cast<float>(h.lineZ(k, i));
      e.minX = std::min(e.minX, x), e.maxX = std::max(e.maxX, x);
      e.minY = std::min(e.minY, y), e.maxY = std::max(e.maxY, y);
      e.minZ = std::min(e.minZ, z), e.maxZ = std::max(e.maxZ, z);
    }
  }
  return e;
}

double sheetRound(float v) {
  const float t = (v * 10.0F + 5.0F) / 10.0F;
  const double r = std::floor(static_cast<double>(t) + 0.5);
  return std::isfinite(r) ? r : 0.0;
}

namespace {

constexpr int kFirstStation = 9;  // a station every 8 points, from point 9 to 81
constexpr int kStationStep = 8;

struct Sheet {
  double xLo, xHi, yHi, zHi, zLo, sheetX, sheetY;
};

Sheet sheetOf(const HullExtremes& e) {
  Sheet s{};
  s.xLo = -sheetRound(-e.minX);
  s.xHi = sheetRound(e.maxX);
  s.yHi = sheetRound(e.maxY);
  s.zHi = sheetRound(e.maxZ);
  s.zLo = sheetRound(-e.minZ);
  s.sheetX = 2 * s.yHi + s.xHi;
  s.sheetY = 2 * s.yHi + s.zLo;
  return s;
}

void segment(TextSink& out, i16 layer, i16 colour, double x1, double y1, double x2, double y2) {
  PolylineOut p(out, layer, colour);
  p.vertex(x1, y1);
  p.vertex(x2, y2);
}

// A section across the sheet at centre line cx: from the top of one side
// down to the keel and up the other, Z lifted by dz.
void sectionOnSheet(PolylineOut& p, const HullStore& h, int s, int m, double cx, double dz) {
  for (int j = m; j >= 0; --j) p.vertex(cx - h.stationY(s, j), h.stationZ(s, j) + dz);
  for (int j = 1; j <= m; ++j) p.vertex(cx + h.stationY(s, j), h.stationZ(s, j) + dz);
}

}  // namespace

void writeLines2D(TextSink& out, const HullStore& h, const HullExtremes& e) {
  const Sheet s = sheetOf(e);
  const int n = lastLineOf(h);
  const int m = n + 9;
  dxfHeader(out, "2D lines of " + h.hullName);
  dxfSection(out);

  // Plan.
  for (int k = 0; k <= n; ++k) {
    PolylineOut p(out, 1, 7);
    p.vertex(h.lineX(k, 0), 0);
    for (int i = 0; i <= kLastPoint; ++i) p.vertex(h.lineX(k, i), -h.lineY(k, i));
    for (int i = kLastPoint; i >= 0; --i) p.vertex(h.lineX(k, i), h.lineY(k, i));
    p.vertex(h.lineX(k, 0), 0);
  }
  for (const int i : {0, kLastPoint}) {
    PolylineOut p(out, 1, 7);
    for (int k = n; k >= 0; --k) p.vertex(h.lineX(k, i), -h.lineY(k, i));
    for (int k = 0; k <= n; ++k) p.vertex(h.lineX(k, i), h.lineY(k, i));
  }
  for (int i = kFirstStation; i <= 81; i += kStationStep)
    segment(out, 4, 5, h.lineX(n, i), -h.lineY(n, i), h.lineX(n, i), h.lineY(n, i));

  // Profile.
  {
    PolylineOut p(out, 2, 7);
    for (int i = 0; i <= kLastPoint; ++i) p.vertex(h.lineX(0, i), h.lineZ(0, i) + s.sheetY);
  }
  for (int k = 1; k <= n; ++k) {
    PolylineOut p(out, 2, 7);
    p.vertex(h.lineX(k - 1, 0), h.lineZ(k - 1, 0) + s.sheetY);
    for (int i = 0; i <= kLastPoint; ++i) p.vertex(h.lineX(k, i), h.lineZ(k, i) + s.sheetY);
    p.vertex(h.lineX(k - 1, kLastPoint), h.lineZ(k - 1, kLastPoint) + s.sheetY);
  }
  for (int i = kFirstStation; i <= 81; i += kStationStep)
    segment(out, 4, 5, h.lineX(0, i), h.lineZ(0, i) + s.sheetY, h.lineX(0, i),
            h.lineZ(n, i) + s.sheetY);

  // Section view.
  for (const int st : {0, kLastPoint}) {
    PolylineOut p(out, 3, 7);
    p.vertex(s.sheetX, h.stationZ(st, m) + s.sheetY);
    sectionOnSheet(p, h, st, m, s.sheetX, s.sheetY);
    p.vertex(s.sheetX, h.stationZ(st, m) + s.sheetY);
  }
  for (const double side : {1.0, -1.0}) {
    for (int k = 0; k <= n; ++k) {
      PolylineOut p(out, 3, 7);
      for (int i = 0; i <= kLastPoint; ++i)
        p.vertex(s.sheetX + side * h.lineY(k, i), h.lineZ(k, i) + s.sheetY);
    }
  }
  for (int st = kFirstStation; st <= 81; st += kStationStep) {
    PolylineOut p(out, 4, 5);
    sectionOnSheet(p, h, st, m, s.sheetX, s.sheetY);
  }

  // Construction lines.
  segment(out, 5, 6, s.xLo, 0, s.xHi, 0);
  segment(out, 5, 6, s.xLo, s.sheetY, s.xHi, s.sheetY);
  segment(out, 5, 6, s.sheetX - s.yHi, s.yHi, s.sheetX + s.yHi, -s.yHi);
  segment(out, 5, 6, s.sheetX, 0, s.sheetX, s.sheetY + s.zHi);
  segment(out, 5, 6, s.sheetX - 0.8 * s.yHi, s.sheetY, s.sheetX - s.yHi, s.sheetY);
  segment(out, 5, 6, s.sheetX + 0.8 * s.yHi, s.sheetY, s.sheetX + s.yHi, s.sheetY);
  segment(out, 5, 6, s.sheetX, 0, s.sheetX - s.yHi, 0);

  dxfEndSec(out);
  dxfEof(out);
}

namespace {

// Station s in 3D, down the side of negative Y to the keel and up the other.
void station3D(TextSink& out, const HullStore& h, int s, int m, i16 layer, i16 colour) {
  PolylineOut p(out, layer, colour);
  for (int j = m; j >= 0; --j) p.vertex(h.stationX(s, j), -h.stationY(s, j), h.stationZ(s, j));
  for (int j = 1; j <= m; ++j) p.vertex(h.stationX(s, j), h.stationY(s, j), h.stationZ(s, j));
}

}  // namespace

void writeLines3D(TextSink& out, const HullStore& h, const HullExtremes& e) {
  const int n = lastLineOf(h);
  const int m = n + 9;
  dxfHeader(out, "3D lines of " + h.hullName);
  dxfSection(out);
  {
    PolylineOut p(out, 1, 7);
    p.vertex(e.minX, 0, 0);
    p.vertex(e.maxX, 0, 0);
  }
  for (int k = 0; k <= n; ++k) {
    PolylineOut p(out, 1, static_cast<i16>(7 - k % 4));
    for (int i = 0; i <= kLastPoint; ++i) p.vertex(h.lineX(k, i), -h.lineY(k, i), h.lineZ(k, i));
    for (int i = kLastPoint; i >= 0; --i) p.vertex(h.lineX(k, i), h.lineY(k, i), h.lineZ(k, i));
    p.vertex(h.lineX(k, 0), -h.lineY(k, 0), h.lineZ(k, 0));
  }
  station3D(out, h, 0, m, 1, 7);
  for (int s = 1; s <= 81; s += 4) station3D(out, h, s, m, 2, 5);
  station3D(out, h, kLastPoint, m, 1, 7);
  dxfEndSec(out);
  dxfEof(out);
}

ExportFile lines2DFile(const HullStore& h) {
  ExportFile f;
  f.title = "Tolmar2008 - Save hull lines as 2D DXF file";
  f.filter = "Lines (*.DXF)|*.DXF";
  f.defaultName = h.hullName + ".DXF";
  f.errorTitle = "Tolmar2008 - Saving Hull line 2D DXF";
  f.hullNameFollows = true;
  f.showHullName = true;
  f.focusCancel = true;
  return f;
}

ExportFile lines3DFile(const HullStore& h) {
  ExportFile f = lines2DFile(h);
  f.title = "Tolmar2008 - Save hull lines as 3D DXF file";
  f.errorTitle = "Tolmar2008 - Saving Hull line 3D DXF";
  return f;
}

ExportOutcome saveLines2D(ExportHost& host, HullStore& h) {
  const HullExtremes e = hullExtremes(h);
  return runExport(host, h, lines2DFile(h), [&](TextSink& out) { writeLines2D(out, h, e); });
}

ExportOutcome saveLines3D(ExportHost& host, HullStore& h) {
  const HullExtremes e = hullExtremes(h);
  return runExport(host, h, lines3DFile(h), [&](TextSink& out) { writeLines3D(out, h, e); });
}

}  // namespace tolmar

#include "printing/printed_plates.h"

#include <algorithm>
#include <string>

#include "development/developed_plate.h"
#include "development/end_plates.h"
#include "printing/paper_map.h"
#include "text/number_format.h"
#include "text/number_reader.h"

namespace tolmar {

namespace {

// The paper's origin of the plates: the left margin as a whole number.
constexpr double kPlateLeft = 682;

// One figure of a developed plate; side +1 below the centre line, -1 its
// mirror above.
void plateFigure(DrawingSurface& s, const HullStore& h, const DevelopedPlate& p, int m, int side) {
  auto fx = [&](double x) { return static_cast<float>(h.printScaleX * x + kPlateLeft); };
  auto fy = [&](double y) {
    return static_cast<float>(h.printOriginY + side * (100 + h.printScaleY * y));
  };
  const std::vector<FlatPoint>& lo = p.lower;
  const std::vector<FlatPoint>& up = p.upper;
  s.PSet(fx(lo.front().x), fy(lo.front().y));
  for (const FlatPoint& q : lo) s.LineTo(fx(q.x), fy(q.y));
  s.LineTo(fx(up.back().x), fy(up.back().y));
  s.PSet(fx(lo.front().x), fy(lo.front().y));
  for (const FlatPoint& q : up) s.LineTo(fx(q.x), fy(q.y));
  s.DrawStyle = kStyleDot;
  s.Line(fx(lo[m].x), fy(lo[m].y), fx(up[m].x), fy(up[m].y));
  s.DrawStyle = kStyleSolid;
}

// A whole number of twips for a figure's offset, as a 16-bit integer.
double offset16(double v) { return toI16(v).value; }

// A figure of the end plates: (a, b) at (o + originX + scale * a,
// originY +- scale * b), side +1 the + image.
struct EndFigure {
  DrawingSurface& s;
  const HullStore& h;
  double o;
  float x(double a) const { return static_cast<float>(o + h.printOriginX + h.printScaleX * a); }
  float y(double b, int side) const {
    return static_cast<float>(h.printOriginY + side * h.printScaleY * b);
  }
  void label(float y, const std::string& text) {
    s.PSet(static_cast<float>(o + h.printOriginX), y);
    s.Print(text);
  }
  // The pattern of an end plate, with the stroke across at section point 11.
  void plate(const EndPlate& p, int last) {
    s.PSet(static_cast<float>(o + h.printOriginX), h.printOriginY);
    for (int j = 0; j <= last; ++j) s.LineTo(x(p(1, j)), y(p(2, j), 1));
    for (int j = last; j >= 0; --j) s.LineTo(x(p(1, j)), y(p(2, j), -1));
    s.PSet(x(p(1, 11)), y(p(2, 11), 1));
    s.LineTo(x(p(1, 11)), y(p(2, 11), -1));
  }
};

}  // namespace

void printPlate(PrintJob& job, const DevelopedPlate& p) {
  if (p.lower.empty()) return;
  BusyScope busy(job.host);
  DrawingSurface& s = job.s;
  const HullStore& h = job.h;
  const int k = p.index;
  const int m = std::clamp<int>(h.iMaxBeam, 0, static_cast<int>(p.lower.size()) - 1);
  s.DrawStyle = kStyleSolid;
  s.PSet(static_cast<float>(kLeftMargin), 900);
  if (p.kind == PlateKind::bottom) {
    s.Print(job.french() ? "Fond" : "Bottom");
  } else {
    s.Print({job.french() ? "Bordé" : "Side plank", k});
  }
  plateFigure(s, h, p, m, 1);
  plateFigure(s, h, p, m, -1);
}

void printEndPlates(PrintJob& job) {
  DrawingSurface& s = job.s;
  HullStore& h = job.h;
  const int n = std::clamp<int>(h.nChines, 0, kMaxLine);
  const int last = lastSectionPoint(h);
  s.DrawStyle = kStyleSolid;

  EndFigure transom{s, h, offset16(-h.printOriginX / 3.0)};
  transom.label(1200, job.french() ? " Tableau" : " Transom");
  calcTransomPlate(h);
  transom.plate(h.transomPlate, last);

  const int m = std::clamp<int>(h.iMaxBeam, 0, kLastPoint);
  EndFigure beam{
      s, h, offset16((h.transomPlate(1, 13) - h.lineZ(0, m) + 0.1 * h.xFwd(0)) * h.printScaleX)};
  beam.label(1200, " station Bmax");
  beam.label(1400, " x=" + formatNumber(h.lineX(0, m), "0.000"));
  s.PSet(beam.x(h.lineZ(0, m)), beam.y(h.lineY(0, m), 1));
  for (int j = 0; j <= n; ++j) s.LineTo(beam.x(h.lineZ(j, m)), beam.y(h.lineY(j, m), 1));
  for (int j = n; j >= 0; --j) s.LineTo(beam.x(h.lineZ(j, m)), beam.y(h.lineY(j, m), -1));

  if (!hasPramBow(h)) return;
  EndFigure bow{s, h, offset16(h.xFwd(0) * 3 / 4 * h.printScaleX)};
  calcBowPlate(h);
  bow.label(1200, job.french() ? " Marotte" : " Pram bow");
  bow.plate(h.bowPlate, last);
}

void ImprimeStation(PrintJob& job, int station) {
  DrawingSurface& s = job.s;
  const HullStore& h = job.h;
  const int st = std::clamp(station, 0, StationTable::rowHi);
  const int last = std::min(std::clamp<int>(h.nChines, 0, kMaxLine) + 9, StationTable::colHi);
  const double W = job.pageWidth();
  s.FontName = kPrinterFont;
  s.PSet(static_cast<float>(kLeftMargin), 200);
  s.Print({h.hullName, "  date:", job.today(), "   Station X=", h.stationX(st, 0)});

  const float xc = static_cast<float>(W / 2);
  const double sZ = h.printScaleZ, oZ = h.printOriginZ;
  s.DrawStyle = kStyleDashDot;
  s.Line(xc, static_cast<float>(1.1 * h.lineZ(4, 40) * sZ + oZ - 300), xc,
         static_cast<float>(1.1 * h.lineZ(0, 40) * sZ + oZ + 300));
  s.Line(400, h.printOriginZ, static_cast<float>(W * 0.95 - 200), h.printOriginZ);
  s.DrawStyle = kStyleSolid;

  auto x = [&](int j, int side) {
    return static_cast<float>(xc + side * h.printScaleX * h.stationY(st, j));
  };
  s.PSet(xc, qz(h, h.stationZ(st, 0)));
  for (int j = 0; j <= last; ++j) s.LineTo(x(j, 1), qz(h, h.stationZ(st, j)));
  for (int j = last; j >= 0; --j) s.LineTo(x(j, -1), qz(h, h.stationZ(st, j)));
}

}  // namespace tolmar

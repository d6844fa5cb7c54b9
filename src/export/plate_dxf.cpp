#include "export/plate_dxf.h"

#include <algorithm>
#include <cmath>

#include "development/developed_plate.h"
#include "development/end_plates.h"
#include "development/plate_cut.h"
#include "export/end_plates_dxf.h"
#include "export/polyline_out.h"
#include "export/stroke_font.h"
#include "text/number_format.h"
#include "text/number_text.h"

namespace tolmar {

namespace {

constexpr int kNameFrom = 42;  // 80 / 2 + 2: the name follows the plate's slope from here
constexpr int kNameTo = 44;    // to 80 / 2 + 4

// Running state of one file: where the next plate goes on the sheet and
// the largest extent of the plates so far.
struct SheetState {
  double sheetOff = 0;
  double maxDevX = 0;
  double maxDevY = 0;

  void follow(double x, double y) {
    maxDevX = std::max(maxDevX, x);
    maxDevY = std::max(maxDevY, y);
  }
  void next() { sheetOff = maxDevY * 1.05 + sheetOff + maxDevX * 0.05; }
};

double nameAngle(const DevelopedPlate& p) {
  const FlatPoint a = p.lower[kNameFrom], b = p.lower[kNameTo];
  const double t = std::atan((b.y - a.y) / (b.x + 0.0001 - a.x));
  return std::isfinite(t) ? t : 0.0;
}

// Lower edge out, upper edge back, closed on the first point; every Y
// moved up by sheetOff.  The extent follows the points, offset apart.
template <typename Low, typename Up>
void outline(TextSink& out, SheetState& s, i16 layer, i16 colour, int last, Low low, Up up) {
  PolylineOut p(out, layer, colour);
  auto put = [&](FlatPoint q) {
    s.follow(q.x, q.y);
    p.vertex(q.x, q.y + s.sheetOff);
  };
  for (int i = 0; i <= last; ++i) put(low(i));
  for (int i = last; i >= 0; --i) put(up(i));
  put(low(0));
}

void tick(TextSink& out, i16 colour, double x, double y, double dir) {
  PolylineOut p(out, 13, colour);
  p.vertex(x - 0.005, y + dir * 0.005);
  p.vertex(x, y);
  p.vertex(x, y + dir * 0.01);
}

void plate(TextSink& out, const HullStore& h, SheetState& s, int n, bool lap) {
  const DevelopedPlate d = developPlate(h, n == 0 ? PlateKind::bottom : PlateKind::plank, n);
  const int last = static_cast<int>(d.lower.size()) - 1;
  const std::vector<FlatPoint>& cutLow = d.cutLower.empty() ? d.lower : d.cutLower;
  const std::vector<FlatPoint>& cutUp = d.cutUpper.empty() ? d.upper : d.cutUpper;

  const auto size = static_cast<float>(h.xFwd(1) / 150 + 0.002);
  const auto layer = static_cast<i16>(n + 1);
  dxfText(out, d.name, size, d.lower[kNameFrom].x, size / 2 + d.lower[kNameFrom].y + s.sheetOff,
          nameAngle(d), layer, 7);

  const auto c = static_cast<i16>(7 - n % 3);
  auto low = [&](int i) { return d.lower[static_cast<std::size_t>(i)]; };
  auto up = [&](int i) { return d.upper[static_cast<std::size_t>(i)]; };
  outline(out, s, layer, lap ? 5 : c, last, low, up);
  if (lap)
    outline(
        out, s, layer, 1, last, [&](int i) { return cutLow[static_cast<std::size_t>(i)]; },
        [&](int i) { return cutUp[static_cast<std::size_t>(i)]; });

  const int m = std::clamp<int>(h.iMaxBeam, 0, last);
  {
    PolylineOut p(out, 13, c);
    p.vertex(low(m).x, low(m).y + s.sheetOff);
    p.vertex(up(m).x, up(m).y + s.sheetOff);
  }
  auto lowTick = [&](int i) { tick(out, c, low(i).x, low(i).y + s.sheetOff, 1); };
  auto upTick = [&](int i) { tick(out, c, up(i).x, up(i).y + s.sheetOff, -1); };
  // Lower and upper ticks in turn, as far as both go (the bottom's upper
  // edge stops at the maximum beam), then the lower ones left.
  const std::size_t both = std::min(d.lowerTicks.size(), d.upperTicks.size());
  if (n == 0) {
    for (int i : d.lowerTicks) lowTick(i);
    for (int i : d.upperTicks) upTick(i);
  } else {
    for (std::size_t t = 0; t < both; ++t) {
      lowTick(d.lowerTicks[t]);
      upTick(d.upperTicks[t]);
    }
  }
  s.next();
}

}  // namespace

void writePlateFile(TextSink& out, const HullStore& h, int lastPlate, bool lap) {
  const int nLines = lastLineOf(h);
  lastPlate = std::clamp(lastPlate, 0, kMaxLine - 1);
  dxfHeader(out, h.hullName + " - Planks  - development created with Tolmar2008");
  dxfSection(out);
  SheetState s;
  for (int n = 0; n <= lastPlate; ++n) plate(out, h, s, n, lap);

  const int b = std::clamp<int>(h.iMaxBeam, 0, kLastPoint);
  double widest = 0;
  for (int k = 1; k <= nLines; ++k) widest = std::max(widest, h.lineY(k, b));
  const double xBase = s.maxDevX * 1.1 + widest;
  TableauDXF(out, h, 16, 7, xBase, 0);
  double y = xBase * 0.04 + h.transomPlate(1, lastSectionPoint(h)) + std::fabs(h.lineZ(0, b));
  StationDXF(out, h, 14, 6, b, xBase, y);
  // Line 4 whatever nChines is: the bow stands above the section's height there.
  y = h.lineZ(4, b) - h.lineZ(0, b) + y + xBase * 0.04;
  if (h.yFwd(1) > 0) MarotteDXF(out, h, 15, 5, xBase, y);
  dxfEndSec(out);
  dxfEof(out);
}

void writeDeckFile(TextSink& out, const HullStore& h, int lastDeck) {
  lastDeck = std::clamp(lastDeck, 0, kMaxLine);
  dxfHeader(out, h.hullName + " - Decks  - development created with Tolmar2008");
  dxfSection(out);
  SheetState s;
  for (int n = 1; n <= lastDeck; ++n) {
    const DevelopedPlate d = developPlate(h, PlateKind::deck, n);
    s.maxDevX = s.maxDevY = 0;  // afresh for each deck, unlike the plates
    const auto size = static_cast<float>(h.xFwd(1) / 100 + 0.002);
    const auto layer = static_cast<i16>(n);
    dxfText(out, d.name, size, d.lower[kNameFrom].x, size + d.lower[kNameFrom].y + s.sheetOff,
            nameAngle(d), layer, 7);
    outline(
        out, s, layer, static_cast<i16>(7 - n % 3), kPlankLastPoint,
        [&](int i) { return d.lower[static_cast<std::size_t>(i)]; },
        [&](int i) { return d.upper[static_cast<std::size_t>(i)]; });
    s.next();
  }
  dxfEndSec(out);
  dxfEof(out);
}

ExportFile plateDxfFile(const HullStore& h) {
  ExportFile f;
  f.title = "Tolmar2008 - Save developed plank as DXF file";
  f.filter = "Plank (*_PLANK.DXF)|*.DXF";
  f.defaultName = nameStem(h.hullName) + "_PLANK.DXF";
  f.errorTitle = "Tolmar2008 - Saving plank development DXF";
  f.focusCancel = true;
  return f;
}

ExportFile deckDxfFile(const HullStore& h) {
  ExportFile f = plateDxfFile(h);
  f.filter = "Plank (*_DECK.DXF)|*.DXF";
  f.defaultName = nameStem(h.hullName) + "_DECK.DXF";
  f.errorTitle = "Tolmar2008 - Saving deck development DXF";
  return f;
}

ExportOutcome plankPlainDXF(ExportHost& host, HullStore& h, int lastPlate) {
  return runExport(host, h, plateDxfFile(h),
                   [&](TextSink& out) { writePlateFile(out, h, lastPlate, false); });
}

ExportOutcome plankLapDXF(ExportHost& host, HullStore& h, int lastPlate) {
  return runExport(host, h, plateDxfFile(h),
                   [&](TextSink& out) { writePlateFile(out, h, lastPlate, true); });
}

ExportOutcome deckDXF(ExportHost& host, HullStore& h, int lastDeck) {
  return runExport(host, h, deckDxfFile(h),
                   [&](TextSink& out) { writeDeckFile(out, h, lastDeck); });
}

ExportOutcome savePlateFile(ExportHost& host, HullStore& h, int stepIndex) {
  const auto plates = h.overlapMode == 1 ? plankPlainDXF : plankLapDXF;
  if (stepIndex == 0) return plates(host, h, 0);
  calcTransomPlate(h);
  if (h.yFwd(1) > 0.0001) calcBowPlate(h);
  return plates(host, h, lastLineOf(h) - 1);
}

ExportOutcome saveDeckFile(ExportHost& host, HullStore& h, int stepIndex) {
  return deckDXF(host, h, stepIndex == 0 ? 1 : lastLineOf(h));
}

bool saveDevelopedDxf(ExportHost& host, HullStore& h, int stepIndex) {
  if (h.overlapMode != 1 && h.overlapMode != 2) return true;
  const ExportOutcome a = savePlateFile(host, h, stepIndex);
  const ExportOutcome b = saveDeckFile(host, h, stepIndex);
  return a != ExportOutcome::failed && b != ExportOutcome::failed;
}

}  // namespace tolmar

#include "export/plate_dxf.h"

#include <algorithm>
#include <cmath>

#include "development/calc_develop.h"
#include "development/deck_develop.h"
#include "development/end_plates.h"
#include "export/end_plates_dxf.h"
#include "development/plate_cut.h"
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

double nameAngle(const HullStore& h) {
  const double a = std::atan((h.devYi(kNameTo) - h.devYi(kNameFrom)) /
                             (h.devXi(kNameTo) + 0.0001 - h.devXi(kNameFrom)));
  return std::isfinite(a) ? a : 0.0;
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

void plate(TextSink& out, HullStore& h, SheetState& s, int n, bool lap) {
  int last = kPlankLastPoint;
  if (n == 0) {
    developBottom(h);
    last = kBottomLastPoint;
  } else {
    developPlank(h, n);
  }
  const CutOutline cut = lap ? cutOutline(h, n, last) : CutOutline{};

  const auto size = static_cast<float>(h.xFwd(1) / 150 + 0.002);
  const auto layer = static_cast<i16>(n + 1);
  dxfText(out, "p" + formatNumber(n, "00"), size, h.devXi(kNameFrom),
          size / 2 + h.devYi(kNameFrom) + s.sheetOff, nameAngle(h), layer, 7);

  const auto c = static_cast<i16>(7 - n % 3);
  auto low = [&](int i) { return FlatPoint{h.devXi(i), h.devYi(i)}; };
  auto up = [&](int i) { return FlatPoint{h.devXs(i), h.devYs(i)}; };
  outline(out, s, layer, lap ? 5 : c, last, low, up);
  if (lap)
    outline(
        out, s, layer, 1, last, [&](int i) { return cut.low(i); },
        [&](int i) { return cut.up(i); });

  const int m = std::clamp<int>(h.iMaxBeam, 0, last);
  {
    PolylineOut p(out, 13, c);
    p.vertex(h.devXi(m), h.devYi(m) + s.sheetOff);
    p.vertex(h.devXs(m), h.devYs(m) + s.sheetOff);
  }
  auto lowTick = [&](int i) { tick(out, c, h.devXi(i), h.devYi(i) + s.sheetOff, 1); };
  auto upTick = [&](int i) { tick(out, c, h.devXs(i), h.devYs(i) + s.sheetOff, -1); };
  if (n == 0) {
    // The upper edge of the bottom has ticks from the transom to the
    // maximum beam only.
    for (int i = 1; i <= 81; i += 4) lowTick(i);
    for (int i = 1; i <= h.iMaxBeam - 1; i += 4) upTick(i);
  } else {
    for (int i = 1; i <= 81; i += 4) {
      lowTick(i);
      upTick(i);
    }
  }
  s.next();
}

}  // namespace

void writePlateFile(TextSink& out, HullStore& h, int lastPlate, bool lap) {
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

void writeDeckFile(TextSink& out, HullStore& h, int lastDeck) {
  lastDeck = std::clamp(lastDeck, 0, kMaxLine);
  dxfHeader(out, h.hullName + " - Decks  - development created with Tolmar2008");
  dxfSection(out);
  SheetState s;
  for (int n = 1; n <= lastDeck; ++n) {
    developDeck(h, n);
    s.maxDevX = s.maxDevY = 0;  // afresh for each deck, unlike the plates
    const auto size = static_cast<float>(h.xFwd(1) / 100 + 0.002);
    const auto layer = static_cast<i16>(n);
    dxfText(out, "deck" + hullNumberText(n), size, h.devXi(kNameFrom),
            size + h.devYi(kNameFrom) + s.sheetOff, nameAngle(h), layer, 7);
    outline(
        out, s, layer, static_cast<i16>(7 - n % 3), kPlankLastPoint,
        [&](int i) {
          return FlatPoint{h.devXi(i), h.devYi(i)};
        },
        [&](int i) {
          return FlatPoint{h.devXs(i), h.devYs(i)};
        });
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

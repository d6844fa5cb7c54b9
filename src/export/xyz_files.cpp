#include "export/xyz_files.h"

#include "development/calc_develop.h"
#include "development/deck_develop.h"
#include "development/end_plates.h"
#include "export/polyline_out.h"
#include "text/number_format.h"

namespace tolmar {

namespace {

constexpr const char* kTab = "\t";
constexpr const char* kCreated = "\t created with Tolmar2008";

// A negative zero (the far side of a point on the centre plane) takes the
// section of zero, " +0.000 "; any value below zero, however small, the
// negative one.
std::string signedF(double v) { return formatNumber(v == 0 ? 0.0 : v, " +0.##0 ; -0.##0 "); }
std::string plateF(double v) { return formatNumber(v, " 0.##0 "); }
std::string panelF(double v) { return formatNumber(v, " 0.000 "); }
std::string pointNo(int i) { return formatNumber(i, " 00 "); }
std::string withSignBlank(int i) { return i < 0 ? std::to_string(i) : " " + std::to_string(i); }

void row3(TextSink& out, double x, double y, double z) {
  out.line(signedF(x) + kTab + signedF(y) + kTab + signedF(z));
}

const char* word(const HullStore& h, const char* fr, const char* en) {
  return h.langue == 0 ? fr : en;
}

}  // namespace

void writeLinesXyz(TextSink& out, const HullStore& h) {
  const int n = lastLineOf(h);
  const int m = n + 9;
  out.line(h.hullName + kCreated);
  for (int k = 0; k <= n; ++k) {
    if (k == 0)
      out.line(h.langue == 0 ? "LIGNE \t Quille" : "LINE \t Keel");
    else
      out.line(std::string(word(h, "LIGNE \t Bouchain", "LINE \t Chine")) + withSignBlank(k));
    out.line("     X \t     Y \t     Z");
    for (int i = 0; i <= kLastPoint; ++i) row3(out, h.lineX(k, i), h.lineY(k, i), h.lineZ(k, i));
    out.line("");
  }
  std::vector<int> stations{0};
  for (int s = 1; s <= 81; s += 4) stations.push_back(s);
  stations.push_back(kLastPoint);
  for (const int s : stations) {
    if (s == 0)
      out.line(word(h, "TABLEAU", "TRANSOM"));
    else if (s == kLastPoint)
      out.line(word(h, "ETRAVE", "STEM"));
    else
      out.line(std::string(word(h, "COUPLE", "STATION")) + kTab + withSignBlank(s) + " ");
    out.line("     X \t     Y \t     Z");
    for (int j = m; j >= 0; --j) row3(out, h.stationX(s, j), h.stationY(s, j), h.stationZ(s, j));
    out.line(word(h, "QUILLE", "KEEL"));
    for (int j = 0; j <= m; ++j) row3(out, h.stationX(s, j), -h.stationY(s, j), h.stationZ(s, j));
    out.line("");
  }
  out.line("EOF");
}

void writePlankXyz(TextSink& out, const HullStore& h, const DevelopedPlate& p) {
  const int n = p.index;
  out.line(plankXyzFile(h, n).defaultName + kCreated);
  out.line(n == 0 ? "Bottom plank \t0" : "Plank \t" + std::to_string(n));
  out.line(n == 0 ? "keel edge from transom to stem" : "Lower edge from transom to stem");
  out.line("point \t    X \t    Y ");
  for (std::size_t i = 0; i < p.lower.size(); ++i)
    out.line(pointNo(static_cast<int>(i)) + kTab + plateF(p.lower[i].x) + kTab +
             plateF(p.lower[i].y));
  out.line("");
  out.line(n == 0 ? "outer edge from transom to stem" : "Upper edge from transom to stem");
  out.line("point \t    X \t    Y ");
  for (std::size_t i = 0; i < p.upper.size(); ++i)
    out.line(pointNo(static_cast<int>(i)) + kTab + plateF(p.upper[i].x) + kTab +
             plateF(p.upper[i].y));
  out.line("");
  out.line("EOF");
}

void writeDeckXyz(TextSink& out, const HullStore& h, const DevelopedPlate& p) {
  out.line(deckXyzFile(h, p.index).defaultName + kCreated);
  out.line("Half Deck \t" + std::to_string(p.index));
  out.line("Outer edge from transom to stem");
  out.line("point \t    X \t    Y ");
  out.line(" CL \t" + plateF(p.upper.front().x) + kTab + plateF(0));
  for (std::size_t i = 0; i < p.upper.size(); ++i)
    out.line(pointNo(static_cast<int>(i)) + kTab + plateF(p.upper[i].x) + kTab +
             plateF(p.upper[i].y));
  out.line(" CL \t" + plateF(p.upper.back().x) + kTab + plateF(0));
  out.line("");
  out.line("EOF");
}

namespace {

void writePanelXyz(TextSink& out, const HullStore& h, const EndPlate& t, bool transom) {
  const int m = lastSectionPoint(h);
  out.line((transom ? transomXyzFile(h) : bowXyzFile(h)).defaultName + kCreated);
  out.line(transom ? "Half transom development " : "Half bow plate development ");
  out.line("");
  out.line(transom ? "point \t   Y \t    Z " : "point \t    Y \t    Z ");
  for (int j = 0; j <= m; ++j)
    out.line(pointNo(j) + kTab + panelF(t(2, j)) + kTab + panelF(t(1, j)));
  out.line(" CL \t" + panelF(t(2, 0)) + kTab + panelF(t(1, m)));
  out.line("");
  out.line(transom ? "EOF " : "EOF");
}

}  // namespace

void writeTransomXyz(TextSink& out, const HullStore& h) {
  writePanelXyz(out, h, h.transomPlate, true);
}
void writeBowXyz(TextSink& out, const HullStore& h) { writePanelXyz(out, h, h.bowPlate, false); }

ExportFile linesXyzFile(const HullStore& h) {
  ExportFile f;
  f.initialFolder = "Tolmar2000";
  f.filter = "Lines (*.XYZ)|*.XYZ";
  f.defaultName = h.hullName + ".XYZ";
  f.errorTitle = "Tolmar2008 - Saving Hull XYZ";
  f.hullNameFollows = true;
  f.showHullName = true;
  return f;
}

ExportFile plankXyzFile(const HullStore& h, int n) {
  ExportFile f;
  f.title = "Tolmar2008 - Save developed plank as XYZ file";
  f.filter = "Plank (*_P*.XYZ)|*.XYZ";
  f.defaultName = nameStem(h.hullName) + "_P" + std::to_string(n) + ".XYZ";
  f.errorTitle = "Tolmar2008 - Saving Development Plank_XYZ";
  f.focusCancel = true;
  return f;
}

ExportFile deckXyzFile(const HullStore& h, int n) {
  ExportFile f;
  f.title = "Tolmar2008 - Save developed deck as XYZ file";
  f.filter = "Deck (*_P*.XYZ)|*.XYZ";
  f.defaultName = nameStem(h.hullName) + "_D" + std::to_string(n) + ".XYZ";
  f.errorTitle = "Tolmar2008 - Saving Development Deck_XYZ";
  f.focusCancel = true;
  return f;
}

ExportFile transomXyzFile(const HullStore& h) {
  ExportFile f;
  f.title = "Tolmar2008 - Save Transom as XYZ file";
  f.filter = "Transom (*_TR.XYZ)|*.XYZ";
  f.defaultName = nameStem(h.hullName) + "_TR.XYZ";
  f.errorTitle = "Tolmar2008 - Saving transom XYZ";
  return f;
}

ExportFile bowXyzFile(const HullStore& h) {
  ExportFile f;
  f.title = "Tolmar2008 - Save bow plate as XYZ file";
  f.filter = "Bow (*_BOW.XYZ)|*.XYZ";
  f.defaultName = nameStem(h.hullName) + "_BOW.XYZ";
  f.errorTitle = "Tolmar2008 - Saving bow XYZ";
  return f;
}

ExportOutcome saveLinesXyz(ExportHost& host, HullStore& h) {
  return runExport(host, h, linesXyzFile(h), [&](TextSink& out) { writeLinesXyz(out, h); });
}

ExportOutcome plankXYZ(ExportHost& host, HullStore& h, int n) {
  const DevelopedPlate p = developPlate(h, n == 0 ? PlateKind::bottom : PlateKind::plank, n);
  return runExport(host, h, plankXyzFile(h, n), [&](TextSink& out) { writePlankXyz(out, h, p); });
}

ExportOutcome deckXYZ(ExportHost& host, HullStore& h, int n) {
  const DevelopedPlate p = developPlate(h, PlateKind::deck, n);
  return runExport(host, h, deckXyzFile(h, n), [&](TextSink& out) { writeDeckXyz(out, h, p); });
}

ExportOutcome transomXYZ(ExportHost& host, HullStore& h) {
  return runExport(host, h, transomXyzFile(h), [&](TextSink& out) { writeTransomXyz(out, h); });
}

ExportOutcome bowXYZ(ExportHost& host, HullStore& h) {
  return runExport(host, h, bowXyzFile(h), [&](TextSink& out) { writeBowXyz(out, h); });
}

bool saveDevelopedXyz(ExportHost& host, HullStore& h, int stepIndex) {
  host.setBusy(true);
  bool ok = true;
  auto note = [&](ExportOutcome r) { ok = ok && r != ExportOutcome::failed; };
  if (stepIndex != 0) {
    const int n = lastLineOf(h);
    for (int k = 0; k <= n - 1; ++k) note(plankXYZ(host, h, k));
    for (int k = 1; k <= n; ++k) note(deckXYZ(host, h, k));
    calcTransomPlate(h);
    note(transomXYZ(host, h));
    if (h.yFwd(1) > 0.0001) {
      calcBowPlate(h);
      note(bowXYZ(host, h));
    }
  } else {
    note(plankXYZ(host, h, 0));
    note(deckXYZ(host, h, 1));
  }
  host.setBusy(false);
  return ok;
}

}  // namespace tolmar

#include "printing/offset_tables.h"

#include <algorithm>
#include <string>

#include "printing/report_text.h"
#include "text/number_format.h"

namespace tolmar {

std::vector<TableRow> tableRows(int iMaxBeam, int gridLast, int stem) {
  std::vector<TableRow> rows{{TableRow::Transom, 0}};
  int i = 1;
  for (; i <= iMaxBeam - 1; i += 4) rows.push_back({TableRow::Grid, i});
  rows.push_back({TableRow::MaxBeam, iMaxBeam});
  if (i == iMaxBeam) i += 4;
  for (; i <= gridLast; i += 4) rows.push_back({TableRow::Grid, i});
  rows.push_back({TableRow::Stem, stem});
  return rows;
}

namespace {

std::string coord(double v) { return formatNumber(v, "#0.0000"); }

// The label and point number of a row, with the blank lines around the
// maximum beam; `values` puts the numbers of the point on the line.
template <typename Values>
void printRows(ReportWriter& w, const PrintJob& job, const std::vector<TableRow>& rows,
               Values values) {
  for (const TableRow& r : rows) {
    if (r.kind == TableRow::MaxBeam) w.blank();
    w.tab(kReportMargin);
    switch (r.kind) {
      case TableRow::Transom:
        w.text(pick(job, "Tableau", "Transom"));
        break;
      case TableRow::MaxBeam:
        w.text("Bmax");
        break;
      case TableRow::Stem:
        w.text(pick(job, "Etrave", "Stem"));
        break;
      case TableRow::Grid:
        break;
    }
    w.tab(32).text(formatNumber(r.point, "#0"));
    values(r.point);
    w.end();
    if (r.kind == TableRow::MaxBeam) w.blank();
  }
}

int beamPoint(const HullStore& h, int last) { return std::clamp<int>(h.iMaxBeam, 0, last); }

}  // namespace

void printOffsets(PrintJob& job, int n) {
  const HullStore& h = job.h;
  n = std::clamp(n, 0, kMaxLine);
  std::string name;
  if (n == 0) {
    name = pick(job, "Ligne de la quille ", "Line of the keel ");
  } else if (n == h.nChines) {
    name = pick(job, "Ligne du livet ", "Shear line ");
  } else {
    name = pick(job, "Ligne du bouchain ", "Line of chine ") + labelNumber(n);
  }

  ReportWriter w(job.s);
  w.newPage();
  tableHead(w, job);
  w.tab(kReportMargin).text(" ----- offsets : ").text(name);
  w.end();
  w.blank();
  w.tab(32).text("pt").tab(44).text(" X").tab(60).text(" Y").tab(76).text(" Z");
  w.end();
  w.blank();
  printRows(w, job, tableRows(beamPoint(h, kLastPoint), 81, kLastPoint), [&](int i) {
    w.tab(44)
        .text(coord(h.lineX(n, i)))
        .tab(60)
        .text(coord(h.lineY(n, i)))
        .tab(76)
        .text(coord(h.lineZ(n, i)));
  });
  w.blank();
  w.tab(kReportMargin).text("----- EOF ----- ").text(name);
  w.end();
}

void printPlateTable(PrintJob& job, const DevelopedPlate& p) {
  const HullStore& h = job.h;
  const int n = std::clamp(p.index, 0, kMaxLine - 1);
  const std::string title =
      n == 0 ? std::string(pick(job, "Développement du fond", "Development of bottom"))
             : pick(job, "Développement du bordé ", "Development of plank ") + labelNumber(n);

  ReportWriter w(job.s);
  w.newPage();
  w.blank();
  tableHead(w, job, "Tolmar2008");
  w.tab(kReportMargin).text("----- ").text(title);
  w.end();
  w.blank();
  if (n == 0) {
    w.tab(42).text(pick(job, "Coté quille", "Keel edge"));
    w.tab(72).text(pick(job, "Coté bouchain 1", "Chine 1 edge"));
  } else if (job.french()) {
    w.tab(42).text("Coté bouchain").text(labelNumber(n));
    w.tab(72).text("Coté bouchain").text(labelNumber(n + 1));
  } else {
    w.tab(42).text("Chine").text(labelNumber(n)).text(" egde");
    w.tab(72).text("Chine").text(labelNumber(n + 1)).text(" edge");
  }
  w.end();
  w.tab(32).text(" pt").tab(42).text("Xi").tab(56).text("Yi").tab(72).text("Xs").tab(86).text("Ys");
  w.end();
  w.blank();
  const int last = static_cast<int>(p.lower.size()) - 1;
  printRows(w, job, tableRows(beamPoint(h, last), n == 0 ? 83 : 81, last), [&](int i) {
    const FlatPoint lo = p.lower[static_cast<std::size_t>(i)];
    const FlatPoint up = p.upper[static_cast<std::size_t>(i)];
    w.tab(40).text(coord(lo.x)).tab(54).text(coord(lo.y));
    w.tab(70).text(coord(up.x)).tab(84).text(coord(up.y));
  });
  w.blank();
  w.tab(kReportMargin).text("----- EOF ----- ").text(title);
  w.end();
}

}  // namespace tolmar

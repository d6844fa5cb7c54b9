#include "printing/panel_offsets_report.h"

#include <optional>
#include <string>

#include "printing/pattern_pages.h"
#include "printing/pattern_plan.h"
#include "printing/report_text.h"
#include "text/number_format.h"

namespace tolmar {

namespace {

constexpr int kAtCol = 20, kLowerCol = 34, kUpperCol = 48, kLapCol = 62;

std::string mm(double v) { return formatNumber(v, "0.0"); }
std::string mm(const std::optional<double>& v) { return v ? mm(*v) : "-"; }

void plateTable(PrintJob& job, ReportWriter& w, const PanelOffsets& o, bool firstPage) {
  const DevelopedPlate& p = *o.plate;
  const int l = job.french() ? 0 : 1;
  if (!firstPage) w.newPage();
  w.blank();
  tableHead(w, job);
  std::string title = pick(job, "----- Cotes des panneaux : ", "----- Panel offsets: ") + p.name +
                      "  " + plateTitle(p, l);
  if (p.cutTwice) title += pick(job, "   à couper 2 fois, en miroir", "   cut 2, mirrored");
  w.tab(kReportMargin).text(title);
  w.end();
  w.blank();
  const bool end = p.kind == PlateKind::transom || p.kind == PlateKind::pramBow;
  w.tab(kReportMargin)
      .text(end ? pick(job, "Ligne de base : l'axe du panneau, ",
                       "Baseline: the centre line of the panel, ")
                : pick(job, "Ligne de base : la corde du bord inférieur, ",
                       "Baseline: the chord of the lower edge, "))
      .text(mm(o.baselineMm))
      .text(" mm.");
  w.end();
  w.tab(kReportMargin)
      .text(pick(job, "Stations tous les ", "Stations every "))
      .text(mm(o.stepMm))
      .text(end ? pick(job, " mm, aux deux bouts et à chaque bouchain.",
                       " mm, at both ends and at each chine.")
                : pick(job, " mm et aux deux bouts.", " mm and at both ends."));
  w.end();
  w.tab(kReportMargin)
      .text(pick(job, "Distances en mm, d'équerre, positives vers le bord supérieur.",
                 "Distances in mm, square to it, positive towards the upper edge."));
  w.end();
  if (o.lapStrake) {
    w.tab(kReportMargin)
        .text(pick(job, "Bords de coupe avec le recouvrement, et sa ligne.",
                   "Cutting edges with the lap, and the lap line."));
    w.end();
  }
  w.blank();
  w.tab(kAtCol).text("station").tab(kLowerCol).text(pick(job, "bas", "lower"));
  w.tab(kUpperCol).text(pick(job, "haut", "upper"));
  if (o.lapStrake) w.tab(kLapCol).text(pick(job, "recouvrement", "lap line"));
  w.end();
  w.blank();
  for (const OffsetStation& s : o.stations) {
    w.tab(kAtCol).text(mm(s.at)).tab(kLowerCol).text(mm(s.lower)).tab(kUpperCol).text(mm(s.upper));
    if (o.lapStrake) w.tab(kLapCol).text(mm(s.lap));
    w.end();
  }
  w.blank();
  auto ends = [&](const char* fr, const char* en, const EdgeEnd(&e)[2]) {
    w.tab(kReportMargin)
        .text(pick(job, fr, en))
        .text(mm(e[0].at))
        .text(" / ")
        .text(mm(e[0].off))
        .text(pick(job, " et ", " and "))
        .text(mm(e[1].at))
        .text(" / ")
        .text(mm(e[1].off));
    w.end();
  };
  ends("Bouts du bord inférieur (station / distance) : ",
       "Ends of the lower edge (station / distance): ", o.lowerEnds);
  ends("Bouts du bord supérieur (station / distance) : ",
       "Ends of the upper edge (station / distance): ", o.upperEnds);
  w.blank();
  w.tab(kReportMargin).text("----- EOF ----- ").text(p.name);
  w.end();
}

}  // namespace

void printPanelOffsets(PrintJob& job, const std::vector<PanelOffsets>& offsets) {
  BusyScope busy(job.host);
  job.s.FontName = kPrinterFont;
  ReportWriter w(job.s);
  bool first = true;
  for (const PanelOffsets& o : offsets) {
    if (o.stations.empty()) continue;
    plateTable(job, w, o, first);
    first = false;
  }
  job.s.EndDoc();
}

void fmenu_P_Panels(PrintJob& job, double stepMm, const std::vector<std::string>& plates) {
  const std::vector<DevelopedPlate> all = developAll(job.h);
  std::vector<std::string> unknown;
  std::vector<PanelOffsets> offsets;
  for (const DevelopedPlate* p : choosePlates(all, plates, unknown))
    offsets.push_back(panelOffsets(*p, stepMm));
  printPanelOffsets(job, offsets);
}

}  // namespace tolmar

#include "printing/stability_page.h"

#include <string>

#include "stability/stability_plots.h"
#include "stability/stability_text.h"

namespace tolmar {

namespace {

using namespace stability;

constexpr float kMargin = 900;  // twips around the sheet's content

// Title, hull name and date; returns the Y under them.
float head(PrintJob& job, int page) {
  DrawingSurface& s = job.s;
  const int langue = job.h.langue;
  s.FontName = kPrinterFont;
  s.FontSize = 14;
  s.ForeColor = 0;
  s.CurrentX = kMargin;
  s.CurrentY = kMargin;
  s.Print(std::string(text(Text::windowTitle, langue)) + "   " + job.h.hullName);
  s.FontSize = 9;
  const std::string right = job.today() + "   " + std::to_string(page);
  s.CurrentX = static_cast<float>(job.pageWidth()) - kMargin - s.TextWidth(right);
  s.CurrentY = kMargin;
  s.Print(right);
  return kMargin + 700;
}

}  // namespace

void printStability(PrintJob& job, const StabilityResult& r) {
  BusyScope busy(job.host);
  DrawingSurface& s = job.s;
  const int langue = job.h.langue;
  const float width = static_cast<float>(job.pageWidth()) - 2 * kMargin;
  const float bottom = static_cast<float>(job.pageHeight()) - kMargin;
  float y = head(job, 1);
  s.FontSize = 9;
  if (!r.ok()) {
    s.CurrentX = kMargin;
    s.CurrentY = y;
    s.Print(r.error);
    s.EndDoc();
    return;
  }
  for (const std::string& line : summaryLines(r, langue)) {
    s.CurrentX = kMargin;
    s.CurrentY = y;
    s.Print(line);
    y += s.TextHeight(line) * 1.2f;
  }
  y += 200;
  const float plot = (bottom - y - 300) / 2;
  s.FontSize = 8;
  drawGzPlot(s, {kMargin, y, width, plot}, r, langue);
  drawCurvesPlot(s, {kMargin, y + plot + 300, width, plot}, r.curves, langue);

  // The tables, on as many sheets as they need.
  const Table tables[] = {gzTable(r, langue), curvesTable(r.curves, langue)};
  const Text titles[] = {Text::gzTable, Text::curvesTable};
  int page = 1;
  for (int k = 0; k < 2; ++k) {
    std::size_t next = 0;
    do {
      s.NewPage();
      y = head(job, ++page);
      s.FontSize = 10;
      s.CurrentX = kMargin;
      s.CurrentY = y;
      s.Print(std::string(text(titles[k], langue)));
      s.FontSize = k == 0 ? 9 : 7;
      float top = y + 400;
      if (k == 1) {
        s.CurrentX = kMargin;
        s.CurrentY = top;
        s.Print(std::string(text(Text::curvesUnits, langue)));
        top += 400;
      }
      next = drawTable(s, tables[k], next, kMargin, top, width, bottom);
    } while (next < tables[k].rows.size());
  }
  s.EndDoc();
}

void fmenu_P_Stability(PrintJob& job) {
  const auto budget = withMassBudget(job.h);
  StabilityOptions o;
  o.curveStep = 0.05;  // some 25 rows for a small boat: one sheet
  printStability(job, runStability(*budget, o, job.h.langue));
}

}  // namespace tolmar

#include "printing/check_page.h"

#include <array>
#include <sstream>
#include <string>

#include "devcheck/check_table.h"
#include "printing/report_text.h"

namespace tolmar {

namespace {

// Character columns of the table, from the left edge; the verdict last, as
// it is the longest.
constexpr std::array<int, 11> kColumns{8, 24, 36, 46, 58, 70, 80, 92, 102, 114, 126};
// Eleven columns across a portrait page.
constexpr float kTableFontSize = 6.5F;

void row(ReportWriter& w, const std::vector<std::string>& cells) {
  for (std::size_t i = 0; i < cells.size() && i < kColumns.size(); ++i)
    w.tab(kColumns[i]).text(cells[i]);
  w.end();
}

}  // namespace

void printDevCheck(PrintJob& job, const devcheck::CheckOptions& o) {
  using namespace devcheck;
  BusyScope busy(job.host);
  job.s.FontName = kPrinterFont;
  const float size = job.s.FontSize;
  const auto colour = job.s.ForeColor;
  const int langue = job.h.langue;
  job.s.FontSize = kTableFontSize;
  ReportWriter w(job.s);
  w.blank();
  w.tab(kColumns[0]).text(job.h.hullName).text("   ").text(job.today());
  w.end();
  w.blank();
  w.tab(kColumns[0]).text(checkTitle(langue));
  w.end();
  w.blank();
  const CheckReport r = checkDevelopment(job.h, o);
  if (r.folded) {
    std::istringstream lines(r.message);
    for (std::string line; std::getline(lines, line);) {
      w.tab(kColumns[0]).text(line);
      w.end();
    }
  } else {
    row(w, checkHeads(langue));
    w.blank();
    for (const PlateCheck& c : r.plates) {
      job.s.ForeColor = verdictColour(c.verdict);
      row(w, checkCells(c, langue));
    }
    job.s.ForeColor = colour;
    w.blank();
    for (const std::string& line : checkNotes(r, o, langue)) {
      w.tab(kColumns[0]).text(line);
      w.end();
    }
  }
  job.s.FontSize = size;
  job.s.EndDoc();
}

}  // namespace tolmar

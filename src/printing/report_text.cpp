#include "printing/report_text.h"

#include "text/number_text.h"

namespace tolmar {

void tableHead(ReportWriter& w, const PrintJob& job, const char* prefix) {
  w.tab(kReportMargin)
      .text(prefix)
      .text(job.h.hullName)
      .text("  date: ")
      .text(job.today())
      .text("   page")
      .text(printNumberText(job.s.Page));
  w.end();
  w.blank();
}

}  // namespace tolmar

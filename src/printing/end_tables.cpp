#include "printing/end_tables.h"

#include <algorithm>
#include <string>

#include "development/end_plates.h"
#include "printing/report_text.h"
#include "text/number_format.h"
#include "text/number_text.h"

namespace tolmar {

namespace {

class EndTables {
 public:
  explicit EndTables(PrintJob& job) : job_(job), h_(job.h), w_(job.s), n_(reportLines(job.h)) {}

  // One table: page, head, title line, column heads, rows, end line.
  template <typename Rows>
  void table(const std::string& titleLine, const std::string& title, Rows rows) {
    w_.newPage();
    w_.blank();
    tableHead(w_, job_);
    w_.blank();
    w_.tab(kReportMargin).text(titleLine);
    w_.end();
    w_.blank();
    w_.tab(kReportMargin).text(" pt").tab(40).text(" Y ").tab(60).text(" Z ");
    w_.end();
    w_.blank();
    rows();
    w_.blank();
    w_.tab(kReportMargin).text("----- EOF ----- ").text(title);
    w_.end();
  }

  void row(const std::string& label, double y, double z) {
    w_.tab(kReportMargin).text(label);
    w_.tab(40).text(formatNumber(y, "#0.0000")).tab(60).text(formatNumber(z, "#0.0000"));
    w_.end();
  }

  std::string chine(int n) const { return pick(job_, "Bouchain", "Chine") + labelNumber(n); }
  std::string bottom() const { return pick(job_, "Fond", "Bottom"); }
  std::string keel() const { return pick(job_, "Quille ----", "Keel -----"); }

  // Section point j of an end plate: Y is the half breadth, Z the length
  // along the panel.
  void plateRows(const EndPlate& p) {
    auto y = [&](int j) { return p(2, std::clamp(j, 0, EndPlate::colHi)); };
    auto z = [&](int j) { return p(1, std::clamp(j, 0, EndPlate::colHi)); };
    for (int n = n_; n >= 1; --n) row(chine(n), -y(n + 9), z(n + 9));
    for (int j = 10; j >= 1; --j) row(bottom(), -y(j), z(j));
    row(keel(), -y(0), z(0));
    for (int j = 1; j <= 10; ++j) row(bottom(), y(j), z(j));
    for (int n = 1; n <= n_; ++n) row(chine(n), y(n + 9), z(n + 9));
  }

  void beamRows() {
    const int m = std::clamp<int>(h_.iMaxBeam, 0, kLastPoint);
    for (int n = n_; n >= 1; --n) row(chine(n), -h_.lineY(n, m), h_.lineZ(n, m));
    row(keel(), -h_.lineY(0, m), h_.lineZ(0, m));
    for (int n = 1; n <= n_; ++n) row(chine(n), h_.lineY(n, m), h_.lineZ(n, m));
  }

  void run() {
    const std::string transom = pick(job_, "Développement du tableau", "Transom development");
    table("----- " + transom, transom, [&] { plateRows(h_.transomPlate); });

    const std::string beam = pick(job_, "Station bau max", "Maximum beam station");
    const double xBeam = h_.lineX(1, std::clamp<int>(h_.iMaxBeam, 0, kLastPoint));
    table("----- " + beam + "  X=" + printNumberText(xBeam), beam, [&] { beamRows(); });

    if (hasPramBow(h_)) {
      const std::string bow = pick(job_, "Développement de la marotte", "Bow plate development");
      table(bow, bow, [&] { plateRows(h_.bowPlate); });
    }
  }

 private:
  PrintJob& job_;
  const HullStore& h_;
  ReportWriter w_;
  int n_;
};

}  // namespace

void printEndTables(PrintJob& job) {
  BusyScope busy(job.host);
  EndTables(job).run();
}

}  // namespace tolmar

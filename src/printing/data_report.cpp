#include "printing/data_report.h"

#include <string>

#include "hull/geometrie.h"
#include "printing/report_text.h"
#include "text/number_format.h"
#include "text/number_text.h"

namespace tolmar {

namespace {

constexpr int kValueTab = 44;
const std::string kMargin(20, ' ');

class DataReport {
 public:
  explicit DataReport(PrintJob& job) : job_(job), h_(job.h), w_(job.s) {}
  void run();

 private:
  const char* t(const char* fr, const char* en) const { return pick(job_, fr, en); }
  void label(const std::string& text) { w_.text(kMargin).text(text); }
  void row(const std::string& text, const std::string& value, const char* unit = "") {
    label(text);
    w_.tab(kValueTab).text(value).text(unit);
    w_.end();
  }
  void title(const char* fr, const char* en) {
    label(t(fr, en));
    w_.end();
  }
  void head();
  void parameters();
  void lineBlock(int n);
  void chinePlanes();

  PrintJob& job_;
  const HullStore& h_;
  ReportWriter w_;
};

void DataReport::head() {
  w_.blank();
  label("Tolmar2008");
  w_.text(t("  - fichier ", "  - file "))
      .text(h_.hullName)
      .text(t(" -  daté: ", " -  dated: "))
      .text(job_.today())
      .text("  page")
      .text(printNumberText(job_.s.Page));
  w_.end();
  w_.blank();
}

void DataReport::parameters() {
  const int n = reportLines(h_);
  title("----------  équations du 1er bouchain ", "----------  Chine 1 equation parameters");
  row(t("Avant    X^ ", "Forward  X^"), formatNumber(h_.powerFwd, " 0.0"));
  row(t("Coef. forme ", "S factor "), formatNumber(h_.shapeFwd, " 0.0"));
  w_.blank();
  row(t("Arrière  X^ ", "Aft      X^"), formatNumber(h_.powerAft, " 0.0"));
  row(t("Coef. forme ", "S factor "), formatNumber(h_.shapeAft, " 0.0"));
  w_.blank();
  row(t("Angle d'avance de quille", "Keel advance angle "), formatNumber(h_.keelAdvance, " 0.0"),
      " deg.");
  w_.blank();
  if (job_.french()) {
    label("Nombre de bouchains actifs = ");
    w_.text(printNumberText(h_.nChines));
    w_.end();
  } else {
    row("Number of chine active", printNumberText(h_.nChines));
  }
  w_.blank();
  label(t("Nombre de points par ligne = ", "Number of points per line = "));
  w_.text(printNumberText(80));
  w_.end();
  w_.blank();
  title("----------  inclinaisons / horizontal des bordés ",
        "----------  Planks inclination / vertical");
  row(t("Fond  ", "Bottom "), formatNumber(h_.plankAngle(0), " 00.0"), " deg. ");
  for (int k = 1; k <= n - 1; ++k)
    row(t("Bordé ", "Plank ") + labelNumber(k), formatNumber(h_.plankAngle(k), " 00.0"), " deg. ");
  w_.blank();
  title("----------  inclinaison / vertical ", "----------  inclination / vertical ");
  row(t("  Marotte ", "  Pram bow plate "), formatNumber(h_.bowAngle, " 00.0"), " deg.");
  row(t("Tableau ", "Transom plate "), formatNumber(h_.transomAngle, " 00.0"), " deg.");
  w_.blank();
}

void DataReport::lineBlock(int n) {
  std::string name;
  if (n == 0) {
    name = t("----------  Quille", "----------  Keel line");
  } else if (n < h_.nChines) {
    name = t("----------  Bouchain ", "----------  Chine ") + labelNumber(n);
  } else {
    name = t("----------  Livet ", "----------  Shear line");
  }
  if (!job_.french()) w_.blank();
  label(name);
  w_.tab(kValueTab).text(" X").tab(60).text(" Y").tab(76).text(" Z");
  w_.end();
  const struct {
    const char* fr;
    const char* en;
    int point;
  } rows[] = {{"Etrave ", "Stem ", kLastPoint},
              {"Brion ", "Fwd station", 81},
              {"Bau max ", "Max beam ", std::clamp<int>(h_.iMaxBeam, 0, kLastPoint)},
              {"Arrière ", "Rear station", 1},
              {"Tableau ", "Transom ", 0}};
  for (const auto& r : rows) {
    label(t(r.fr, r.en));
    w_.tab(kValueTab).text(formatNumber(h_.lineX(n, r.point), " 0.000 "));
    w_.tab(60).text(formatNumber(h_.lineY(n, r.point), " 0.000 "));
    w_.tab(76).text(formatNumber(h_.lineZ(n, r.point), " 0.000 "));
    w_.end();
  }
  w_.blank();
}

void DataReport::chinePlanes() {
  title("----------  inclinaisons / horizontal des plans de coupe des bouchains",
        "----------  inclination of chine plane from horizontal");
  for (int n = 1; n <= reportLines(h_); ++n)
    row("Chine " + labelNumber(n), formatNumber(atnDeg(h_.planeC(n)), " 0.0"), " deg ");
  w_.blank();
  label("----- EOF ----- ");
  w_.end();
  w_.blank();
}

void DataReport::run() {
  head();
  parameters();
  for (int n = 0; n <= reportLines(h_); ++n) lineBlock(n);
  chinePlanes();
}

}  // namespace

void printData(PrintJob& job) {
  BusyScope busy(job.host);
  DataReport(job).run();
}

}  // namespace tolmar

#include "devcheck/check_table.h"

#include "hull/hull_store.h"
#include "text/number_format.h"
#include "text/number_text.h"

namespace tolmar::devcheck {

namespace {

const char* pick(int langue, const char* fr, const char* en) { return langue == 0 ? fr : en; }

std::string radius(double r, int langue) {
  return r >= kStraightRadius ? pick(langue, "plat", "flat") : formatNumber(r, "0.00");
}

// Rounded to `picture` without a sign left on a zero.
std::string figure(double v, const char* picture) {
  std::string t = formatNumber(v, picture);
  if (t.size() > 1 && t[0] == '-' && t.find_first_not_of("-0.") == std::string::npos) t.erase(0, 1);
  return t;
}

// The exports' name of the plate, its kind in French where the name is a
// word: "pont 2", "tableau", "marotte".
std::string plateName(const PlateCheck& c, int langue) {
  if (langue != 0) return c.name;
  switch (c.kind) {
    case PlateKind::deck:
      return "pont" + hullNumberText(c.index);
    case PlateKind::transom:
      return "tableau";
    case PlateKind::pramBow:
      return "marotte";
    default:
      return c.name;
  }
}

std::string place(double r, double x) {
  return r >= kStraightRadius ? "" : formatNumber(x, "0.00");
}

}  // namespace

std::string checkTitle(int langue) {
  return pick(langue, "Contrôle du développement", "Development check");
}

std::vector<std::string> checkHeads(int langue) {
  if (langue == 0)
    return {"Plaque",   "Écart mm", "mm/m",         "Surface %", "R long m", "à X m",
            "R trav m", "à X m",    "Vrillage °/m", "Ép. mm",    "Verdict"};
  return {"Plate",      "Error mm", "mm/m",      "Area %",    "R along m", "at X m",
          "R across m", "at X m",   "Twist °/m", "Thick. mm", "Verdict"};
}

std::vector<std::string> checkCells(const PlateCheck& c, int langue) {
  std::string name = plateName(c, langue);
  if (c.withLap) name += pick(langue, " + clin", " + lap");
  std::string verdict = verdictText(c.verdict, langue);
  if (c.twisted) verdict += pick(langue, " ; non développable", "; not developable");
  std::string thick = formatNumber(1000 * c.thickness, "0.0");
  if (c.thicknessAssumed) thick += "*";
  return {name,
          formatNumber(1000 * c.fit.maxError, "0.00"),
          formatNumber(c.fit.errorPerMetre(), "0.000"),
          figure(c.fit.areaChangePercent(), "0.0000"),
          radius(c.fit.minRadiusAlong, langue),
          place(c.fit.minRadiusAlong, c.alongX),
          radius(c.fit.minRadiusAcross, langue),
          place(c.fit.minRadiusAcross, c.acrossX),
          formatNumber(c.twistDegreesPerMetre(), "0.0"),
          thick,
          verdict};
}

std::vector<std::string> checkNotes(const CheckReport& r, const CheckOptions& o, int langue) {
  std::vector<std::string> lines;
  const std::string f = formatNumber(r.factor, "0.00");
  lines.push_back(pick(langue, "Rayons minimaux du tableau multipliés par ",
                       "Minimum radii of the table times ") +
                  f +
                  pick(langue, " (fil des faces dans la longueur des plaques).",
                       " (face grain along the plates)."));
  lines.push_back(std::string(pick(langue, "* épaisseur non donnée : ", "* no thickness given: ")) +
                  formatNumber(1000 * o.assumedThickness, "0.0") +
                  pick(langue, " mm supposés.", " mm assumed."));
  lines.push_back(pick(langue,
                       "Rayons de cintrage à sec du contreplaqué : APA, Technical Topics TT-003A.",
                       "Dry bending radii of plywood: APA, Technical Topics TT-003A."));
  return lines;
}

std::int32_t verdictColour(Verdict v) {
  switch (v) {
    case Verdict::fits:
      return rgb(0, 140, 0);
    case Verdict::tight:
      // Dark enough to read as text on white, as the other two are.
      return rgb(190, 95, 0);
    case Verdict::willNotBend:
      return rgb(210, 0, 0);
  }
  return 0;
}

}  // namespace tolmar::devcheck

#include "analysis/mass_screen.h"

#include <algorithm>

#include "analysis/calc_section.h"
#include "analysis/field_read.h"
#include "analysis/mass_budget.h"
#include "text/number_format.h"
#include "text/number_reader.h"

namespace tolmar::analysis {

namespace {

constexpr const char* kBlank = " ";

struct RowCaption {
  int row;
  const char* french;
  const char* english;
};

constexpr RowCaption kRowCaptions[] = {
    {1, "Fond", "Bottom"},
    {2, "Premier bordé", "First side plank"},
    {3, "Deuxième bordé", "Second side plank"},
    {4, "Autres bordés", "Other side planks"},
    {5, "Tableau arrière", "Transom plate"},
    {6, "Marotte", "Pram bow plate"},
    {7, "Cloison 1", "Bulkhead 1"},
    {8, "Cloison 2", "Bulkhead 2"},
    {21, "Plancher 1", "Floor 1"},
    {22, "Plancher 2", "Floor 2"},
    {23, "Pont", "Deck"},
    {24, "Pont-1 ", "Deck-1"},
    {13, "Moteur", "Engine"},
    {14, "Lest", "Ballast"},
    {15, "Passagers", "Passengers"},
    {16, "Materiel 1", "Equipment 1"},
    {17, "Materiel 2", "Equipment 2"},
    {18, "Matériel 3", "Equipment 3"},
};

// Rows whose masses and centres make the totals: plates, then equipment.
constexpr int kPlateRows[] = {1, 2, 3, 4, 5, 6, 7, 8, 21, 22, 23, 24};
constexpr int kEquipRows[] = {13, 14, 15, 16, 17, 18};

std::string density(double v) { return formatNumber(v, "0.0"); }
std::string value(double v) { return formatNumber(v, "0.000"); }

// A displayed number; a blank or a text that is no number counts as 0.
double shown(const Field& f) { return readNumber(f.text); }

void showRow(Mass1& s, int r, double area, double mass, double x) {
  s.Text2(r).text = value(area);
  s.Text3(r).text = value(mass);
  s.Text4(r).text = value(x);
}

void blankRow(Mass1& s, int r) {
  s.Text2(r).text = kBlank;
  s.Text3(r).text = kBlank;
  s.Text4(r).text = kBlank;
}

double limited(double v, double lo, double hi) { return v > hi ? hi : v < lo ? lo : v; }

}  // namespace

Mass1::Mass1() {
  for (int r = 0; r <= kLastMassRow; ++r)
    Text1(r).visible = Text2(r).visible = Text3(r).visible = Text4(r).visible = false;
  auto box = [](Field& f, std::int32_t colour) {
    f.visible = true;
    f.backColor = colour;
  };
  for (int r : kPlateRows) {
    box(Text1(r), kInputGreen);
    box(Text2(r), kResultPink);
    box(Text3(r), kResultPink);
    box(Text4(r), r == 7 || r == 8 ? kInputGreen : kResultPink);
  }
  for (int r : kEquipRows) {
    box(Text3(r), kInputGreen);
    box(Text4(r), kInputGreen);
  }
  box(Text2(0), kResultPink);
  box(Text3(0), kResultPink);
  box(Text4(0), kResultPink);
}

void setMassTexts(Mass1& s, const HullStore& h) {
  const bool fr = h.langue != 1;
  s.title.caption = fr ? "  Budget de masse" : "  Mass budget";
  s.Calcul1.caption = fr ? "Calculer" : "Compute";
  s.Frame1.caption = fr ? "Fond et bordés" : "Bottom and sides planks";
  s.Frame2.caption = "Stations";
  s.Frame3.caption = fr ? "Planchers et ponts" : "Floors and decks";
  s.Frame4.caption = fr ? "Equipements" : "Equipment";
  for (const auto& c : kRowCaptions) s.Label3(c.row).caption = fr ? c.french : c.english;
  s.Label1.caption = fr ? "Entrez les données uniquement dans les cases vertes.\n"
                          "Les cases roses sont réservées aux résultats de calcul.\n"
                          "(Une densité de panneau de 10 kg/m2 correspond à 12mm de contreplaqué)"
                        : "Enter data only in the green boxes.\n"
                          "Pink boxes are reserved for computation results.\n"
                          "(Panel density of 10 kg/m2 correspond to 12mm plywood)";
  s.Label2(1).caption = fr ? "Densité des panneaux (kg/m2)" : "Panels density (kg/m2)";
  s.Label2(2).caption = fr ? "Surface\n(m2)" : "Area\n(m2)";
  s.Label2(3).caption = fr ? "Masse\n(kg)" : "Mass\n(kg)";
  s.Label2(4).caption = fr ? "Centre de\nmasse X (m)" : "Centre of\nmass X (m)";
}

void loadMass(Mass1& s, const HullStore& h) { setMassRows(s, h); }

void setMassRows(Mass1& s, const HullStore& h) {
  if (h.nChines >= 4) {
    s.nFloors = 2;
    s.nDecks = 2;
  } else if (h.nChines == 3) {
    s.nFloors = 2;
    s.nDecks = 1;
    blankRow(s, 4);
    blankRow(s, 24);
  } else {
    s.nFloors = 1;
    s.nDecks = 1;
    for (int r : {3, 4, 22, 24}) blankRow(s, r);
  }
}

void readMassInputs(Mass1& s, HullStore& h) {
  h.totalMass = readField(s.Text3(0).text);
  h.xMass = readField(s.Text4(0).text);
  for (int r = 1; r <= 4; ++r) h.panelDensity(r) = std::max(readField(s.Text1(r).text), 1.0);
  for (int r = 5; r <= 8; ++r) h.panelDensity(r) = std::max(readField(s.Text1(r).text), 0.0);
  const double length = h.xFwd(1);
  for (int j = 1; j <= 2; ++j) {
    h.floorDensity(j) = std::max(readField(s.Text1(20 + j).text), 0.0);
    h.deckDensity(j) = std::max(readField(s.Text1(22 + j).text), 0.0);
    h.bulkX(j) = limited(readField(s.Text4(6 + j).text), 0, length);
  }
  for (int j = 1; j <= 6; ++j) {
    h.equipMass(j) = readField(s.Text3(12 + j).text);
    h.equipX(j) = limited(readField(s.Text4(12 + j).text), 0, length);
  }
}

void calcPlankRows(Mass1& s, HullStore& h) {
  calcPlanks(h);
  double area = 0, mass = 0, moment = 0;
  for (int n = 0; n <= lastLine(h) - 1; ++n) {
    if (n <= 2) {
      showRow(s, n + 1, h.plankArea(n), h.plankMass(n), h.plankX(n));
    } else {
      area += h.plankArea(n);
      mass += h.plankMass(n);
      moment += h.plankMass(n) * h.plankX(n);
    }
  }
  // The other rows guard with 0.0000001; this one has always used 0.000001.
  showRow(s, 4, area, mass, moment / (mass + 0.000001));
}

void calcFloorRows(Mass1& s, HullStore& h) {
  calcFloors(h, s.nFloors);
  for (int k = 1; k <= s.nFloors; ++k)
    showRow(s, 20 + k, h.floorArea(k), h.floorMass(k), h.floorX(k));
}

void calcDeckRows(Mass1& s, HullStore& h) {
  calcDecks(h, s.nDecks);
  for (int k = 1; k <= s.nDecks; ++k) showRow(s, 22 + k, h.deckArea(k), h.deckMass(k), h.deckX(k));
}

void calcTransomRow(Mass1& s, HullStore& h) {
  calcTransom(h);
  showRow(s, 5, h.transomArea, h.transomMass, h.transomX);
}

void calcBowRow(Mass1& s, HullStore& h) {
  calcBow(h);
  showRow(s, 6, h.bowArea, h.bowMass, h.bowX);
}

void calcBulkheadRows(Mass1& s, HullStore& h) {
  for (int j = 1; j <= 2; ++j) {
    calcBulkhead(h, j, readField(s.Text4(6 + j).text));
    showRow(s, 6 + j, h.bulkArea(j), h.bulkMass(j), h.bulkX(j));
  }
}

void showMassRows(Mass1& s, const HullStore& h) {
  for (int r = 1; r <= 8; ++r) s.Text1(r).text = density(h.panelDensity(r));
  for (int j = 1; j <= 2; ++j) s.Text1(20 + j).text = density(h.floorDensity(j));
  for (int j = 1; j <= 2; ++j) s.Text1(22 + j).text = density(h.deckDensity(j));
  for (int r = 1; r <= s.nFloors + 1; ++r)
    showRow(s, r, h.plankArea(r - 1), h.plankMass(r - 1), h.plankX(r - 1));
  for (int k = 1; k <= s.nFloors; ++k)
    showRow(s, 20 + k, h.floorArea(k), h.floorMass(k), h.floorX(k));
  for (int k = 1; k <= s.nDecks; ++k) showRow(s, 22 + k, h.deckArea(k), h.deckMass(k), h.deckX(k));
  showRow(s, 5, h.transomArea, h.transomMass, h.transomX);
  showRow(s, 6, h.bowArea, h.bowMass, h.bowX);
  for (int j = 1; j <= 2; ++j) showRow(s, 6 + j, h.bulkArea(j), h.bulkMass(j), h.bulkX(j));
  for (int j = 1; j <= 6; ++j) {
    s.Text3(12 + j).text = value(h.equipMass(j));
    s.Text4(12 + j).text = value(h.equipX(j));
  }
}

void sumMassArea(Mass1& s) {
  double a = 0;
  for (int r : kPlateRows) a += shown(s.Text2(r));
  s.Text2(0).text = value(a);
}

void sumMass(Mass1& s, HullStore& h) {
  double m = 0;
  for (int r : kPlateRows) m += shown(s.Text3(r));
  for (int r : kEquipRows) m += shown(s.Text3(r));
  h.totalMass = m;
  s.Text3(0).text = value(m);
}

void calcCentreMass(Mass1& s, HullStore& h) {
  double S = 0, T = 0;
  auto add = [&](int r) {
    const double m = shown(s.Text3(r));
    S += m;
    T += m * shown(s.Text4(r));
  };
  for (int r : kPlateRows) add(r);
  for (int r : kEquipRows) add(r);
  h.xMass = S > 0 ? T / S : 0;
  s.Text4(0).text = value(h.xMass);
}

void calcMass(Mass1& s, HullStore& h) {
  setMassRows(s, h);
  readMassInputs(s, h);
  calcPlankRows(s, h);
  calcFloorRows(s, h);
  calcDeckRows(s, h);
  calcTransomRow(s, h);
  calcBowRow(s, h);
  calcBulkheadRows(s, h);
  showMassRows(s, h);
  sumMassArea(s);
  sumMass(s, h);
  calcCentreMass(s, h);
}

void massKeyPress(Mass1& s, HullStore& h, int key) {
  if (key == 13) calcMass(s, h);
}

void massFieldLeft(Mass1& s, HullStore& h) { calcMass(s, h); }

void massActivated(Mass1& s, HullStore& h) {
  for (int r : kPlateRows) {
    s.Text1(r).text = kBlank;
    blankRow(s, r);
  }
  setMassRows(s, h);
  showMassRows(s, h);
  setMassTexts(s, h);
  calcMass(s, h);
}

}  // namespace tolmar::analysis

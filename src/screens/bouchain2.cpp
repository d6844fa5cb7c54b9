#include "screens/bouchain2.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "screens/field_number.h"
#include "screens/geometry_backup.h"
#include "screens/plank_breadths.h"
#include "screens/upper_lines.h"
#include "screens/validation_log.h"
#include "text/number_reader.h"

namespace tolmar {

namespace {

constexpr int kRows = 5;

constexpr Caption kTitle{"  Bordés ", "  Planks "};
constexpr Caption kValider{"Valider", "Validation"};
constexpr Caption kTitre1{"Définition des bordés et hauteur de leurs bouchains supérieurs",
                          "Definition of side planks and height of their upper chines"};
constexpr Caption kLabel1[] = {
    {"Hauteur AR", "Height aft"},
    {"Hauteur au maitre couple", "Height at B max"},
    {"Hauteur AV", "Height fwd"},
    {"Inclinaison du bordé (deg/horizontal)", "Plank incl. (deg/horizontal)"},
    {"Livet", "Shear line"},
    {"Tableau rentrant", "Transom turn"},
    {"Marotte rentrante", "Bow turn"},
};
constexpr Caption kPlank{"Bordé", "Plank"};

void choose(ControlArray<0, 4>& group, int i) {
  for (int r = 0; r < kRows; ++r) group(r).value = r == i;
}

// The last active row, nChines - 2, within the screen's five rows.
int lastRow(const HullStore& h) { return std::clamp(h.nChines - 2, 0, kRows - 1); }

void clickTurn(ControlArray<0, 4>& group, LineI16& flags, const HullStore& h, int i) {
  i = std::min(std::clamp(i, 0, kRows - 1), lastRow(h));
  choose(group, i);
  flags(i + 2) = -1;
  for (int k = 1; k <= i + 1; ++k) flags(k) = 1;
}

// The row of the first line k = 2..nChines whose flag is below 1.
void chooseTurnRow(ControlArray<0, 4>& group, const LineI16& flags, const HullStore& h) {
  for (int k = 2; k <= h.nChines; ++k) {
    if (flags(k) < 1) {
      choose(group, k - 2);
      return;
    }
  }
}

// A whole number of degrees held to [lo, hi], tested before the conversion
// to 16 bits.
i16 inclination(ValidationLog& log, Field& f, double lo, double hi) {
  double a = roundHalfEven(std::abs(fieldValue(f)));
  const bool rep = a < lo || a > hi;
  if (a < lo) {
    a = lo;
  } else if (a > hi) {
    a = hi;
  }
  if (rep) {
    log.replaced(f, a);
  } else {
    ValidationLog::accept(f);
  }
  return static_cast<i16>(a);
}

// A height not below the line beneath: replaced values are written back.
double heightAbove(ValidationLog& log, Field& f, double floor) {
  bool over = false;
  double z = withinScale(fieldValue(f), over);
  const bool low = below(z, floor);
  if (low) z = floor;
  if (low || over) {
    log.replaced(f, z);
  } else {
    ValidationLog::accept(f);
  }
  return z;
}

}  // namespace

void Bouchain2::activate(HullStore& h) {
  const int l = h.langue;
  title.caption = kTitle.of(l);
  Valider.caption = kValider.of(l);
  titre1(0).caption = kTitre1.of(l);
  for (int i = 1; i <= 7; ++i) Label1(i).caption = kLabel1[i - 1].of(l);
  for (int i = 0; i < kRows; ++i)
    Label2(i).caption = std::string(kPlank.of(l)) + " " + std::to_string(i + 1);

  const int row = h.nChines >= 6 ? 4 : (h.nChines < 2 ? 0 : h.nChines - 2);
  clickOptShear(h, row);
  for (int i = 0; i <= row; ++i) {
    showNumber(Text1(i), h.zAft(i + 2));
    showNumber(Text2(i), h.zMax(i + 2));
    showNumber(Text3(i), h.zFwd(i + 2));
    showNumber(Text4(i), h.plankAngle(i + 1));
  }
  chooseTurnRow(OptMarotte, h.bowTurn, h);
  chooseTurnRow(OptTableau, h.transomTurn, h);
}

void Bouchain2::clickOptShear(HullStore& h, int i) {
  i = std::clamp(i, 0, kRows - 1);
  choose(OptShear, i);
  h.nChines = static_cast<i16>(i + 2);
  for (int r = 0; r < kRows; ++r) {
    for (Field* f : {&Text1(r), &Text2(r), &Text3(r), &Text4(r)}) f->enabled = r <= i;
  }
}

void Bouchain2::clickOptMarotte(HullStore& h, int i) { clickTurn(OptMarotte, h.bowTurn, h, i); }

void Bouchain2::clickOptTableau(HullStore& h, int i) { clickTurn(OptTableau, h.transomTurn, h, i); }

bool Bouchain2::validerPlanks(HullStore& h) {
  // Only an activation brings nChines into 2..6; a store changed since is
  // held there the same way.
  if (h.nChines < 2 || h.nChines > 6) clickOptShear(h, lastRow(h));
  ValidationLog log("bouchain2", replaced);
  const int top = h.nChines;
  for (int i = 0; i <= top - 2; ++i) {
    log.track(Text1(i), controlName("Text1", i));
    log.track(Text2(i), controlName("Text2", i));
    log.track(Text3(i), controlName("Text3", i));
    log.track(Text4(i), controlName("Text4", i));
    for (Field* f : {&Text1(i), &Text2(i), &Text3(i), &Text4(i)}) cleanField(*f);
  }

  // The lowest plank at least 5 degrees above the bottom and not beyond the
  // vertical; each plank above no flatter than the one below.
  h.plankAngle(1) = inclination(log, Text4(0), h.plankAngle(0) + 5, 90);
  for (int k = 2; k <= top - 1; ++k) {
    h.plankAngle(k) = inclination(log, Text4(k - 1), h.plankAngle(k - 1), 175);
  }

  for (int n = 2; n <= top; ++n) {
    h.xMax(n) = h.xMax(n - 1);
    h.zFwd(n) = heightAbove(log, Text3(n - 2), h.zFwd(n - 1));
    h.zMax(n) = heightAbove(log, Text2(n - 2), h.zMax(n - 1));
    h.zAft(n) = heightAbove(log, Text1(n - 2), h.zAft(n - 1));
    deriveYFwd(h, n);
    deriveYAft(h, n);
    deriveYMax(h, n);
  }
  if (!log.ok()) return false;

  const GeometryBackup backup(h);
  const int failed = buildUpperLinesChecked(h, {}, busy);
  if (failed != 0) {
    backup.restore(h);
    const int row = failed - 2;
    const std::string why = lineRefusal(failed);
    for (Field* f : {&Text1(row), &Text2(row), &Text3(row), &Text4(row)}) log.refused(*f, why);
    return false;
  }
  return true;
}

}  // namespace tolmar

#include "screens/bouchain1.h"

#include <cmath>
#include <cstdlib>
#include <utility>

#include "hull/geometrie.h"
#include "hull/line_generation.h"
#include "screens/bottom_derivation.h"
#include "screens/field_number.h"
#include "screens/geometry_backup.h"
#include "screens/validation_log.h"
#include "text/number_reader.h"

namespace tolmar {

namespace {

constexpr Caption kTitle{"  Fond ", "  Bottom "};
constexpr Caption kValider{"Valider", "Validation"};
constexpr Caption kTitre1[] = {
    {"Définition du fond et du premier bouchain dans les 3 dimensions X,Y,Z.",
     "Bottom and first chine definition in 3 dimensions X,Y,Z."},
    {"Définition des axes:  Origine=tableau,   X=longitudinal vers l'avant,   Y=transversal,  "
     "Z=vers le haut",
     "Axis definition :  Origin=transom,   X=longitudinal toward stem,   Y=transverse,  Z=upward"},
    {"Plan X-Y", "X-Y horizontal plane"},
    {"Plan X-Z", "X-Z vertical plane"},
};
constexpr Caption kLabel1[] = {
    {"Longeur tableau-étrave LWL=", "Length stern-stem LWL="},
    {"Position du maitre couple /AR=", "Position of max beam="},
    {"Demi largeur au maitre couple=", "Half max beam="},
    {"Demi largeur AV au brion=", "Half width forward="},
    {"Demi largeur AR au tableau=", "Half width afterward="},
    {"Puissance de X AV (2.1-4)=", "Power of X forward (2-4)="},
    {"Puissance de X AR (2.1-4)=", "Power of X aft (2-4)="},
};
constexpr Caption kLabel2[] = {
    {"Hauteur AV au brion=", "Height forward="},
    {"Hauteur AR au tableau=", "Height aft="},
    {"Forme S arrière=", "Aft S shape="},
    {"Angle fond (deg/horizontal)=", "Deadrise (deg/horizontal)="},
    {"Avance de quille (deg)=", "Keel advance angle (deg)="},
    {"Angle marotte (deg/vertical)=", "Stem incl. (deg/vertical)="},
    {"Angle tableau (deg/vertical)=", "Transom incl. (deg/vertical)="},
    {"Forme S avant=", "Forward S shape="},
};

// |text| or the signed text, held to the scale of any hull.
double magnitude(const Field& f, bool& over) { return withinScale(std::abs(fieldValue(f)), over); }
double signedValue(const Field& f, bool& over) { return withinScale(fieldValue(f), over); }

// A whole number of degrees within [lo, hi]; the test is made before the
// conversion to 16 bits, so any text gives a sound angle.
i16 angleWithin(double typed, double lo, double hi, bool& replaced) {
  double a = roundHalfEven(typed);
  replaced = a > hi || a < lo;
  if (a > hi) a = hi;
  if (a < lo) a = lo;
  return static_cast<i16>(a);
}

}  // namespace

void Bouchain1::activate(const HullStore& h) {
  const int l = h.langue;
  title.caption = kTitle.of(l);
  Valider.caption = kValider.of(l);
  for (int i = 0; i <= 3; ++i) titre1(i).caption = kTitre1[i].of(l);
  for (int i = 0; i <= 6; ++i) Label1(i).caption = kLabel1[i].of(l);
  for (int i = 0; i <= 7; ++i) Label2(i).caption = kLabel2[i].of(l);

  showNumber(Text1(0), h.xFwd(0));
  showNumber(Text1(1), h.xMax(1));
  showNumber(Text1(2), h.yMax(1));
  showNumber(Text1(3), h.yFwd(1));
  showNumber(Text1(4), h.yAft(1));
  showNumber(Text1(5), h.powerFwd);
  showNumber(Text1(6), h.powerAft);
  showNumber(Text2(0), h.zFwd(1));
  showNumber(Text2(1), h.zAft(1));
  showNumber(Text2(2), h.shapeAft);
  showNumber(Text2(3), h.plankAngle(0));
  showNumber(Text2(4), h.keelAdvance);
  showNumber(Text2(5), std::abs(h.bowAngle));
  showNumber(Text2(6), std::abs(h.transomAngle));
  showNumber(Text2(7), h.shapeFwd);
  text1Changed();
}

void Bouchain1::typeText1(int i, std::string text) {
  Text1(i).text = std::move(text);
  text1Changed();
}

void Bouchain1::text1Changed() { Text2(5).enabled = fieldValue(Text1(3)) != 0; }

bool Bouchain1::validerBottom(HullStore& h) {
  beeped = false;
  ValidationLog log("bouchain1", replaced);
  for (int i = 0; i <= 6; ++i) {
    log.track(Text1(i), controlName("Text1", i));
    cleanField(Text1(i));
  }
  for (int i = 0; i <= 7; ++i) {
    log.track(Text2(i), controlName("Text2", i));
    cleanField(Text2(i));
  }
  text1Changed();
  bool over = false;

  // Length: strictly above 0.1, a refusal marked in orange with a beep.
  double len = magnitude(Text1(0), over);
  if (!(len > 0.1)) {
    len = 0.1;
    beeped = true;
    log.settle(Text1(0), len, true, kOrange);
  } else {
    log.settle(Text1(0), len, over);
  }
  h.xFwd(0) = len;
  h.xAft(0) = 0;
  h.xFwd(1) = h.xFwd(0);
  h.xAft(1) = h.xAft(0);

  // Maximum beam, moved down onto the last station not above it.
  const double typedXm = std::abs(fieldValue(Text1(1)));
  double xm = typedXm;
  bool rep = true;
  if (above(xm, 0.7 * len)) {
    xm = 0.7 * len;
  } else if (below(xm, 0.2 * len)) {
    xm = 0.2 * len;
  } else {
    rep = false;
  }
  for (int k = 5; k <= 77; ++k) {
    if (!above((k - 1) * len / 80, xm)) h.iMaxBeam = static_cast<i16>(k);
  }
  h.xMax(1) = (h.iMaxBeam - 1) * len / 80;
  if (!rep && plainText(h.xMax(1)) != plainText(typedXm)) log.changed(Text1(1), h.xMax(1));
  log.settle(Text1(1), h.xMax(1), rep);

  double v = magnitude(Text1(2), over);
  rep = below(v, 0.01 * h.xFwd(1)) || above(v, 0.5 * h.xFwd(1));
  if (below(v, 0.01 * h.xFwd(1))) v = 0.01 * h.xFwd(1);
  if (above(v, 0.5 * h.xFwd(1))) v = 0.5 * h.xFwd(1);
  h.yMax(1) = v;
  log.settle(Text1(2), v, rep);

  // The keel at the maximum beam, from the angles held before this
  // validation: their fields are read further down.
  h.zMax(1) = 0;
  h.xMax(0) = h.xMax(1) + tanDeg(h.keelAdvance) * h.yMax(1);
  h.yMax(0) = 0;
  h.zMax(0) = h.zMax(1) - tanDeg(h.plankAngle(0)) * h.yMax(1);

  // The test uses 0.991, the replacement 0.99.
  v = magnitude(Text1(3), over);
  rep = above(v, 0.991 * h.yMax(1));
  if (rep) v = 0.99 * h.yMax(1);
  h.yFwd(1) = v;
  log.settle(Text1(3), v, rep);
  text1Changed();

  v = signedValue(Text2(0), over);
  rep = over || below(v, 0);
  if (below(v, 0)) v = 0;
  h.zFwd(1) = v;
  log.settle(Text2(0), v, rep);

  v = magnitude(Text1(4), over);
  rep = above(v, h.yMax(1));
  if (rep) v = h.yMax(1);
  h.yAft(1) = v;
  log.settle(Text1(4), v, rep);

  v = signedValue(Text2(1), over);
  rep = over || below(v, -h.zFwd(1));
  if (below(v, -h.zFwd(1))) v = -h.zFwd(1);
  h.zAft(1) = v;
  log.settle(Text2(1), v, rep);

  for (int i = 5; i <= 6; ++i) {
    v = fieldValue(Text1(i));
    rep = below(v, 2.1) || above(v, 5);
    if (below(v, 2.1)) v = 2.1;
    if (above(v, 5)) v = 5;
    (i == 5 ? h.powerFwd : h.powerAft) = v;
    log.settle(Text1(i), v, rep);
  }

  // S shapes: no range, no colour, unless beyond the scale of any hull.
  for (int i : {2, 7}) {
    v = signedValue(Text2(i), over);
    (i == 2 ? h.shapeAft : h.shapeFwd) = v;
    if (over) {
      log.replaced(Text2(i), v);
    } else {
      ValidationLog::accept(Text2(i));
    }
  }

  h.plankAngle(0) = angleWithin(fieldValue(Text2(3)), -20, 45, rep);
  log.settle(Text2(3), h.plankAngle(0), rep);
  h.keelAdvance = angleWithin(std::abs(fieldValue(Text2(4))), 0, 70, rep);
  log.settle(Text2(4), h.keelAdvance, rep);
  h.bowAngle = angleWithin(std::abs(fieldValue(Text2(5))), 0, 60, rep);
  log.settle(Text2(5), h.bowAngle, rep);
  // Never positive: the transom always rakes aft.
  h.transomAngle = angleWithin(-std::abs(fieldValue(Text2(6))), -70, 0, rep);
  log.settle(Text2(6), h.transomAngle, rep);

  if (!log.ok()) return false;

  const GeometryBackup backup(h);
  deriveBottomHeights(h);
  fitFirstChinePlane(h);
  const i16 typedBow = h.bowAngle;
  fitFirstChineEnds(h);
  buildBottomLines(h);
  buildBottomEdges(h);

  if (!controlValuesFinite(h, 0) || !controlValuesFinite(h, 1) || !linePointsFinite(h, 0) ||
      !linePointsFinite(h, 1) || !bottomEdgesFinite(h)) {
    backup.restore(h);
    const std::string why =
        "the keel, the first chine or the bottom would lie beyond any hull's scale";
    for (int i = 0; i <= 4; ++i) log.refused(Text1(i), why);
    for (int i : {0, 1, 2, 7}) log.refused(Text2(i), why);
    return false;
  }
  // The chine that never meets its transom or stem plane: the fields that
  // shape that end turn orange, and the hull stays as it was.
  const ChineEndsSettled settled = chineEndsSettled(h);
  if (!settled.aft || !settled.fwd) {
    backup.restore(h);
    if (!settled.aft) {
      const std::string why = "the first chine never meets its transom plane";
      for (int i : {1, 2, 6}) log.refused(Text2(i), why);
      log.refused(Text1(6), why);
    }
    if (!settled.fwd) {
      const std::string why = "the first chine never meets its stem plane";
      for (int i : {0, 5, 7}) log.refused(Text2(i), why);
      log.refused(Text1(5), why);
    }
    return false;
  }
  if (h.bowAngle != typedBow) log.changed(Text2(5), h.bowAngle);
  return true;
}

}  // namespace tolmar

#include "screens/bouchain3.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "hull/angle_constants.h"
#include "screens/field_number.h"
#include "screens/geometry_backup.h"
#include "screens/plank_widths.h"
#include "screens/upper_lines.h"
#include "screens/validation_log.h"
#include "text/number_reader.h"

namespace tolmar {

namespace {

constexpr Caption kTitle{"Bordage automatique", "Automatic planking"};
constexpr Caption kExplanation{
    "Cet écran vous permez de disposer automatiquement de 2 à 20 bordés latéraux.\n"
    "Les bordés seront répartis uniformement entre le bouchain 1 et le livet.\n"
    "Attention: le temps de calcul augmente exponentiellement avec le nombre de bordés.",
    "This screen allows you to automatically place 2 to 20 side planks.\n"
    "The planks will be equispaced between the chine 1 and the sheer line.\n"
    "Warning: the computation time increases exponentially with the number of planks."};
constexpr Caption kLabel0{"Nombre de bordés latéraux (max 20) :",
                          "Number of side planks (max 20) :"};
constexpr Caption kLabel1{"Ïnclinaison du premier bordé (degrés/horizontal) :",
                          "Ïnclination of the first plank (degrees/horizontal) :"};
constexpr Caption kLabel2[] = {
    {"Ïnclinaison du dernier bordé (degrés/horizontal) :",
     "Ïnclinaison of the last plank  (degrées/horizontal) :"},
    {"Hauteur avant du livet :", "Forward height of sheer line :"},
    {"Hauteur milieu du livet :", "Middle height of sheer line :"},
    {"Hauteur arrière du livet :", "Aft height of sheer line :"},
};
constexpr Caption kLabel4{"Forme d'étrave :", "Stem shape :"};

constexpr std::int32_t kProgressColour = rgb(192, 255, 255);
constexpr std::int32_t kFittingColour = rgb(255, 255, 192);
constexpr std::int32_t kPointsColour = rgb(255, 192, 192);

// A number in a progress caption has a blank before it.
std::string spaced(int n) { return " " + std::to_string(n); }

}  // namespace

Bouchain3::Bouchain3() {
  Valider.caption = "Valider/end";
  Label3.foreColor = kProgressColour;
}

void Bouchain3::activate(const HullStore& h) {
  const int l = h.langue;
  title.caption = kTitle.of(l);
  Label0(0).caption = kExplanation.of(l);
  Label0(1).caption = kLabel0.of(l);
  Label1(0).caption = kLabel1.of(l);
  for (int i = 0; i <= 3; ++i) Label2(i).caption = kLabel2[i].of(l);
  Label4.caption = kLabel4.of(l);

  // A store whose count the screen cannot show (a file with 0 or 1 lines)
  // shows the nearest line that exists.
  const int top = std::clamp<int>(h.nChines, 1, kMaxLine);
  showNumber(Text0, h.nChines - 1);
  showNumber(Text1(0), h.plankAngle(1));
  showNumber(Text2(0), h.plankAngle(top - 1));
  showNumber(Text2(1), h.zFwd(top));
  showNumber(Text2(2), h.zMax(top));
  showNumber(Text2(3), h.zAft(top));
  showNumber(Text4, h.stemShape);
}

void Bouchain3::progress(const std::string& caption) {
  Label3.caption = caption;
  if (refresh) refresh();
}

bool Bouchain3::validerAuto(HullStore& h) {
  ValidationLog log("bouchain3", replaced);
  log.track(Text0, "Text0");
  log.track(Text1(0), "Text1(0)");
  for (int i = 0; i <= 3; ++i) log.track(Text2(i), controlName("Text2", i));
  log.track(Text4, "Text4");

  // Read as they stand, before any cleaning: "2,5" counts 2.
  double count = roundHalfEven(fieldValue(Text0) + 1);
  bool over = false;
  h.stemShape = withinScale(fieldValue(Text4), over);
  if (over) {
    log.replaced(Text4, h.stemShape);
  } else {
    ValidationLog::accept(Text4);
  }

  const bool countReplaced = count < 3 || count > 21;
  count = std::clamp(count, 3.0, 21.0);
  h.nChines = static_cast<i16>(count);
  log.settle(Text0, h.nChines - 1, countReplaced);

  // Only a hull of three or four lines keeps its turn-in flags.
  if (h.nChines > 4) {
    for (int k = 1; k <= h.nChines; ++k) {
      h.bowTurn(k) = 1;
      h.transomTurn(k) = 1;
    }
  }
  calcPlankStep(h, log);
  for (int k = 2; k <= h.nChines; ++k) h.xMax(k) = h.xMax(1);
  for (int k = 2; k <= h.nChines; ++k) {
    h.plankAngle(k) = static_cast<i16>(h.plankAngle(k - 1) + angleStep);
  }

  // The sheer line at least a tenth of the half beam above the first chine.
  const double m = 0.1 * h.yMax(1);
  int i = 1;
  for (LineArr* z : {&h.zFwd, &h.zMax, &h.zAft}) {
    Field& f = Text2(i++);
    double v = withinScale(fieldValue(f), over);
    const bool low = below(v, (*z)(1) + m);
    if (low) v = (*z)(1) + m;
    (*z)(h.nChines) = v;
    log.settle(f, v, low || over);
  }
  autoOk = log.ok();
  if (!autoOk) return false;

  const GeometryBackup backup(h);
  if (!positionLines(h)) {
    backup.restore(h);
    log.refused(Text4);
    autoOk = false;
    progress("");
    return false;
  }
  const int top = h.nChines;
  const int failed = buildUpperLinesChecked(
      h,
      [this, top](int line, LineStage stage) {
        const bool fitting = stage == LineStage::plane;
        Label3.foreColor = fitting ? kFittingColour : kPointsColour;
        progress((fitting ? "Computing line " : "Computing points of line ") + spaced(line) +
                 "  of " + spaced(top));
      },
      busy);
  if (failed != 0) {
    // A line that cannot be built, or that lies beyond any hull's scale:
    // the inclinations and the sheer heights that shape every line.
    backup.restore(h);
    const std::string why = lineRefusal(failed);
    log.refused(Text1(0), why);
    for (int k = 0; k <= 3; ++k) log.refused(Text2(k), why);
    autoOk = false;
    progress("");
    return false;
  }
  progress("");
  return true;
}

// The first and last inclinations on a grid of whole steps of at least 3
// degrees, the last at most 170.  Angles are held as doubles until they
// are in range, so any text gives a sound 16-bit angle.
void Bouchain3::calcPlankStep(HullStore& h, ValidationLog& log) {
  cleanField(Text0);
  cleanField(Text1(0));
  for (int i = 0; i <= 3; ++i) cleanField(Text2(i));

  const double typedFirst = roundHalfEven(std::abs(fieldValue(Text1(0))));
  double first = std::max(typedFirst, 5.0);
  const double lowest = h.plankAngle(0) + 4;
  bool rep = true;
  if (first < lowest) {
    first = lowest;
  } else if (first > 80) {
    first = 80;
  } else {
    rep = false;
  }
  h.plankAngle(1) = static_cast<i16>(first);
  if (!rep && first != typedFirst) log.changed(Text1(0), first);
  log.settle(Text1(0), first, rep);

  const int t = h.nChines - 1;
  const int d = h.nChines - 2;
  double last = roundHalfEven(std::abs(fieldValue(Text2(0))));
  double step = roundHalfEven((last - first) / d);
  rep = true;
  if (step < 3) {
    step = 3;
  } else if (last > 170) {
    step = std::floor((170 - first) / d);
  } else {
    rep = false;
  }
  last = d * step + first;
  h.plankAngle(t) = static_cast<i16>(last);
  log.settle(Text2(0), last, rep);
  angleStep = static_cast<i16>(roundHalfEven((last - first) / d));
}

// The control values of lines 2..nChines, each from the line below by the
// plank's width and inclination at the three stations.  False when a width
// is not finite (a stem shape so large that its powers overflow).
bool Bouchain3::positionLines(HullStore& h) {
  for (int l = 2; l <= h.nChines; ++l) {
    progress("Positioning chine " + spaced(l));
    const double a = h.plankAngle(l - 1) * kPi / 180;
    const i16 k = static_cast<i16>(l - 1);
    double w = plankW_FWD(h, k);
    h.zFwd(l) = h.zFwd(l - 1) + w * std::sin(a);
    h.yFwd(l) = h.yFwd(l - 1) + w * std::cos(a);
    w = plankW_MID(h, k);
    h.zMax(l) = h.zMax(l - 1) + w * std::sin(a);
    h.yMax(l) = h.yMax(l - 1) + w * std::cos(a);
    w = plankW_AFT(h, k);
    h.zAft(l) = h.zAft(l - 1) + w * std::sin(a);
    h.yAft(l) = h.yAft(l - 1) + w * std::cos(a);
    for (const LineArr* v : {&h.zFwd, &h.yFwd, &h.zMax, &h.yMax, &h.zAft, &h.yAft}) {
      if (!std::isfinite((*v)(l))) return false;
    }
  }
  return true;
}

}  // namespace tolmar

#include "screens/overlap1.h"

#include <cfloat>
#include <cmath>

#include "screens/field_number.h"
#include "text/number_text.h"

namespace tolmar {

namespace {

constexpr Caption kLabel1[] = {
    {"Epaisseur du fond", "Thickness of bottom"},
    {"Largeur de recouvrement bordé 1 - fond", "Width of first side plank overlap to bottom"}};
constexpr Caption kLabel2[] = {
    {"Epaisseur des bordés", "Thickness of side planks"},
    {"Largeur de recouvrement des autres bordés", "Width of other side planks overlap"}};
constexpr Caption kLabel3[] = {{"Epaisseur du tableau arrière", "Thickness of transom"},
                               {"Epaisseur de la marotte", "Thickness of bow plate"}};
constexpr Caption kCommand1[] = {
    {"Annuler", "Cancel"},
    {"Bordé franc/soudé\nmettre tout à 0", "Strip planking/welding\nreset all to 0"},
    {"Bordé à clin", "Lap strake"}};
constexpr Caption kNotice{
    "Cet écran permet d'entrer les épaisseurs des bordés\n"
    "ainsi que les largeurs de recouvrement pour un bordage à clins.\n"
    "Les fichiers DXF prendront en compte ces largeurs supplémetaires.\n"
    "Attention:\n"
    "Pour une construction soudée mettre toutes les valeurs à zéro.",
    "This screen allows to enter the thickness of planks \n"
    "as well as the width of the overlap for lap strake construction.\n"
    "The DXF files will include the corresponding additional material.\n"
    "Warning:\n"
    "For welded construction set all values to zero."};

constexpr double kFlatBevel = 0.001;  // radians: planks nearly in one plane need no lap

int lastLine(const HullStore& h) {
  return h.nChines < 0 ? 0 : (h.nChines > kMaxLine ? kMaxLine : h.nChines);
}

// The number of an advice line: the decimal form with a blank before a
// value that is not negative.
std::string adviceNumber(double v) { return hullNumberText(v); }

}  // namespace

Field& Overlap1::field(Group g, int index) {
  switch (g) {
    case Group::text1:
      return Text1(index);
    case Group::text2:
      return Text2(index);
    case Group::text3:
      break;
  }
  return Text3(index);
}

void Overlap1::load() {
  for (int i = 0; i <= 1; ++i) Text1(i).text = Text2(i).text = "0";
  Text3(1).text = Text3(2).text = "0";
  Label0.caption.clear();
  Label8(0).caption.clear();
  Label8(1).caption.clear();
  visible = false;
}

void Overlap1::activate(HullStore& h) {
  langue_ = h.langue;
  title.caption = "Overlap";
  for (int i = 0; i <= 1; ++i) {
    Label1(i).caption = kLabel1[i].of(langue_);
    Label2(i).caption = kLabel2[i].of(langue_);
    Label3(i + 1).caption = kLabel3[i].of(langue_);
  }
  for (int i = 0; i <= 2; ++i) Command1(i).caption = kCommand1[i].of(langue_);
  for (int i = 0; i <= 5; ++i) Label9(i).caption = "mm";
  Label0.caption = kNotice.of(langue_);
  visible = true;
  ecrireData(h);
}

void Overlap1::ecrireData(HullStore& h) {
  // All four texts first, then their change events: an event reads every
  // field into the store, and must not meet a field still showing the last
  // opening's value.
  struct Write {
    Group g;
    int index;
    double mm;
  };
  const Write writes[] = {{Group::text1, 0, h.plankThick(0) * 1000},
                          {Group::text2, 0, h.plankThick(1) * 1000},
                          {Group::text3, 1, h.transomThick * 1000},
                          {Group::text3, 2, h.bowThick * 1000}};
  bool changedText[4] = {};
  for (int k = 0; k < 4; ++k) {
    Field& f = field(writes[k].g, writes[k].index);
    const std::string text = decimalText(writes[k].mm, 15);
    changedText[k] = f.text != text;
    f.text = text;
  }
  for (int k = 0; k < 4; ++k)
    if (changedText[k]) changed(h, writes[k].g, writes[k].index, nullptr);
}

void Overlap1::setText(HullStore& h, Group g, int index, const std::string& text) {
  Field& f = field(g, index);
  if (f.text == text) return;
  f.text = text;
  changed(h, g, index, nullptr);
}

void Overlap1::changed(HullStore& h, Group g, int index, const Field* keep) {
  lireData(h, keep);
  if (g == Group::text1) adviseBottom(h, index);
  if (g == Group::text2) adviseSide(h, index);
}

void Overlap1::typeText(HullStore& h, Group g, int index, const std::string& text) {
  Field& f = field(g, index);
  if (f.text == text) return;
  f.text = text;
  changed(h, g, index, &f);
}

void Overlap1::leaveField(HullStore& h, Group g, int index) { changed(h, g, index, nullptr); }

float Overlap1::readField(Field& f, const Field* keep) {
  Field copy = f;
  cleanField(copy);
  // Single precision, as the screen reads its numbers; held to the largest
  // float so that any text gives a finite value.
  const double a = std::fabs(fieldValue(copy));
  const float v = static_cast<float>(a > FLT_MAX ? FLT_MAX : a);
  // Rewritten quietly: the values are those just read, so the field's own
  // change event would only read them again.
  if (&f != keep) f.text = decimalText(v, 7);
  return v;
}

void Overlap1::lireData(HullStore& h, const Field* keep) {
  // Texts first, all six, so that the nested change events of the rewrites
  // see every field already clean.
  const float t0 = readField(Text1(0), keep);
  const float lapBottom = readField(Text1(1), keep);
  const float tSide = readField(Text2(0), keep);
  const float lapSide = readField(Text2(1), keep);
  const float tTransom = readField(Text3(1), keep);
  const float tBow = readField(Text3(2), keep);

  const int n = lastLine(h);
  h.plankThick(0) = static_cast<double>(t0) / 1000;
  overlapBottom = static_cast<double>(lapBottom) / 1000;
  for (int k = 1; k <= n - 1; ++k) h.plankThick(k) = static_cast<double>(tSide) / 1000;
  overlapSide = static_cast<double>(lapSide) / 1000;
  h.transomThick = static_cast<double>(tTransom) / 1000;
  h.bowThick = static_cast<double>(tBow) / 1000;

  for (int k = 1; k <= n; ++k) {
    calcBevel(h, k);
    calcOverlap(h, k);
  }
}

void Overlap1::calcBevel(HullStore& h, int n) {
  bevelMax(n) = 0;
  bevelMaxAt(n) = 0;
  bevelAtBmax(n) = 0;
  for (int p = 0; p <= kLastPoint; ++p) {
    const double angle = h.bevelAngle(n, p);
    // Not above the flat limit, or not a number: no lap.
    h.bevelWidth(n, p) = angle > kFlatBevel ? h.plankThick(n - 1) / std::sin(angle) : 0.0;
    if (!std::isfinite(h.bevelWidth(n, p))) h.bevelWidth(n, p) = 0;
    const auto w = static_cast<float>(h.bevelWidth(n, p));
    if (p == h.iMaxBeam) bevelAtBmax(n) = w;
    if (w > bevelMax(n)) {
      bevelMax(n) = w;
      bevelMaxAt(n) = static_cast<i16>(p);
    }
  }
}

void Overlap1::calcOverlap(HullStore& h, int n) {
  const double lap = n == 0 ? 0.0 : (n == 1 ? overlapBottom : overlapSide);
  for (int p = 0; p <= kLastPoint; ++p) h.overlapWidth(n, p) = lap;
}

void Overlap1::adviseBottom(const HullStore& h, int i) {
  if (i != 0) {
    Label8(0).caption.clear();
    return;
  }
  // Whole millimetres, rounded up unless within a tenth of the one below.
  const double atBmax = std::floor(static_cast<double>(1000 * bevelAtBmax(1)) + 0.9);
  const double atMax = std::floor(static_cast<double>(1000 * bevelMax(1)) + 0.9);
  const bool fr = langue_ != 1;
  Label8(0).caption = std::string(fr ? "Largeur de recouvrement proposée au point"
                                     : "Recommended width of overlap at point") +
                      adviceNumber(h.iMaxBeam) + " (Bmax):" + adviceNumber(atBmax) + "mm" + "\n" +
                      (fr ? "et au point" : "and at point") + adviceNumber(bevelMaxAt(1)) + " :" +
                      adviceNumber(atMax) + "mm";
}

void Overlap1::adviseSide(const HullStore& /*h*/, int i) {
  if (i != 0) {
    Label8(1).caption.clear();
    return;
  }
  Field copy = Text2(0);
  cleanField(copy);
  Label8(1).caption = std::string(langue_ != 1 ? "Largeur de recouvrement proposée "
                                               : "Recommended width of overlap ") +
                      adviceNumber(3 * fieldValue(copy)) + "mm ";
}

void Overlap1::clickCommand1(HullStore& h, int i) {
  if (i == 1) {
    setText(h, Group::text1, 0, "0");
    setText(h, Group::text1, 1, "0");
    setText(h, Group::text2, 0, "0");
    setText(h, Group::text2, 1, "0");
    setText(h, Group::text3, 1, "0");
    setText(h, Group::text3, 2, "0");
  }
  if (i != 0) lireData(h);
  h.overlapMode = static_cast<i16>(i == 0 ? 0 : (i == 1 ? 1 : 2));
  visible = false;
}

}  // namespace tolmar

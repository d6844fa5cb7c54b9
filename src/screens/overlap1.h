// The screen overlap1: the thicknesses of the plates and the lap widths,
// asked for just before the developed plates are written as DXF.  It fills
// plankThick, transomThick, bowThick, bevelWidth and overlapWidth, advises a
// lap width from the angle between the first side plank and the bottom, and
// leaves in overlapMode the construction chosen: 0 cancelled, 1 strip
// planking or welded (all set to 0), 2 lap strake.  The screen shows
// millimetres; the store holds metres.
#pragma once

#include "hull/hull_store.h"
#include "screens/control.h"

namespace tolmar {

class Overlap1 {
 public:
  enum class Group { text1, text2, text3 };

  Field title;
  ControlArray<0, 1> Text1, Label1;  // bottom: thickness, lap of the first side plank
  ControlArray<0, 1> Text2, Label2;  // side planks: thickness, lap
  ControlArray<1, 2> Text3, Label3;  // transom, pram bow: thickness
  ControlArray<0, 2> Command1;       // Cancel, strip planking / welded, lap strake
  ControlArray<0, 5> Label9;         // "mm" beside each field
  Field Label0;                      // the notice, five lines
  ControlArray<0, 1> Label8;         // advice lines
  bool visible = false;

  // Kept from one opening to the next: the laps live in the screen.
  double overlapBottom = 0;  // metres
  double overlapSide = 0;    // metres
  Arr<float, 0, kMaxLine> bevelMax;
  Arr<i16, 0, kMaxLine> bevelMaxAt;
  Arr<float, 0, kMaxLine> bevelAtBmax;

  void load();                  // all six fields "0", notice and advice empty
  void activate(HullStore& h);  // captions by langue, then ecrireData

  // The user typed into a field: the values go to the store at once, but
  // the text typed stays as it is until the field is left, so that a
  // decimal point typed last does not vanish.  The stored values are those
  // of reading on every change.
  void typeText(HullStore& h, Group g, int index, const std::string& text);
  void leaveField(HullStore& h, Group g, int index);  // rewrites the fields

  // Command1(i): 0 cancels (what the fields put in the store stays there),
  // 1 sets all six fields to 0, 2 keeps them; then the screen hides.
  void clickCommand1(HullStore& h, int i);

  // The four thickness fields from the store, in millimetres; then the
  // change event of each field whose text changed.
  void ecrireData(HullStore& h);
  // Reads the six fields (decimal commas allowed, sign dropped, single
  // precision) into the store, rewrites them unless `keep` is the field
  // being typed in, then bevels and laps of lines 1..nChines.
  void lireData(HullStore& h, const Field* keep = nullptr);
  void calcBevel(HullStore& h, int n);
  void calcOverlap(HullStore& h, int n);
  void adviseBottom(const HullStore& h, int i);
  void adviseSide(const HullStore& h, int i);

 private:
  Field& field(Group g, int index);
  // Writes a text into a field; a change fires the field's change event.
  void setText(HullStore& h, Group g, int index, const std::string& text);
  void changed(HullStore& h, Group g, int index, const Field* keep);
  float readField(Field& f, const Field* keep);

  int langue_ = 1;
};

}  // namespace tolmar

// The screen bouchain1: the bottom and the first chine from 15 numbers.
// Its validation clamps every number to its range in a fixed order, writes
// the store, derives the control values of lines 0 and 1 and rebuilds
// lines 0, 1 and the bottom edges.  A replaced value turns its field
// yellow (a length below the minimum orange, with a beep) and keeps the
// screen open until a validation changes nothing.
#pragma once

#include "hull/hull_store.h"
#include "screens/control.h"
#include "screens/replacement.h"

namespace tolmar {

class Bouchain1 {
 public:
  static constexpr int kHeight = 6500;  // twips, when first loaded
  static constexpr int kWidth = 8400;

  Field title;  // the screen's caption
  Field Valider;
  ControlArray<0, 3> titre1;
  ControlArray<0, 6> Text1, Label1;  // plan X-Y column
  ControlArray<0, 7> Text2, Label2;  // profile X-Z column

  bool beeped = false;    // the last validation sounded the beep
  Replacements replaced;  // of the last validation

  // Captions by langue, fields from the store; Text2(5) and Text2(6) show
  // absolute values.
  void activate(const HullStore& h);

  // The user typed into Text1(i): the text changes and so does the
  // enabling of the stem inclination.
  void typeText1(int i, std::string text);

  // Text2(5) is enabled unless the number in Text1(3) is exactly 0: a
  // pointed stem has no pram bow to incline.
  void text1Changed();

  // Valider, and likewise the deactivation of the screen.  True when every
  // number was accepted and lines 0 and 1 were rebuilt: the screen closes.
  bool validerBottom(HullStore& h);
  bool deactivate(HullStore& h) { return validerBottom(h); }
};

}  // namespace tolmar

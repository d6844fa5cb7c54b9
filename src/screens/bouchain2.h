// The screen bouchain2: up to five side planks by hand.  Row i (0..4)
// stands for plank i + 1, whose upper line is line i + 2; the rows up to
// nChines - 2 are active.  Its validation clamps inclinations and heights
// against the plank and line below, derives the half breadths and rebuilds
// lines 2..nChines with their bevels.
#pragma once

#include "hull/hull_store.h"
#include "hull/line_generation.h"
#include "screens/control.h"
#include "screens/replacement.h"

namespace tolmar {

class Bouchain2 {
 public:
  static constexpr int kHeight = 7000;  // twips, when first loaded
  static constexpr int kWidth = 10000;

  Field title;
  Field Valider;
  ControlArray<0, 0> titre1;
  ControlArray<1, 7> Label1;  // column headings
  ControlArray<0, 4> Label2;  // "Bordé 1" .. "Bordé 5"
  ControlArray<0, 4> Text1;   // zAft(i + 2)
  ControlArray<0, 4> Text2;   // zMax(i + 2)
  ControlArray<0, 4> Text3;   // zFwd(i + 2)
  ControlArray<0, 4> Text4;   // plankAngle(i + 1), whole degrees
  ControlArray<0, 4> OptShear, OptTableau, OptMarotte;
  Field Frame1, tableau, marotte;  // the frames of the three groups

  Replacements replaced;  // of the last validation
  BusyStep busy;          // the turning pointer while lines are built; may be empty

  // Loaded: the twenty fields empty, no option chosen yet.
  Bouchain2() = default;

  // Captions by langue; OptShear from nChines (which comes back as 2..6);
  // the active rows from the store; the turn-in rows from the first line
  // k = 2..nChines whose flag is below 1, or as they were if there is none.
  void activate(HullStore& h);

  // The row's upper line becomes the sheer line: nChines = i + 2, rows
  // 0..i enabled, the others disabled.  Inactive rows keep their texts.
  void clickOptShear(HullStore& h, int i);

  // The plank above row i's upper line turns in at the bow: bowTurn(i + 2)
  // = -1 and bowTurn(1..i + 1) = 1.  A row beyond the last plank stands for
  // the last plank's row.
  void clickOptMarotte(HullStore& h, int i);
  void clickOptTableau(HullStore& h, int i);  // the same with transomTurn

  // Valider, and likewise the deactivation.  True when every number was
  // accepted and lines 2..nChines were built: the screen closes.
  bool validerPlanks(HullStore& h);
  bool deactivate(HullStore& h) { return validerPlanks(h); }
};

}  // namespace tolmar

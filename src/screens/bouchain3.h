// The screen bouchain3: 2 to 20 side planks laid out automatically from
// seven numbers.  The inclination steps evenly by whole degrees from the
// first plank to the last; the plank widths follow a power law whose
// vertical rises add up to the sheer height at each control station.  The
// only way to a hull of more than six lines.
#pragma once

#include <functional>

#include "hull/hull_store.h"
#include "hull/line_generation.h"
#include "screens/control.h"
#include "screens/replacement.h"

namespace tolmar {

class ValidationLog;

class Bouchain3 {
 public:
  Field title;
  Field Valider;                     // "Valider/end" in both languages
  ControlArray<0, 1> Label0;         // (0) the three lines of explanation, (1) Text0's label
  Field Text0;                       // number of side planks, nChines - 1
  ControlArray<0, 0> Text1, Label1;  // first plank's inclination
  ControlArray<0, 3> Text2, Label2;  // last plank's inclination; sheer heights fwd, mid, aft
  Field Text4, Label4;               // stem shape
  Field Label3;                      // the progress line

  i16 angleStep = 0;      // whole degrees between neighbouring planks
  bool autoOk = true;     // the last validation accepted every number
  Replacements replaced;  // of the last validation

  // The screen repaints its progress line (Label3) between the steps of a
  // long validation; either may be empty.
  std::function<void()> refresh;
  BusyStep busy;

  Bouchain3();

  // Captions by langue and the fields from the store.
  void activate(const HullStore& h);

  // Valider.  True when every number was accepted and the lines were
  // built: the screen closes.
  bool validerAuto(HullStore& h);

 private:
  void calcPlankStep(HullStore& h, ValidationLog& log);
  bool positionLines(HullStore& h);
  void progress(const std::string& caption);
};

}  // namespace tolmar

// The default hull as the user gets it: the bottom screen and the planks
// screen shown and validated as they stand.
#pragma once

#include <memory>

#include "hull/default_hull.h"
#include "hull/hull_store.h"
#include "screens/bouchain1.h"
#include "screens/bouchain2.h"

namespace tolmar::shapes {

inline std::unique_ptr<HullStore> validatedDefaultHull() {
  auto h = std::make_unique<HullStore>();
  initDefaultHull(*h);
  h->langue = 1;
  Bouchain1 bottom;
  bottom.activate(*h);
  bottom.validerBottom(*h);
  Bouchain2 planks;
  planks.activate(*h);
  planks.validerPlanks(*h);
  return h;
}

}  // namespace tolmar::shapes

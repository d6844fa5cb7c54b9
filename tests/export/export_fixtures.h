// The hulls the export tests and benchmarks write: the default hull taken
// through the two hull screens as a user pressing Create, Valider and the
// planks screen's validation would, then redrawn (stations).
#pragma once

#include "hull/default_hull.h"
#include "hull/hull_store.h"
#include "hull/stations.h"
#include "screens/bouchain1.h"
#include "screens/bouchain2.h"

namespace tolmar::test {

// pramBow: a first chine 0.3 m wide at the forward end instead of the
// pointed stem.  `validated` tells whether both screens accepted the hull.
inline HullStore defaultHull(int language = 1, bool pramBow = false, bool* validated = nullptr) {
  HullStore h;
  newHullStore(h);
  h.langue = static_cast<i16>(language);
  if (pramBow) h.yFwd(1) = 0.3;
  Bouchain1 b1;
  b1.activate(h);
  bool ok1 = false;
  for (int pass = 0; pass < 5 && !ok1; ++pass) ok1 = b1.validerBottom(h);
  Bouchain2 b2;
  b2.activate(h);
  bool ok2 = false;
  for (int pass = 0; pass < 5 && !ok2; ++pass) ok2 = b2.validerPlanks(h);
  if (validated != nullptr) *validated = ok1 && ok2;
  buildAllStations(h);
  return h;
}

}  // namespace tolmar::test

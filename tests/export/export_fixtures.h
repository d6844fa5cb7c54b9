// The hulls the export tests write: the default hull taken through the two
// hull screens as a user pressing Create, Valider and the planks screen's
// validation would, then redrawn (stations).  And a hull of 21 lines.
#pragma once

#include <gtest/gtest.h>

#include "hull/default_hull.h"
#include "hull/hull_store.h"
#include "hull/stations.h"
#include "screens/bouchain1.h"
#include "screens/bouchain2.h"

namespace tolmar::test {

// pramBow: a first chine 0.3 m wide at the forward end instead of the
// pointed stem.
inline HullStore defaultHull(int language = 1, bool pramBow = false) {
  HullStore h;
  newHullStore(h);
  h.langue = static_cast<i16>(language);
  if (pramBow) h.yFwd(1) = 0.3;
  Bouchain1 b1;
  b1.activate(h);
  bool ok = false;
  for (int pass = 0; pass < 5 && !ok; ++pass) ok = b1.validerBottom(h);
  EXPECT_TRUE(ok) << "the default bottom does not validate";
  Bouchain2 b2;
  b2.activate(h);
  ok = false;
  for (int pass = 0; pass < 5 && !ok; ++pass) ok = b2.validerPlanks(h);
  EXPECT_TRUE(ok) << "the default planks do not validate";
  buildAllStations(h);
  return h;
}

}  // namespace tolmar::test

// The test hulls are what the plate tests take them for.
#include <gtest/gtest.h>

#include "hull_fixture.h"

namespace tolmar {
namespace {

TEST(Fixture, HullsHaveTheirLinesAndBows) {
  auto d = fixture::defaultHull();
  EXPECT_EQ(d->nChines, 5);
  EXPECT_EQ(d->iMaxBeam, 41);
  EXPECT_EQ(d->lineY(1, 82), 0.0);  // pointed stem
  auto p = fixture::pramBowHull();
  EXPECT_EQ(p->nChines, 4);
  EXPECT_GT(p->lineY(1, 82), 0.2);
  auto m = fixture::manyLineHull();
  EXPECT_EQ(m->nChines, 21);
  EXPECT_EQ(m->plankAngle(20), 102);
}

}  // namespace
}  // namespace tolmar

// The test hulls are what they claim: the documented values of a validated
// default hull, a pram bow, 21 lines.
#include <gtest/gtest.h>

#include "hull_fixture.h"

namespace tolmar {
namespace {

TEST(Fixture, DefaultHullAfterTheBottomScreen) {
  auto h = fixture::defaultHull();
  EXPECT_EQ(h->iMaxBeam, 41);
  EXPECT_DOUBLE_EQ(h->xMax(1), 3.0);
  EXPECT_EQ(h->xFwd(1), 6.0);
  EXPECT_NEAR(h->xAft(1), -0.071208, 5e-7);
  EXPECT_NEAR(h->zMax(0), -0.201929, 5e-7);
}

TEST(Fixture, PramBowAndManyLines) {
  auto p = fixture::pramBowHull();
  EXPECT_EQ(p->nChines, 4);
  EXPECT_GT(p->lineY(1, 82), 0.2);
  auto m = fixture::manyLineHull();
  EXPECT_EQ(m->nChines, 21);
  EXPECT_EQ(m->plankAngle(20), 102);
  EXPECT_NEAR(m->zAft(21), 1.1, 1e-12);
  EXPECT_NEAR(m->zFwd(21), 1.25, 1e-12);
}

}  // namespace
}  // namespace tolmar

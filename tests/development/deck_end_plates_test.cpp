// Decks and the two end plates on the default hull and on a pram-bow hull
// with four lines, and on made-up lines and sections for their edge cases.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "development/deck_develop.h"
#include "development/end_plates.h"
#include "hull_fixture.h"

namespace tolmar {
namespace {

double arcStep(const HullStore& h, int k, int i, int j) {
  if (h.lineX(k, i) == h.lineX(k, j)) return 0;
  return std::hypot(h.lineX(k, j) - h.lineX(k, i), h.lineZ(k, j) - h.lineZ(k, i));
}

void expectDecks(HullStore& h) {
  for (int k = 1; k <= h.nChines; ++k) {
    SCOPED_TRACE("deck " + std::to_string(k));
    developDeck(h, k);
    double minX = 1e300, arc = 0;
    for (int i = 0; i <= 82; ++i) {
      EXPECT_EQ(h.devYi(i), 0.0);
      EXPECT_EQ(h.devXs(i), h.devXi(i));
      EXPECT_EQ(h.devYs(i), h.lineY(k, i));
      minX = std::min(minX, h.devXi(i));
      if (i > 0) {
        EXPECT_NEAR(h.devXi(i) - h.devXi(i - 1), arcStep(h, k, i - 1, i), 1e-12) << i;
        arc += arcStep(h, k, i - 1, i);
      }
    }
    EXPECT_EQ(minX, 0.0);
    EXPECT_EQ(h.devXi(0), 0.0);  // the aft end
    EXPECT_NEAR(h.devXi(82), arc, 1e-9);
  }
}

void expectEndPlate(const HullStore& h, const EndPlate& plate, int s) {
  EXPECT_EQ(plate(1, 0), 0.0);
  EXPECT_EQ(plate(2, 0), 0.0);
  for (int j = 1; j <= h.nChines + 9; ++j) {
    const double slope = std::hypot(h.stationZ(s, j) - h.stationZ(s, j - 1),
                                    h.stationX(s, j) - h.stationX(s, j - 1));
    EXPECT_NEAR(plate(1, j) - plate(1, j - 1), slope, 1e-12) << j;
    EXPECT_GE(plate(1, j), plate(1, j - 1));
    EXPECT_EQ(plate(2, j), h.stationY(s, j));
  }
}

TEST(DecksAndEndPlates, DefaultHull) {
  auto h = fixture::defaultHull();
  expectDecks(*h);
  EXPECT_FALSE(hasPramBow(*h));
  calcTransomPlate(*h);
  SCOPED_TRACE("transom");
  expectEndPlate(*h, h->transomPlate, 0);
  // The sheer line is the widest point of the transom, well up the panel.
  EXPECT_GT(h->transomPlate(1, 14), 1.0);
  EXPECT_GT(h->transomPlate(2, 14), h->transomPlate(2, 10));
}

TEST(DecksAndEndPlates, PramBowWithFourLines) {
  auto h = fixture::pramBowHull();
  ASSERT_EQ(h->nChines, 4);
  expectDecks(*h);
  ASSERT_TRUE(hasPramBow(*h));
  calcTransomPlate(*h);
  calcBowPlate(*h);
  {
    SCOPED_TRACE("transom");
    expectEndPlate(*h, h->transomPlate, 0);
  }
  {
    SCOPED_TRACE("bow");
    expectEndPlate(*h, h->bowPlate, 82);
  }
  EXPECT_GT(h->bowPlate(2, 10), 0.2);  // the bow is as wide as the chine there
  EXPECT_GT(h->bowPlate(1, 13), h->bowPlate(1, 10));
}

TEST(EndPlates, RepeatedSectionPointAddsNothingAndStaleColumnsStay) {
  HullStore h;
  h.nChines = 3;
  for (int j = 0; j <= 35; ++j) {
    h.stationX(0, j) = -0.01 * j;
    h.stationY(0, j) = 0.05 * j;
    h.stationZ(0, j) = 0.1 * j;
  }
  // Point 5 repeats point 4: the step from 5 to 6 spans two steps.
  h.stationX(0, 5) = h.stationX(0, 4);
  h.stationY(0, 5) = h.stationY(0, 4);
  h.stationZ(0, 5) = h.stationZ(0, 4);
  h.transomPlate.fill(-7);
  calcTransomPlate(h);
  EXPECT_EQ(h.transomPlate(1, 5), h.transomPlate(1, 4));
  EXPECT_NEAR(h.transomPlate(1, 12), 12 * std::hypot(0.1, 0.01), 1e-12);
  EXPECT_EQ(h.transomPlate(1, 13), -7.0);
  EXPECT_EQ(h.transomPlate(2, 35), -7.0);
}

TEST(EndPlates, SectionPointsHeldInsideTheTable) {
  HullStore h;
  h.nChines = 40;  // beyond any screen's range
  EXPECT_EQ(lastSectionPoint(h), 35);
  calcBowPlate(h);
  h.nChines = -20;
  EXPECT_EQ(lastSectionPoint(h), 0);
}

// Points 0 and 1 at one X but different heights: the first step has no
// length; a deck's Y values are never shifted.
TEST(Deck, SameXStepsAddNothingAndYIsNotShifted) {
  HullStore h;
  for (int i = 0; i <= 82; ++i) {
    h.lineX(3, i) = 0.05 * (i == 0 ? 1 : i);
    h.lineY(3, i) = -0.1 + 0.01 * i;
    h.lineZ(3, i) = 0.5 + (i == 0 ? 0.3 : 0.0);
  }
  h.devXi.fill(9);
  developDeck(h, 3);
  EXPECT_EQ(h.devXi(0), h.devXi(1));
  EXPECT_EQ(h.devXi(0), 0.0);
  EXPECT_EQ(h.devYs(0), -0.1);
  EXPECT_NEAR(h.devXi(82), 81 * 0.05, 1e-12);
  EXPECT_EQ(h.devXi(83), 9.0);
}

}  // namespace
}  // namespace tolmar

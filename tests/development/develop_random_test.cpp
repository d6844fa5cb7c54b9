// Random hulls inside the ranges the screens accept, validated through the
// screens: every plate, deck and end plate comes out finite, placed in the
// first quadrant, and with the lengths of its rungs and edges.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "development/calc_develop.h"
#include "development/deck_develop.h"
#include "development/end_plates.h"
#include "hull_fixture.h"
#include "plate_checks.h"

namespace tolmar {
namespace {

// Relative to the size of the plate: the flat-triangle rule of
// triangleAngles (s * 1e-7) may lay a nearly flat triangle flat.  The size
// matters: a steep transom over a strongly S-shaped chine can send the
// fixed point of the chine's aft end (10 passes, no convergence test) to
// millions of metres, and the bottom and first plank then reach that far.
constexpr double kRelTol = 1e-6;

bool validates(HullStore& h, auto& screen) {
  screen.activate(h);
  for (int press = 0; press < 3; ++press) {
    if constexpr (requires { screen.validerBottom(h); }) {
      if (screen.validerBottom(h)) return true;
    } else {
      if (screen.validerPlanks(h)) return true;
    }
  }
  return false;
}

void expectPlate(const HullStore& h, const checks::Tables& t, int line, int last, double len) {
  const auto fit = checks::measurePlate(h, t, line, last);
  const auto e = checks::outlineExtent(h, last);
  const double tol = kRelTol * std::max({len, e.maxX, e.maxY});
  ASSERT_TRUE(fit.finite);
  EXPECT_LT(fit.edge, tol);
  EXPECT_LT(fit.rung, tol);
  EXPECT_LT(fit.diagonal, tol);
  EXPECT_EQ(e.minX, 0.0);
  EXPECT_EQ(e.minY, 0.0);
}

TEST(DevelopRandomHulls, EveryPlateFinitePlacedAndTrue) {
  std::mt19937 rng(4101);
  auto real = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(rng); };
  auto whole = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(rng); };
  int developed = 0;
  for (int hull = 0; hull < 60; ++hull) {
    SCOPED_TRACE("hull " + std::to_string(hull));
    auto hp = std::make_unique<HullStore>();
    HullStore& h = *hp;
    initDefaultHull(h);
    const double len = real(0.5, 20);
    h.xFwd(0) = len;
    h.xMax(1) = real(0.2, 0.7) * len;
    h.yMax(1) = real(0.05, 0.5) * len;
    h.yFwd(1) = whole(0, 1) ? 0 : real(0, 0.99) * h.yMax(1);
    h.zFwd(1) = real(0, 0.3) * len;
    h.yAft(1) = real(0, 1) * h.yMax(1);
    h.zAft(1) = real(-h.zFwd(1), 0.3 * len);
    h.powerFwd = real(2.1, 5);
    h.powerAft = real(2.1, 5);
    h.shapeAft = real(-2, 2);
    h.shapeFwd = real(-2, 2);
    h.plankAngle(0) = static_cast<i16>(whole(-20, 45));
    h.keelAdvance = static_cast<i16>(whole(0, 70));
    h.bowAngle = static_cast<i16>(whole(0, 60));
    h.transomAngle = static_cast<i16>(-whole(0, 70));
    Bouchain1 bottom;
    if (!validates(h, bottom)) continue;

    h.nChines = static_cast<i16>(whole(2, 6));
    h.plankAngle(1) = static_cast<i16>(whole(h.plankAngle(0) + 5, 90));
    for (int k = 2; k < h.nChines; ++k)
      h.plankAngle(k) = static_cast<i16>(whole(h.plankAngle(k - 1), 150));
    for (int n = 2; n <= h.nChines; ++n) {
      h.zFwd(n) = h.zFwd(n - 1) + real(0, 0.1) * len;
      h.zMax(n) = h.zMax(n - 1) + real(0, 0.1) * len;
      h.zAft(n) = h.zAft(n - 1) + real(0, 0.1) * len;
    }
    Bouchain2 planks;
    if (!validates(h, planks)) continue;
    buildAllStations(h);
    ++developed;

    developBottom(h);
    expectPlate(h, {h.edgeXRef(), h.edgeYRef(), h.edgeZRef()}, 0, kBottomLastPoint, len);
    for (int k = 1; k < h.nChines; ++k) {
      SCOPED_TRACE("plank " + std::to_string(k));
      developPlank(h, k);
      expectPlate(h, {h.lineXRef(), h.lineZRef(), h.lineYRef()}, k, kPlankLastPoint, len);
    }
    for (int k = 1; k <= h.nChines; ++k) {
      developDeck(h, k);
      for (int i = 0; i <= kPlankLastPoint; ++i) {
        ASSERT_TRUE(std::isfinite(h.devXi(i)) && std::isfinite(h.devYs(i)));
        ASSERT_GE(h.devXi(i), 0.0);
      }
    }
    calcTransomPlate(h);
    calcBowPlate(h);
    for (int j = 0; j <= h.nChines + 9; ++j) {
      ASSERT_TRUE(std::isfinite(h.transomPlate(1, j)) && std::isfinite(h.transomPlate(2, j)));
      ASSERT_TRUE(std::isfinite(h.bowPlate(1, j)) && std::isfinite(h.bowPlate(2, j)));
    }
  }
  EXPECT_GT(developed, 30);  // most random hulls pass both screens
}

}  // namespace
}  // namespace tolmar

// Random hulls inside the ranges that the hull screens accept, through the
// whole engine: every table and view value must stay finite.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "hull/stations.h"
#include "hull_fixtures.h"

namespace tolmar {
namespace {

::testing::AssertionResult allFinite(const HullStore& h) {
  auto bad = [](const char* what, int a, int b) {
    return ::testing::AssertionFailure() << what << " " << a << " " << b;
  };
  for (int n = 0; n <= kMaxLine; ++n) {
    for (int p = 0; p <= kLastPoint; ++p) {
      if (!std::isfinite(h.lineX(n, p)) || !std::isfinite(h.lineY(n, p)) ||
          !std::isfinite(h.lineZ(n, p)))
        return bad("line", n, p);
      if (!std::isfinite(h.bevelAngle(n, p))) return bad("bevel", n, p);
    }
    if (!std::isfinite(h.planeA(n)) || !std::isfinite(h.planeB(n)) || !std::isfinite(h.planeC(n)) ||
        !std::isfinite(h.xFwd(n)) || !std::isfinite(h.xAft(n)))
      return bad("control values", n, 0);
  }
  for (int p = 0; p <= kLastPoint; ++p) {
    for (int j = 0; j <= 35; ++j) {
      if (!std::isfinite(h.stationX(p, j)) || !std::isfinite(h.stationY(p, j)) ||
          !std::isfinite(h.stationZ(p, j)))
        return bad("station", p, j);
    }
  }
  for (int s = 0; s <= 1; ++s) {
    for (int i = 0; i <= 83; ++i) {
      if (!std::isfinite(h.edgeX(s, i)) || !std::isfinite(h.edgeY(s, i)) ||
          !std::isfinite(h.edgeZ(s, i)))
        return bad("edge", s, i);
    }
  }
  for (float v : {h.scaleX, h.originX, h.originY, h.originZ, h.bodyAxis}) {
    if (!std::isfinite(v)) return bad("view", 0, 0);
  }
  return ::testing::AssertionSuccess();
}

TEST(FiniteHulls, RandomHullsInsideTheScreensRanges) {
  std::mt19937 rng(2008);
  auto real = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(rng); };
  auto whole = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(rng); };
  for (int hull = 0; hull < 150; ++hull) {
    HullStore h;
    initDefaultHull(h);
    const double len = real(0.1, 30);
    h.xFwd(0) = len;
    h.xMax(1) = real(0.2, 0.7) * len;
    h.yMax(1) = real(0.01, 0.5) * len;
    h.yFwd(1) = whole(0, 1) ? 0 : real(0, 0.99) * h.yMax(1);
    h.zFwd(1) = real(0, 2);
    h.yAft(1) = real(0, 1) * h.yMax(1);
    h.zAft(1) = real(-h.zFwd(1), 2);
    h.powerFwd = real(2.1, 5);
    h.powerAft = real(2.1, 5);
    h.shapeAft = real(-5, 5);
    h.shapeFwd = real(-5, 5);
    h.plankAngle(0) = static_cast<i16>(whole(-20, 45));
    h.keelAdvance = static_cast<i16>(whole(0, 70));
    h.bowAngle = static_cast<i16>(whole(0, 60));
    h.transomAngle = static_cast<i16>(-whole(0, 70));
    testing::validateBottom(h);

    if (whole(0, 1)) {  // automatic planking
      const int planks = whole(2, 20);
      const int first = std::clamp(whole(5, 80), h.plankAngle(0) + 4, 80);
      int step = whole(3, 12);
      if (first + (planks - 1) * step > 170) step = (170 - first) / (planks - 1);
      const double m = 0.1 * h.yMax(1);
      testing::placeAutoPlanks(h, planks, first, step, h.zFwd(1) + m + real(0, 3),
                               h.zMax(1) + m + real(0, 3), h.zAft(1) + m + real(0, 3));
    } else {  // planks by hand, heights equal to the line below now and then
      h.nChines = static_cast<i16>(whole(2, 6));
      h.plankAngle(1) = static_cast<i16>(whole(h.plankAngle(0) + 5, 90));
      for (int k = 2; k < h.nChines; ++k)
        h.plankAngle(k) = static_cast<i16>(whole(h.plankAngle(k - 1), 175));
      for (int n = 2; n <= h.nChines; ++n) {
        h.zFwd(n) = h.zFwd(n - 1) + (whole(0, 4) ? real(0, 1) : 0);
        h.zMax(n) = h.zMax(n - 1) + (whole(0, 4) ? real(0, 1) : 0);
        h.zAft(n) = h.zAft(n - 1) + (whole(0, 4) ? real(0, 1) : 0);
        h.bowTurn(n) = static_cast<i16>(whole(0, 1) ? 1 : -1);
        h.transomTurn(n) = static_cast<i16>(whole(0, 1) ? 1 : -1);
      }
      testing::derivePlankBreadths(h);
    }
    buildUpperLines(h);
    buildAllStations(h);
    scaleViews(h, 15000, 9000, 1);
    EXPECT_TRUE(allFinite(h)) << "hull " << hull << ", " << h.nChines << " lines";
  }
}

}  // namespace
}  // namespace tolmar

// Line generation on the default hull and on a hull of automatic planks:
// the true ends of the lines, the sampling rules, the bottom's rulings,
// the bevels, and finite tables for degenerate inputs.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "hull/angle_constants.h"
#include "hull/chine_equations.h"
#include "hull/default_hull.h"
#include "hull/geometrie.h"
#include "hull/line_generation.h"
#include "hull_fixtures.h"

namespace tolmar {
namespace {

using testing::plankedDefaultHull;
using testing::validatedDefaultHull;

TEST(CrossingX, LineAndDegenerateCases) {
  EXPECT_DOUBLE_EQ(crossingX(0, 1, 2, 3, -2), 2);
  EXPECT_DOUBLE_EQ(crossingX(1, 0, 0, 2, 4), 0.5);
  EXPECT_EQ(crossingX(0, 4, 1, 4, -1), 4);              // vertical
  EXPECT_EQ(crossingX(0, 1, 3, 5, 3), 3);               // level: the mean of the two X
  EXPECT_EQ(crossingX(0, 2, 0, 2, 0), 2);               // one point
  EXPECT_EQ(crossingX(5, 0, 0, 1e300, 1e-300), 5e299);  // slope underflows: the mean
}

TEST(DefaultHull, Values) {
  HullStore h;
  initDefaultHull(h);
  EXPECT_EQ(h.hullName, "TOLMAR2005");
  EXPECT_EQ(h.nChines, 5);
  EXPECT_EQ(h.overlapMode, 1);
  EXPECT_EQ(h.transomAngle, -25);
  EXPECT_NEAR(h.xMax(0), 3.797144649618, 1e-12);
  EXPECT_NEAR(h.zMax(0), -0.201928733587, 1e-12);
  const int angles[] = {12, 45, 70, 85, 90};
  for (int n = 0; n <= 4; ++n) EXPECT_EQ(h.plankAngle(n), angles[n]);
  EXPECT_EQ(h.bowTurn(4), 1);
  EXPECT_EQ(h.bowTurn(5), -1);
  EXPECT_EQ(h.transomTurn(3), 1);
  EXPECT_EQ(h.transomTurn(4), -1);
  EXPECT_EQ(h.transomTurn(5), -1);
  const double zAft[] = {0.32, 0.7, 1.05, 1.1}, zMax[] = {0.2, 0.62, 1.0, 1.05},
               zFwd[] = {0.3, 0.75, 1.2, 1.25};
  for (int n = 2; n <= 5; ++n) {
    EXPECT_EQ(h.zAft(n), zAft[n - 2]);
    EXPECT_EQ(h.zMax(n), zMax[n - 2]);
    EXPECT_EQ(h.zFwd(n), zFwd[n - 2]);
    EXPECT_EQ(h.xFwd(n), 6);
  }
  EXPECT_EQ(h.lineColor(0), 0.0f);
  EXPECT_EQ(h.lineColor(1), 0.0f);
  EXPECT_EQ(h.lineColor(2), 13107200.0f);  // RGB(0, 0, 200)
  EXPECT_EQ(h.lineColor(3), 43520.0f);     // RGB(0, 170, 0)
  EXPECT_EQ(h.lineColor(25), 200.0f);      // RGB(200, 0, 0)
  EXPECT_EQ(h.panelDensity(4), 10);
  EXPECT_EQ(h.panelDensity(6), 0);
  EXPECT_EQ(h.panelDensity(7), 10);
  EXPECT_EQ(h.bulkX(1), 3.0);
  EXPECT_EQ(h.deckDensity(1), 10);
  EXPECT_EQ(h.deckDensity(2), 0);
}

TEST(DefaultHull, NewHullClearsTheFirstLinesAndTables) {
  HullStore h = plankedDefaultHull();
  h.yMax(4) = 7;  // line 4 is above the cleared lines: it keeps its value
  h.zMax(2) = 9;  // zMax is not cleared, and the default rewrites it
  h.zMax(6) = 9;
  newHullStore(h);
  EXPECT_EQ(h.hullName, "Tolmar");
  EXPECT_EQ(h.yMax(2), 0);
  EXPECT_EQ(h.yAft(3), 0);
  EXPECT_EQ(h.xMax(2), 0);
  EXPECT_EQ(h.yMax(4), 7);
  EXPECT_EQ(h.zMax(2), 0.2);
  EXPECT_EQ(h.zMax(6), 9);
  EXPECT_EQ(h.lineX(3, 40), 0);
  EXPECT_EQ(h.edgeZ(1, 83), 0);
  EXPECT_EQ(h.xFwd(1), 6);
}

TEST(BottomLines, DefaultHullEndsAndSampling) {
  const HullStore h = validatedDefaultHull();
  EXPECT_EQ(h.iMaxBeam, 41);
  EXPECT_EQ(h.xFwd(1), 6);                  // the stem reaches the chine on the centre plane
  EXPECT_NEAR(h.xAft(1), -0.071208, 5e-7);  // raked transom: aft of X = 0
  EXPECT_EQ(h.lineX(0, 0), h.lineX(0, 1));
  EXPECT_EQ(h.lineX(0, 81), h.lineX(0, 82));
  EXPECT_EQ(h.lineX(1, 0), h.xAft(1));
  EXPECT_EQ(h.lineX(1, 82), h.xFwd(1));
  EXPECT_EQ(h.lineX(0, 41), 3);
  for (int p = 0; p <= 82; ++p) {
    EXPECT_EQ(h.lineY(0, p), 0);
    EXPECT_EQ(h.lineZ(0, p), bottomZ(h, h.lineX(0, p), 0));
    EXPECT_EQ(h.lineY(1, p), firstChineY(h, h.lineX(1, p)));
    if (p >= 1 && p <= 81) {
      EXPECT_EQ(h.lineX(1, p), h.lineX(0, p));
    }
  }
}

TEST(BottomEdges, PairsLieOnRulingsAtTheKeelAdvance) {
  const HullStore h = validatedDefaultHull();
  const double tK = tanDeg(h.keelAdvance);
  const double xLimit = h.lineX(1, h.iMaxBeam);
  EXPECT_EQ(h.edgeX(1, 0), h.xAft(1));  // the chine reaches aft of the keel
  for (int p = 1; p <= h.iMaxBeam; ++p) EXPECT_EQ(h.edgeX(0, p), h.edgeX(1, p));
  int onRuling = 0;
  for (int p = h.iMaxBeam + 1; p <= 80; ++p) {
    EXPECT_GE(h.edgeX(1, p), xLimit);
    EXPECT_LT(h.edgeX(1, p), h.edgeX(0, p));
    EXPECT_EQ(h.edgeY(1, p), chineY(h, 1, h.edgeX(1, p)));
    if (h.edgeX(1, p) == xLimit) continue;  // ruling would start aft of the maximum beam
    // In plan the ruling runs forward and inboard at the keel advance
    // angle, to what 7 passes of the fixed point give.
    EXPECT_NEAR(h.edgeX(0, p) - h.edgeX(1, p), tK * (h.edgeY(1, p) - h.edgeY(0, p)), 2e-3) << p;
    ++onRuling;
  }
  EXPECT_GT(onRuling, 20);
  EXPECT_EQ(h.edgeX(1, 51), xLimit);
  for (int s = 0; s <= 1; ++s) {  // the plate ends in one point
    EXPECT_EQ(h.edgeX(s, 83), h.lineX(1, 82));
    EXPECT_EQ(h.edgeY(s, 83), h.lineY(1, 82));
    EXPECT_EQ(h.edgeZ(s, 83), h.lineZ(1, 82));
  }
  EXPECT_EQ(h.edgeX(0, 82), (h.lineX(1, 82) + h.lineX(0, 82)) / 2);
}

TEST(BottomEdges, NoKeelAdvanceKeepsCommonX) {
  HullStore h;
  initDefaultHull(h);
  h.keelAdvance = 0;
  testing::validateBottom(h);
  for (int p = 1; p <= 81; ++p) EXPECT_EQ(h.edgeX(0, p), h.edgeX(1, p)) << p;
  EXPECT_EQ(h.edgeX(1, 82), (h.lineX(1, 81) + h.lineX(1, 82)) / 2);
}

TEST(ChinePlane, ThroughTheThreeControlPoints) {
  const HullStore h = plankedDefaultHull();
  for (int n = 2; n <= 5; ++n) {
    auto z = [&](double x, double y) { return h.planeA(n) + h.planeB(n) * x + h.planeC(n) * y; };
    EXPECT_NEAR(z(0, h.yAft(n)), h.zAft(n), 1e-12) << n;
    EXPECT_NEAR(z(h.xMax(1), h.yMax(n)), h.zMax(n), 1e-12) << n;
    EXPECT_NEAR(z(h.xFwd(0), h.yFwd(n)), h.zFwd(n), 1e-12) << n;
  }
}

TEST(ChinePlane, PointsAboveOneAnotherAndNoPlane) {
  HullStore h = plankedDefaultHull();
  h.yAft(2) = h.yMax(2) = h.yFwd(2) = 0.5;  // no Y: the 0.0001 guard
  EXPECT_TRUE(fitChinePlane(h, 2));
  EXPECT_TRUE(std::isfinite(h.planeA(2)) && std::isfinite(h.planeB(2)) &&
              std::isfinite(h.planeC(2)));

  // dyF M = dyM F: the three points stand in a line in plan.
  h.yAft(3) = 1.0;
  h.yMax(3) = 1.5;
  h.yFwd(3) = 2.0;
  const double a = h.planeA(3), b = h.planeB(3), c = h.planeC(3);
  EXPECT_FALSE(fitChinePlane(h, 3));
  EXPECT_EQ(h.planeA(3), a);
  EXPECT_EQ(h.planeB(3), b);
  EXPECT_EQ(h.planeC(3), c);
}

TEST(LineEnds, PointedStemOnTheCentrePlane) {
  const HullStore h = testing::twentyPlankHull();
  for (int n = 2; n <= h.nChines; ++n) {
    EXPECT_GE(h.xFwd(n), h.xFwd(0)) << n;
    EXPECT_NEAR(chineY(h, n, h.xFwd(n)), 0, 1e-4) << n;
    EXPECT_LE(h.xAft(n), h.xAft(0)) << n;
  }
}

TEST(LineEnds, OnTheCentrePlaneTakesTheEndsBelow) {
  HullStore h = plankedDefaultHull();
  h.yFwd(3) = h.yAft(3) = 0;
  h.xFwd(3) = h.xAft(3) = 99;
  fitLineEnds(h, 3);
  EXPECT_EQ(h.xFwd(3), h.xFwd(2));
  EXPECT_EQ(h.xAft(3), h.xAft(2));
}

TEST(LineEnds, TransomTurningInStopsAtTheTransom) {
  HullStore h = validatedDefaultHull();
  testing::derivePlankBreadths(h);
  h.transomTurn(1) = -1;  // the plank above line 1 rakes forward
  buildUpperLines(h);
  EXPECT_EQ(h.xAft(2), 0);
  for (int n = 2; n <= 5; ++n) EXPECT_LE(h.xAft(n), 0) << n;
}

TEST(LineEnds, PramBowLeansFromTheLineBelow) {
  HullStore h;
  initDefaultHull(h);
  h.yFwd(1) = 0.3;
  testing::validateBottom(h);
  testing::derivePlankBreadths(h);
  buildUpperLines(h);
  for (int n = 2; n <= 5; ++n) {
    const double lean = tanDeg(h.bowTurn(n - 1) * h.bowAngle);
    EXPECT_GE(h.xFwd(n), h.xFwd(0)) << n;
    EXPECT_GT(chineY(h, n, h.xFwd(n)), 0) << n;
    EXPECT_NEAR(h.xFwd(n) - h.xFwd(n - 1), lean * (chineZ(h, n, h.xFwd(n)) - h.lineZ(n - 1, 82)),
                1e-3)
        << n;
  }
}

TEST(BuildLine, StationsHeldInsideTheLineEnds) {
  HullStore h = plankedDefaultHull();
  h.xFwd(3) = 5.5;  // a line ending short of the stem
  h.xAft(3) = 0.2;
  buildLine(h, 3);
  EXPECT_EQ(h.lineX(3, 0), 0.2);
  for (int p = 1; p <= 81; ++p) {
    if (h.lineX(0, p) > 5.5) {
      EXPECT_EQ(h.lineX(3, p), 5.5);
      EXPECT_EQ(h.lineY(3, p), h.lineY(3, 82));
      EXPECT_EQ(h.lineZ(3, p), h.lineZ(3, 82));
    } else if (h.lineX(0, p) < 0.2) {
      EXPECT_EQ(h.lineX(3, p), 0.2);
    } else {
      EXPECT_EQ(h.lineX(3, p), h.lineX(0, p));
    }
    EXPECT_EQ(h.lineY(3, p), chineY(h, 3, h.lineX(3, p)));
  }
}

TEST(Bevel, RowsByLine) {
  const HullStore h = plankedDefaultHull();
  for (int p = 0; p <= 82; ++p) {
    EXPECT_EQ(h.bevelAngle(2, p), (70 - 45) / kDegreesPerRadian);
    EXPECT_EQ(h.bevelAngle(4, p), (90 - 85) / kDegreesPerRadian);
    EXPECT_EQ(h.bevelAngle(5, p), kPi / 2);  // the sheer line
  }
  // Aft of the maximum beam the bottom lies at the deadrise.
  for (int p = 0; p <= h.iMaxBeam; ++p)
    EXPECT_NEAR(h.bevelAngle(1, p), (45 - 12) / kDegreesPerRadian, 1e-12);
  EXPECT_GT(h.bevelAngle(1, 70), 0);
  EXPECT_LT(h.bevelAngle(1, 70), (45 - 12) / kDegreesPerRadian);  // the bottom twists up forward
}

TEST(Bevel, FirstLineWhenTheSecondPlankTurnsIn) {
  HullStore h = plankedDefaultHull();
  h.plankAngle(2) = 40;
  buildBevel(h, 1);
  for (int p = 0; p <= 82; ++p) EXPECT_EQ(h.bevelAngle(1, p), kPi / 2);
}

TEST(UpperLines, TwoLinesBuildOnlyLineTwo) {
  HullStore h = plankedDefaultHull();
  HullStore before = h;
  h.nChines = 2;
  h.zFwd(2) = 0.5;
  buildUpperLines(h);
  EXPECT_NE(h.lineZ(2, 82), before.lineZ(2, 82));
  EXPECT_EQ(h.lineX(3, 40), before.lineX(3, 40));  // slots above stay stale
  EXPECT_EQ(h.bevelAngle(2, 10), kPi / 2);
}

TEST(UpperLines, TurnsTheBusyPointer) {
  HullStore h = validatedDefaultHull();
  testing::derivePlankBreadths(h);
  std::vector<int> shapes;
  buildUpperLines(h, [&](int i) { shapes.push_back(9 - i % 4); });
  ASSERT_FALSE(shapes.empty());
  for (int s : shapes) EXPECT_TRUE(s >= 6 && s <= 9);
  EXPECT_EQ(shapes[0], 9);
  EXPECT_EQ(shapes[1], 8);
}

bool tablesFinite(const HullStore& h) {
  for (int n = 0; n <= kMaxLine; ++n) {
    for (int p = 0; p <= 82; ++p) {
      if (!std::isfinite(h.lineX(n, p)) || !std::isfinite(h.lineY(n, p)) ||
          !std::isfinite(h.lineZ(n, p)) || !std::isfinite(h.bevelAngle(n, p)))
        return false;
    }
    if (!std::isfinite(h.xFwd(n)) || !std::isfinite(h.xAft(n)) || !std::isfinite(h.planeA(n)) ||
        !std::isfinite(h.planeB(n)) || !std::isfinite(h.planeC(n)))
      return false;
  }
  for (int s = 0; s <= 1; ++s) {
    for (int i = 0; i <= 83; ++i) {
      if (!std::isfinite(h.edgeX(s, i)) || !std::isfinite(h.edgeY(s, i)) ||
          !std::isfinite(h.edgeZ(s, i)))
        return false;
    }
  }
  return true;
}

TEST(UpperLines, DegenerateInputsLeaveFiniteTables) {
  struct Case {
    const char* what;
    void (*edit)(HullStore&);
  };
  const Case cases[] = {
      {"flat planks", [](HullStore& h) { h.plankAngle(1) = h.plankAngle(2) = 0; }},
      {"planks leaning far inboard",
       [](HullStore& h) {
         for (int n = 1; n <= 4; ++n) h.plankAngle(n) = 175;
       }},
      {"all heights equal",
       [](HullStore& h) {
         for (int n = 2; n <= 5; ++n) h.zFwd(n) = h.zMax(n) = h.zAft(n) = 0.1;
       }},
      {"control points in a line in plan",
       [](HullStore& h) {
         h.yAft(3) = 1.0;
         h.yMax(3) = 1.5;
         h.yFwd(3) = 2.0;
       }},
      {"bow and transom at 90 degrees",
       [](HullStore& h) {
         h.bowAngle = 90;
         h.transomAngle = -90;
         h.yFwd(1) = 0.2;
       }},
      {"vertical first plank", [](HullStore& h) { h.plankAngle(1) = 90; }},
  };
  for (const auto& c : cases) {
    HullStore h = validatedDefaultHull();
    testing::derivePlankBreadths(h);
    c.edit(h);
    buildBottomLines(h);
    buildBottomEdges(h);
    buildUpperLines(h);
    EXPECT_TRUE(tablesFinite(h)) << c.what;
  }
}

TEST(UpperLines, PlaneParallelToThePlankLeavesFiniteTables) {
  HullStore h = plankedDefaultHull();
  const double k = tanDeg(90 - h.plankAngle(2));
  h.planeC(3) = 1 / k;
  fitLineEnds(h, 3);
  buildLine(h, 3);
  fitLineEnds(h, 4);
  buildLine(h, 4);
  EXPECT_TRUE(tablesFinite(h));
}

}  // namespace
}  // namespace tolmar

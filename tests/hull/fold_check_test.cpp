// The fold check on hulls built through the screens: the 20-plank hull
// whose first plank folds under the bottom's edge, hulls edited to fold at
// one station, and the sound hulls of the other tests, which must stay
// clean.
#include "hull/fold_check.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "../development/hull_fixture.h"
#include "hull/angle_constants.h"
#include "hull/stations.h"
#include "hull_fixtures.h"

namespace tolmar {
namespace {

// Automatic planking as typed into bouchain3, stem shape included.
std::unique_ptr<HullStore> autoHull(int planks, int first, int last, double zFwd, double zMax,
                                    double zAft, const std::string& stemShape) {
  auto h = std::make_unique<HullStore>();
  initDefaultHull(*h);
  fixture::validateBottom(*h);
  Bouchain3 s;
  s.activate(*h);
  s.Text0.text = std::to_string(planks);
  s.Text1(0).text = std::to_string(first);
  s.Text2(0).text = std::to_string(last);
  s.Text2(1).text = std::to_string(zFwd);
  s.Text2(2).text = std::to_string(zMax);
  s.Text2(3).text = std::to_string(zAft);
  s.Text4.text = stemShape;
  fixture::require(s.validerAuto(*h), "automatic planking");
  return h;
}

// 20 planks from 20 to 115 degrees, sheer 1.2 m forward, 0.95 m at the
// maximum beam, 1.0 m aft, stem shape 0.6.
std::unique_ptr<HullStore> foldingTwentyPlanks() {
  return autoHull(20, 20, 115, 1.2, 0.95, 1.0, "0.6");
}

// A fold under a line, seen on the lines themselves: every plank rises
// (inclinations 0..180 degrees), so somewhere along the stretch the upper
// line stands lower than the lower one.
bool upperLineDips(const HullStore& h, const FoldStretch& s) {
  for (int p = s.fromPoint; p <= s.toPoint; ++p)
    if (h.lineZ(s.plank + 1, p) < h.lineZ(s.plank, p)) return true;
  return false;
}

TEST(FoldCheck, TwentyPlanksFoldUnderTheFirstChine) {
  const auto h = foldingTwentyPlanks();
  const FoldReport r = checkFolds(*h);
  ASSERT_TRUE(r.folded());
  ASSERT_EQ(r.stretches.size(), 1u) << r.message(1);
  const FoldStretch& s = r.stretches[0];
  EXPECT_EQ(s.kind, FoldKind::under);
  EXPECT_EQ(s.plank, 1);
  EXPECT_EQ(s.line, 1);
  EXPECT_EQ(s.fromPoint, 51);
  EXPECT_EQ(s.toPoint, 74);
  EXPECT_DOUBLE_EQ(s.fromX, h->lineX(1, 51));
  EXPECT_DOUBLE_EQ(s.toX, h->lineX(1, 74));
  EXPECT_NEAR(s.depth, 0.023, 0.0005);
  // What the folded band is, seen without the check: line 2 inboard of
  // and below line 1 all along it, and outboard or above it just outside.
  for (int p = s.fromPoint; p <= s.toPoint; ++p) {
    EXPECT_LT(h->lineY(2, p), h->lineY(1, p)) << p;
    EXPECT_LT(h->lineZ(2, p), h->lineZ(1, p)) << p;
  }
  for (int p : {s.fromPoint - 1, s.toPoint + 1})
    EXPECT_TRUE(h->lineY(2, p) > h->lineY(1, p) || h->lineZ(2, p) > h->lineZ(1, p)) << p;

  EXPECT_EQ(r.message(1), "Plank 1 folds under line 1 from X = 3.8 m to 5.5 m (up to 23 mm)");
  EXPECT_EQ(r.message(0),
            "Le bordé 1 se replie sous le bouchain 1 de X = 3.8 m à 5.5 m (jusqu'à 23 mm)");
}

TEST(FoldCheck, SoundHullsStayClean) {
  struct Case {
    const char* name;
    std::unique_ptr<HullStore> h;
  };
  auto twoLines = std::make_unique<HullStore>();
  initDefaultHull(*twoLines);
  twoLines->nChines = 2;
  fixture::validateBottom(*twoLines);
  fixture::validatePlanks(*twoLines);
  auto bottomOnly = std::make_unique<HullStore>(testing::validatedDefaultHull());
  bottomOnly->nChines = 1;
  Case cases[] = {
      {"default", fixture::defaultHull()},
      {"pram bow", fixture::pramBowHull()},
      {"two lines", std::move(twoLines)},
      {"bottom only", std::move(bottomOnly)},
      {"20 planks 45..102", fixture::manyLineHull()},
      {"20 planks 20..77", std::make_unique<HullStore>(testing::twentyPlankHull())},
      {"20 planks 20..115, no stem shape", autoHull(20, 20, 115, 1.2, 0.95, 1.0, "0")},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const FoldReport r = checkFolds(*c.h);
    EXPECT_FALSE(r.folded()) << r.message(1);
    EXPECT_EQ(r.message(0), "");
  }
}

// The default hull with line 3 moved at one station, point 40 (X = 2.925 m).
HullStore defaultHullWithLine3At(double y, double z) {
  HullStore h = testing::plankedDefaultHull();
  h.lineY(3, 40) = y;
  h.lineZ(3, 40) = z;
  return h;
}

TEST(FoldCheck, OneStationFoldsUnder) {
  HullStore h = testing::plankedDefaultHull();
  // Line 3 put 5 mm back down plank 2 from line 2, at 70 degrees.
  const double a = 70 * kPi / 180;
  h = defaultHullWithLine3At(h.lineY(2, 40) - 0.005 * std::cos(a),
                             h.lineZ(2, 40) - 0.005 * std::sin(a));
  const FoldReport r = checkFolds(h);
  ASSERT_EQ(r.stretches.size(), 1u) << r.message(1);
  const FoldStretch& s = r.stretches[0];
  EXPECT_EQ(s.kind, FoldKind::under);
  EXPECT_EQ(s.plank, 2);
  EXPECT_EQ(s.line, 2);
  EXPECT_EQ(s.fromPoint, 40);
  EXPECT_EQ(s.toPoint, 40);
  EXPECT_NEAR(s.depth, 0.005, 1e-9);
  EXPECT_EQ(r.message(1), "Plank 2 folds under line 2 at X = 2.9 m (up to 5 mm)");
  EXPECT_EQ(r.message(0), "Le bordé 2 se replie sous le bouchain 2 à X = 2.9 m (jusqu'à 5 mm)");
}

TEST(FoldCheck, OneStationWithoutWidth) {
  HullStore h = testing::plankedDefaultHull();
  h = defaultHullWithLine3At(h.lineY(2, 40), h.lineZ(2, 40));
  const FoldReport r = checkFolds(h);
  ASSERT_EQ(r.stretches.size(), 1u) << r.message(1);
  EXPECT_EQ(r.stretches[0].kind, FoldKind::narrow);
  EXPECT_EQ(r.stretches[0].plank, 2);
  EXPECT_EQ(r.stretches[0].depth, 0);
  EXPECT_EQ(r.message(1), "Plank 2 has no width at X = 2.9 m");
  EXPECT_EQ(r.message(0), "Le bordé 2 n'a aucune largeur à X = 2.9 m");
}

TEST(FoldCheck, OneStationCrossesTheBottom) {
  HullStore h = testing::plankedDefaultHull();
  // Line 4 pulled inboard to 3 cm under the middle of the bottom: plank 3
  // (line 3 to line 4) then cuts through the bottom, and plank 4 above it
  // comes back through it.
  const double ym = h.lineY(1, 40) / 2;
  const double zb = (h.lineZ(0, 40) + h.lineZ(1, 40)) / 2;
  h.lineY(4, 40) = ym;
  h.lineZ(4, 40) = zb - 0.03;
  const FoldReport r = checkFolds(h);
  ASSERT_TRUE(r.folded());
  bool plank3 = false;
  for (const FoldStretch& s : r.stretches) {
    EXPECT_EQ(s.fromPoint, 40);
    EXPECT_EQ(s.toPoint, 40);
    if (s.plank == 3 && s.kind == FoldKind::across) {
      plank3 = true;
      EXPECT_EQ(s.line, 0);
      // The bottom between keel and chine is straight here, so the depth is
      // the distance of line 4 under that chord.
      const double dy = h.lineY(1, 40) - h.lineY(0, 40), dz = h.lineZ(1, 40) - h.lineZ(0, 40);
      const double under = 0.03 * dy / std::hypot(dy, dz);
      EXPECT_NEAR(s.depth, under, 1e-3);
    }
  }
  EXPECT_TRUE(plank3) << r.message(1);
  EXPECT_NE(r.message(1).find("Plank 3 folds across the bottom at X = 2.9 m"), std::string::npos)
      << r.message(1);
  EXPECT_NE(r.message(0).find("Le bordé 3 traverse le fond à X = 2.9 m"), std::string::npos)
      << r.message(0);
}

// Lines that were never built for the present bottom: checked with them,
// plank 1 runs down to the origin.  After the bottom screen alone their
// planes are still zero, and the check stops below them; lines built for
// an earlier bottom are left out by checking up to line 1.
TEST(FoldCheck, LinesNotBuiltAreLeftOut) {
  HullStore h = testing::validatedDefaultHull();
  EXPECT_FALSE(checkFolds(h).folded()) << checkFolds(h).message(1);
  h.planeA(2) = 0.1;  // as if fitted, but never built: line 2 is all zero
  EXPECT_TRUE(checkFolds(h).folded());
  const FoldReport bottom = checkFoldsUpTo(h, 1);
  EXPECT_FALSE(bottom.folded()) << bottom.message(1);
  EXPECT_FALSE(checkFoldsUpTo(h, -3).folded());
}

TEST(FoldCheck, NeverFailsOnOddStores) {
  HullStore empty;
  EXPECT_FALSE(checkFolds(empty).folded());

  HullStore h = testing::plankedDefaultHull();
  h.lineY(2, 10) = std::nan("");
  h.lineZ(3, 11) = std::numeric_limits<double>::infinity();
  h.lineY(4, 12) = -1e300;
  h.nChines = 40;  // beyond the tables: lines 0..25 are read
  const FoldReport r = checkFolds(h);
  for (const FoldStretch& s : r.stretches) {
    EXPECT_TRUE(std::isfinite(s.depth) && std::isfinite(s.fromX) && std::isfinite(s.toX));
    EXPECT_LE(s.fromPoint, s.toPoint);
  }
  EXPECT_EQ(r.message(1).find("nan"), std::string::npos);
  EXPECT_EQ(r.message(1).find("inf"), std::string::npos);
}

// Random automatic plankings as the screen accepts them: every stretch is
// well formed, and a fold under a line is one that the lines show.
TEST(FoldCheck, RandomAutomaticPlanking) {
  std::mt19937 rng(21);
  std::uniform_int_distribution<int> planks(2, 20), first(16, 60), extra(0, 110);
  std::uniform_real_distribution<double> sheer(0.5, 1.6), shape(-1, 2);
  int folded = 0;
  for (int i = 0; i < 30; ++i) {
    const int n = planks(rng), a = first(rng);
    const auto h = autoHull(n, a, std::min(170, a + 3 * (n - 1) + extra(rng)), sheer(rng),
                            sheer(rng), sheer(rng), std::to_string(shape(rng)));
    const FoldReport r = checkFolds(*h);
    folded += r.folded();
    for (const FoldStretch& s : r.stretches) {
      SCOPED_TRACE(foldSentence(s, 1));
      EXPECT_TRUE(std::isfinite(s.depth) && s.depth >= 0);
      EXPECT_LE(s.fromPoint, s.toPoint);
      EXPECT_GE(s.plank, 0);
      EXPECT_LT(s.plank, h->nChines);
      if (s.kind == FoldKind::under) {
        EXPECT_GT(s.depth, kFoldTolerance);
        EXPECT_TRUE(upperLineDips(*h, s));
      }
    }
  }
  EXPECT_GT(folded, 0) << "steep last planks fold the first one under line 1";
}

// Random planks typed by hand into bouchain2, heights rising and
// inclinations up to the screen's 175 degrees, pram bow or stem.
TEST(FoldCheck, RandomPlanksByHand) {
  std::mt19937 rng(2);
  std::uniform_int_distribution<int> lines(2, 6), step(0, 40), bow(0, 1);
  std::uniform_real_distribution<double> rise(0, 0.4);
  int folded = 0;
  for (int i = 0; i < 200; ++i) {
    auto h = std::make_unique<HullStore>();
    initDefaultHull(*h);
    if (bow(rng)) h->yFwd(1) = 0.3;
    h->nChines = static_cast<i16>(lines(rng));
    fixture::validateBottom(*h);
    Bouchain2 s;
    s.activate(*h);
    int angle = h->plankAngle(0) + 5;
    double zA = h->zAft(1), zM = h->zMax(1), zF = h->zFwd(1);
    for (int row = 0; row + 2 <= h->nChines; ++row) {
      angle = std::min(175, angle + step(rng));
      zA += rise(rng);
      zM += rise(rng);
      zF += rise(rng);
      s.Text1(row).text = std::to_string(zA);
      s.Text2(row).text = std::to_string(zM);
      s.Text3(row).text = std::to_string(zF);
      s.Text4(row).text = std::to_string(row == 0 ? std::min(angle, 90) : angle);
    }
    for (int press = 0; press < 3 && !s.validerPlanks(*h); ++press) {
    }
    const FoldReport r = checkFolds(*h);
    folded += r.folded();
    for (const FoldStretch& f : r.stretches) {
      SCOPED_TRACE(foldSentence(f, 1));
      EXPECT_TRUE(std::isfinite(f.depth) && f.depth >= 0);
      EXPECT_LE(f.fromPoint, f.toPoint);
      if (f.kind == FoldKind::under) {
        EXPECT_TRUE(upperLineDips(*h, f));
      }
    }
  }
  EXPECT_GT(folded, 0) << "uneven height steps tilt a line's plane through the plank below";
}

}  // namespace
}  // namespace tolmar

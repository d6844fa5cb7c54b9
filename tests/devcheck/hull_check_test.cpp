// The check on hulls built through the screens: every plate of developAll
// in its order, figures finite, the flat end plates and the decks exact,
// lap-strake plates with their material, and a folded hull refused.
#include <gtest/gtest.h>

#include <cmath>

#include "devcheck/plate_check.h"
#include "development/hull_fixture.h"

namespace tolmar::devcheck {
namespace {

void expectFinite(const PlateCheck& c) {
  for (double v : {c.fit.maxError, c.fit.errorPerMetre(), c.fit.areaChangePercent(),
                   c.fit.minRadiusAlong, c.fit.minRadiusAcross, c.fit.maxTwist, c.alongX, c.acrossX,
                   c.thickness, c.needed.alongGrain, c.needed.acrossGrain})
    EXPECT_TRUE(std::isfinite(v)) << c.name;
}

TEST(HullCheck, EveryPlateInTheExportsOrder) {
  for (const auto& h : {fixture::defaultHull(), fixture::pramBowHull(), fixture::manyLineHull()}) {
    const std::vector<DevelopedPlate> plates = developAll(*h);
    const CheckReport r = checkDevelopment(*h);
    ASSERT_FALSE(r.folded) << r.message;
    ASSERT_EQ(r.plates.size(), plates.size());
    for (std::size_t i = 0; i < plates.size(); ++i) {
      const PlateCheck& c = r.plates[i];
      EXPECT_EQ(c.name, plates[i].name);
      EXPECT_FALSE(c.withLap);
      expectFinite(c);
      // The thickness screen has not run: the assumed 6 mm is judged.
      EXPECT_TRUE(c.thicknessAssumed);
      EXPECT_DOUBLE_EQ(c.thickness, 0.006);
      // The pattern of a plate laid from the hull's own lengths: within a
      // millimetre anywhere on these hulls.
      EXPECT_LT(c.fit.maxError, 0.001) << c.name;
      EXPECT_LT(std::fabs(c.fit.areaChangePercent()), 0.5) << c.name;
    }
  }
}

TEST(HullCheck, FlatPanelsAndDecksAreExact) {
  const auto h = fixture::pramBowHull();
  const CheckReport r = checkDevelopment(*h);
  int ends = 0;
  for (const PlateCheck& c : r.plates) {
    if (c.kind == PlateKind::transom || c.kind == PlateKind::pramBow) {
      ++ends;
      // A plane panel unrolled in its own plane.
      EXPECT_LT(c.fit.maxError, 1e-9) << c.name;
      EXPECT_EQ(c.fit.minRadiusAlong, kStraightRadius) << c.name;
      EXPECT_EQ(c.verdict, Verdict::fits);
    }
    if (c.kind == PlateKind::deck) {
      // Curved only along its length, as its development takes it: only
      // the rise of the line across the deck is not in the pattern.
      EXPECT_LT(c.fit.errorPerMetre(), 1.0) << c.name;
    }
  }
  EXPECT_EQ(ends, 2);
}

TEST(HullCheck, TheBottomBendsAlongAndTheFactorMoves) {
  const auto h = fixture::defaultHull();
  const CheckReport r = checkDevelopment(*h);
  const PlateCheck& bottom = r.plates.front();
  ASSERT_EQ(bottom.kind, PlateKind::bottom);
  // The bottom rises to the stem: a bend of a few metres somewhere inside
  // the hull's length.
  EXPECT_LT(bottom.fit.minRadiusAlong, 100);
  EXPECT_GT(bottom.fit.minRadiusAlong, 0.1);
  EXPECT_GE(bottom.alongX, h->lineX(0, 0));
  EXPECT_LE(bottom.alongX, h->lineX(0, kLastPoint));
  // A plywood a hundred times stiffer than the table will not take it;
  // one a thousandth as stiff takes anything.
  CheckOptions stiff;
  stiff.factor = 100;
  EXPECT_EQ(checkDevelopment(*h, stiff).plates.front().verdict, Verdict::willNotBend);
  CheckOptions soft;
  soft.factor = 0.001;
  for (const PlateCheck& c : checkDevelopment(*h, soft).plates) EXPECT_EQ(c.verdict, Verdict::fits);
}

TEST(HullCheck, BadFactorAndNoThickness) {
  const auto h = fixture::defaultHull();
  for (double f : {0.0, -2.0, std::nan("")}) {
    CheckOptions o;
    o.factor = f;
    const CheckReport r = checkDevelopment(*h, o);
    EXPECT_TRUE(r.factorReplaced);
    EXPECT_EQ(r.factor, 1.0);
    for (const PlateCheck& c : r.plates) expectFinite(c);
  }
  CheckOptions none;
  none.assumedThickness = 0;
  for (const PlateCheck& c : checkDevelopment(*h, none).plates) {
    EXPECT_EQ(c.thickness, 0);
    EXPECT_EQ(c.needed.alongGrain, 0);
    EXPECT_EQ(c.verdict, Verdict::fits);
  }
}

TEST(HullCheck, LapStrakePlatesWithTheirMaterial) {
  auto h = fixture::defaultHull();
  h->overlapMode = 2;
  h->transomThick = 0.012;
  for (int n = 0; n < h->nChines; ++n) h->plankThick(n) = 0.009;
  for (int n = 2; n <= h->nChines; ++n)
    for (int i = 0; i <= kLastPoint; ++i) h->overlapWidth(n, i) = 0.02;
  const CheckReport r = checkDevelopment(*h);
  int laps = 0;
  for (std::size_t i = 0; i < r.plates.size(); ++i) {
    const PlateCheck& c = r.plates[i];
    expectFinite(c);
    if (!c.withLap) continue;
    ++laps;
    // Right after the same plate without its material.
    ASSERT_GT(i, 0u);
    EXPECT_EQ(r.plates[i - 1].name, c.name);
    EXPECT_FALSE(r.plates[i - 1].withLap);
    EXPECT_DOUBLE_EQ(c.thickness, 0.009);
    EXPECT_FALSE(c.thicknessAssumed);
    // 2 cm more of the same surface: the pattern's area grows by about
    // the lap times the plank's length, and it is still laid within a
    // few millimetres.
    EXPECT_GT(c.fit.flatArea, r.plates[i - 1].fit.flatArea);
    EXPECT_LT(c.fit.maxError, 0.005) << c.name;
  }
  // The bottom (transom thickness) and every side plank.
  EXPECT_EQ(laps, h->nChines);
}

TEST(HullCheck, AFoldedHullIsRefused) {
  auto h = fixture::defaultHull();
  // Line 3 put under line 2 at one station.
  h->lineZ(3, 40) = h->lineZ(2, 40) - 0.01;
  h->lineY(3, 40) = h->lineY(2, 40) - 0.005;
  const CheckReport r = checkDevelopment(*h);
  EXPECT_TRUE(r.folded);
  EXPECT_TRUE(r.plates.empty());
  EXPECT_NE(r.message.find("2"), std::string::npos) << r.message;
}

}  // namespace
}  // namespace tolmar::devcheck

// Every plate of three validated hulls, developed and measured against its
// 3-D edges: the default hull (pointed stem, 5 lines), a pram bow with 4
// lines, and 21 lines of automatic planking.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "development/calc_develop.h"
#include "hull_fixture.h"
#include "plate_checks.h"

namespace tolmar {
namespace {

using checks::Tables;

// Lengths are laid from sides of up to ~6 m: 1e-9 m is rounding, and the
// flat-triangle rule of triangleAngles (tolerance s * 1e-7) stays below it
// on these hulls.
constexpr double kLengthTol = 1e-9;
constexpr double kAreaTol = 1e-12;  // a triangle of repeated points has area 0

struct HullCase {
  std::string name;
  std::function<std::unique_ptr<HullStore>()> make;
};
void PrintTo(const HullCase& c, std::ostream* os) { *os << c.name; }

class DevelopHull : public ::testing::TestWithParam<HullCase> {
 protected:
  void SetUp() override { h = GetParam().make(); }

  void expectPlate(int line, int last, const Tables& t) {
    const auto fit = checks::measurePlate(*h, t, line, last);
    EXPECT_TRUE(fit.finite);
    EXPECT_LT(fit.edge, kLengthTol);
    EXPECT_LT(fit.rung, kLengthTol);
    EXPECT_LT(fit.diagonal, kLengthTol);
    EXPECT_GT(fit.minArea, -kAreaTol) << "a triangle laid mirrored";

    const auto e = checks::outlineExtent(*h, last);
    EXPECT_EQ(e.minX, 0.0);
    EXPECT_EQ(e.minY, 0.0);
    // The plate runs from the transom (left) to the stem (right).
    EXPECT_GT(h->devXi(last), h->devXi(0) + 1.0);
  }

  std::unique_ptr<HullStore> h;
};

TEST_P(DevelopHull, BottomKeepsLengthsClosesAndIsLevelAtMaxBeam) {
  developBottom(*h);
  SCOPED_TRACE("bottom");
  expectPlate(0, kBottomLastPoint, {h->edgeXRef(), h->edgeYRef(), h->edgeZRef()});
  EXPECT_NEAR(h->devXi(83), h->devXs(83), 1e-9);
  EXPECT_NEAR(h->devYi(83), h->devYs(83), 1e-9);
  const int m = h->iMaxBeam;
  EXPECT_NEAR(h->devYi(m - 2), h->devYi(m + 2), 1e-12);
  EXPECT_GT(h->devXi(m + 2), h->devXi(m - 2));
}

TEST_P(DevelopHull, PlanksKeepLengthsAndAreLevelled) {
  for (int k = 1; k <= h->nChines - 1; ++k) {
    SCOPED_TRACE("plank " + std::to_string(k));
    developPlank(*h, k);
    expectPlate(k, kPlankLastPoint, {h->lineXRef(), h->lineZRef(), h->lineYRef()});
    if (k == 1)
      EXPECT_NEAR(h->devYi(0), h->devYi(82), 1e-12);
    else
      EXPECT_NEAR(h->devYs(0), h->devYs(82), 1e-12);
  }
}

TEST_P(DevelopHull, TableOrderOfAPlankDoesNotMatter) {
  const int k = h->nChines - 1;
  developPlank(*h, k);
  const HullStore first = *h;
  calcDevelop(*h, 80, k, h->lineXRef(), h->lineYRef(), h->lineZRef());
  for (int i = 0; i <= 82; ++i) {
    EXPECT_NEAR(h->devXi(i), first.devXi(i), 1e-12);
    EXPECT_NEAR(h->devYs(i), first.devYs(i), 1e-12);
  }
}

TEST_P(DevelopHull, SamePlateTwiceGivesIdenticalArrays) {
  developPlank(*h, 1);
  const auto xi = h->devXi, yi = h->devYi, xs = h->devXs, ys = h->devYs;
  developBottom(*h);
  developPlank(*h, 1);
  for (int i = 0; i <= 82; ++i) {
    ASSERT_EQ(h->devXi(i), xi(i)) << i;
    ASSERT_EQ(h->devYi(i), yi(i)) << i;
    ASSERT_EQ(h->devXs(i), xs(i)) << i;
    ASSERT_EQ(h->devYs(i), ys(i)) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Hulls, DevelopHull,
                         ::testing::Values(HullCase{"Default", fixture::defaultHull},
                                           HullCase{"PramBow4Lines", fixture::pramBowHull},
                                           HullCase{"Auto21Lines", fixture::manyLineHull}),
                         [](const auto& info) { return info.param.name; });

TEST(DevelopSlots, PlateWritesOnlyItsPointsAndLeavesTheRestStale) {
  auto h = fixture::defaultHull();
  constexpr double kStale = 123.25;
  h->devXi.fill(kStale);
  h->devYi.fill(kStale);
  h->devXs.fill(kStale);
  h->devYs.fill(kStale);
  developBottom(*h);
  const double bottom83 = h->devXi(83);
  EXPECT_NE(bottom83, kStale);
  developPlank(*h, 2);
  EXPECT_EQ(h->devXi(83), bottom83);
  for (int i = 84; i <= kMaxDev; ++i) {
    EXPECT_EQ(h->devXi(i), kStale);
    EXPECT_EQ(h->devYs(i), kStale);
  }
}

}  // namespace
}  // namespace tolmar

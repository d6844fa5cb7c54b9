// The print scale: its steps, the fit of a hull to the page, the origins,
// and the cases where the hull or the paper leave nothing to fit.
#include "printing/page_scale.h"

#include <gtest/gtest.h>

#include <cmath>

#include "print_fixture.h"

namespace tolmar {
namespace {

struct StepCase {
  double raw, stepped;
};

TEST(StepScale, WholeStepsOfEachRange) {
  const StepCase cases[] = {
      {2273, 2272},   {1136, 1136},  {1135.999, 568}, {1135, 568},
      {568.001, 568}, {568, 568},    {567.9, 454.4},  {227.2, 227.2},
      {113.6, 113.6}, {113.5, 56.8}, {56.8, 56.8},    {56.79, 51.12},
      {5.68, 5.68},   {5.67, 5.67},  {0.02, 0.02},    {10000000, 9999072},
  };
  for (const StepCase& c : cases) EXPECT_NEAR(stepScale(c.raw), c.stepped, 1e-9) << "raw " << c.raw;
}

// Lines 1..4 from x0 to x1, half breadth y, height z at every point.
HullStore boxHull(double x0, double x1, double y, double z) {
  HullStore h;
  for (int l = 1; l <= 4; ++l) {
    for (int i = 0; i <= kLastPoint; ++i) {
      h.lineX(l, i) = x0 + (x1 - x0) * i / kLastPoint;
      h.lineY(l, i) = y;
      h.lineZ(l, i) = z;
    }
  }
  h.nChines = 4;
  return h;
}

TEST(PageScale, FitsTheWidthAndCentresTheHull) {
  HullStore h = boxHull(0, 5, 1, 0.5);
  const double W = 11906, H = 16838;
  // R = 1: the width allows (W 0.95 - 1081.6) / 5.8 = 1763.6, the height 6831.
  EXPECT_NEAR(fitScale(h, W, H), (W * 0.95 - 1081.6) / 5.8, 1e-9);
  pageScale(h, W, H);
  EXPECT_FLOAT_EQ(h.printScaleX, 1136);
  EXPECT_FLOAT_EQ(h.printScaleY, 1136);
  EXPECT_FLOAT_EQ(h.printScaleZ, -1136);
  EXPECT_FLOAT_EQ(h.printOriginX, static_cast<float>((W * 0.95 - 5.8 * 1136) / 2 + 681.6));
  EXPECT_FLOAT_EQ(h.printOriginY, static_cast<float>(H * 0.5 + 668));
  EXPECT_FLOAT_EQ(h.printOriginZ, h.printOriginY);
}

TEST(PageScale, HeightLimitsALandscapePageOfADeepHull) {
  HullStore h = boxHull(0, 2, 0.5, -3);  // R = |zLo| = 3
  const double W = 16838, H = 11906;
  EXPECT_NEAR(fitScale(h, W, H), (H * 0.95 - 968) / 6.6, 1e-9);
  pageScale(h, W, H);
  EXPECT_FLOAT_EQ(h.printScaleX, 1136);  // 1567 raw
}

TEST(PageScale, ExtentsStartFromTheOrigin) {
  // All X positive: the span still runs from X = 0, and the origin is not shifted.
  HullStore pos = boxHull(2, 6, 1, 0.5);
  EXPECT_NEAR(fitScale(pos, 11906, 16838), (11906 * 0.95 - 1081.6) / 6.8, 1e-9);
  pageScale(pos, 11906, 16838);
  const float s = pos.printScaleX;
  EXPECT_FLOAT_EQ(pos.printOriginX, static_cast<float>((11906 * 0.95 - 6.8 * s) / 2 + 681.6));

  // X from -1: the hull's aft end lands where X = 0 would have been.
  HullStore neg = boxHull(-1, 5, 1, 0.5);
  pageScale(neg, 11906, 16838);
  const float t = neg.printScaleX;
  EXPECT_FLOAT_EQ(neg.printOriginX, static_cast<float>((11906 * 0.95 - 6.8 * t) / 2 + 681.6 + t));
}

TEST(PageScale, ReadsLinesOneToFourWhateverTheNumberOfChines) {
  HullStore h = boxHull(0, 5, 1, 0.5);
  h.nChines = 1;
  for (int i = 0; i <= kLastPoint; ++i) {
    h.lineX(0, i) = 500;  // keel and lines above 4 are not measured
    h.lineX(5, i) = 500;
  }
  const double before = fitScale(h, 11906, 16838);
  EXPECT_NEAR(before, (11906 * 0.95 - 1081.6) / 5.8, 1e-9);
  h.lineX(4, 40) = 9.2;  // an earlier hull's value left in line 4
  EXPECT_NEAR(fitScale(h, 11906, 16838), (11906 * 0.95 - 1081.6) / 10, 1e-9);
}

TEST(PageScale, EmptyHullAndTinyPaperStayFinite) {
  HullStore empty;
  pageScale(empty, 11906, 16838);
  EXPECT_FLOAT_EQ(empty.printScaleX, static_cast<float>(kMaxPrintScale));
  EXPECT_TRUE(std::isfinite(empty.printOriginX));

  HullStore h = boxHull(0, 5, 1, 0.5);
  pageScale(h, 1000, 1000);  // smaller than the margins
  EXPECT_FLOAT_EQ(h.printScaleX, static_cast<float>(kNoRoomScale));
}

TEST(PageScale, HullTooBigForAnyStepIsLeftUnrounded) {
  HullStore h = boxHull(0, 5000, 50, 20);
  pageScale(h, 11906, 16838);
  const double raw = (11906 * 0.95 - 1081.6) / (50 * 0.8 + 5000);
  EXPECT_LT(raw, 5.68);
  EXPECT_FLOAT_EQ(h.printScaleX, static_cast<float>(raw));
  EXPECT_TRUE(std::isfinite(h.printOriginX));
}

TEST(PageScale, DefaultHullLiesOnTheSheet) {
  auto h = fixture::defaultHull();
  for (const auto& [w, ht] : {std::pair{11906.0, 16838.0}, std::pair{16838.0, 11906.0}}) {
    pageScale(*h, w, ht);
    for (int l = 0; l <= h->nChines; ++l) {
      for (int i = 0; i <= kLastPoint; ++i) {
        const double x = h->printScaleX * h->lineX(l, i) + h->printOriginX;
        const double z = h->printScaleZ * h->lineZ(l, i) + h->printOriginZ;
        const double y = h->printScaleY * h->lineY(l, i) + h->printOriginY;
        EXPECT_GT(x, 681.6);
        EXPECT_LT(x, w * 0.95);
        EXPECT_GT(z, 0);
        EXPECT_LT(y, ht);
      }
    }
  }
}

}  // namespace
}  // namespace tolmar

// Station sections and the board's view transform.
#include "hull/stations.h"

#include <gtest/gtest.h>

#include <cmath>

#include "hull/chine_equations.h"
#include "hull_fixtures.h"

namespace tolmar {
namespace {

using testing::plankedDefaultHull;

TEST(Stations, SectionPointsFromKeelToSheer) {
  HullStore h = plankedDefaultHull();
  buildAllStations(h);
  for (int p = 0; p <= 81; ++p) {
    EXPECT_EQ(h.stationX(p, 0), h.lineX(0, p));
    EXPECT_EQ(h.stationY(p, 0), 0);
    EXPECT_EQ(h.stationZ(p, 0), h.lineZ(0, p));
    if (p >= 1) {  // the bottom's section ends on the chine (10 Y / 10 to an ulp)
      EXPECT_EQ(h.stationX(p, 10), h.lineX(1, p));
      EXPECT_DOUBLE_EQ(h.stationY(p, 10), h.lineY(1, p));
      EXPECT_NEAR(h.stationZ(p, 10), h.lineZ(1, p), 1e-12) << p;
    }
    for (int i = 1; i <= 9; ++i) {
      EXPECT_EQ(h.stationY(p, i), i * h.lineY(1, p) / 10);
      EXPECT_EQ(h.stationZ(p, i), bottomZ(h, h.stationX(p, i), h.stationY(p, i)));
    }
  }
  for (int p = 0; p <= 82; ++p) {
    for (int n = 2; n <= 5; ++n) {
      EXPECT_EQ(h.stationX(p, n + 9), h.lineX(n, p));
      EXPECT_EQ(h.stationY(p, n + 9), h.lineY(n, p));
      EXPECT_EQ(h.stationZ(p, n + 9), h.lineZ(n, p));
    }
  }
  EXPECT_EQ(h.stationX(41, 15), 0);  // columns above nChines + 9 are not written
}

TEST(Stations, StemSectionOnAPointedStemIsOnTheCentrePlane) {
  HullStore h = plankedDefaultHull();
  buildStation(h, 82);
  for (int i = 0; i <= 10; ++i) {
    EXPECT_NEAR(h.stationY(82, i), 0, 1e-9) << i;
    EXPECT_EQ(h.stationX(82, i), h.lineX(0, 82) + (h.lineX(1, 82) - h.lineX(0, 82)) * i / 10);
  }
}

TEST(Stations, StemSectionOfAPramBow) {
  HullStore h;
  initDefaultHull(h);
  h.yFwd(1) = 0.3;
  testing::validateBottom(h);
  buildStation(h, 82);
  EXPECT_EQ(h.stationY(82, 0), 0);  // at the keel
  EXPECT_NEAR(h.stationY(82, 10), h.lineY(1, 82), 1e-12);
  for (int i = 1; i <= 10; ++i) {
    EXPECT_GE(h.stationY(82, i), h.stationY(82, i - 1) - 1e-3) << i;
    EXPECT_LE(h.stationY(82, i), h.lineY(1, 82) + 1e-12) << i;
  }
}

TEST(Stations, OutOfRangeRowsAreIgnored) {
  HullStore h = plankedDefaultHull();
  const HullStore before = h;
  buildStation(h, -1);
  buildStation(h, 83);
  EXPECT_TRUE(h.stationX == before.stationX);
}

constexpr double kW = 15000, kH = 9000;

TEST(ScaleViews, OneScaleForAllViews) {
  HullStore h = plankedDefaultHull();
  scaleViews(h, kW, kH, 1);
  EXPECT_GT(h.scaleX, 0);
  EXPECT_EQ(h.scaleY, h.scaleX);
  EXPECT_EQ(h.scaleZ, -h.scaleX);
  // The profile starts 150 twips in from the left edge.
  float xMin = static_cast<float>(-0.1 * h.xFwd(1));
  for (int n = 2; n <= 5; ++n) xMin = std::min(xMin, static_cast<float>(h.lineX(n, 0)));
  EXPECT_NEAR(h.scaleX * xMin + h.originX, 150, 1e-3);
  // The section view stands right of the profile, inside the picture.
  EXPECT_GT(h.bodyAxis, h.xFwd(1));
  EXPECT_LT(h.scaleX * h.bodyAxis + h.originX, kW);
}

TEST(ScaleViews, WidthOrHeightDecides) {
  HullStore h = plankedDefaultHull();
  scaleViews(h, 1e6, kH, 1);  // wide picture: the height limits
  const float byHeight = h.scaleX;
  scaleViews(h, kW, 1e6, 1);  // tall picture: the width limits
  const float byWidth = h.scaleX;
  scaleViews(h, kW, kH, 1);
  EXPECT_EQ(h.scaleX, std::min(byHeight, byWidth));
  scaleViews(h, 1e5, kH, 1);
  EXPECT_EQ(h.scaleX, byHeight);  // the height still limits: the scale does not grow
}

TEST(ScaleViews, TallSheerShrinksTheScale) {
  HullStore h = plankedDefaultHull();
  scaleViews(h, 1e6, kH, 0);
  const float bottomOnly = h.scaleX;
  scaleViews(h, 1e6, kH, 1);
  EXPECT_LT(h.scaleX, bottomOnly);
}

TEST(ScaleViews, BottomStepIgnoresStaleUpperLines) {
  HullStore clean = testing::validatedDefaultHull();
  HullStore stale = clean;
  for (int n = 2; n <= 5; ++n) {
    for (int p = 0; p <= 82; ++p) {
      stale.lineX(n, p) = -50;
      stale.lineY(n, p) = 40;
      stale.lineZ(n, p) = 30;
    }
  }
  scaleViews(clean, kW, kH, 0);
  scaleViews(stale, kW, kH, 0);
  EXPECT_EQ(stale.scaleX, clean.scaleX);
  EXPECT_EQ(stale.originX, clean.originX);
  EXPECT_EQ(stale.originY, clean.originY);
  EXPECT_EQ(stale.originZ, clean.originZ);
  EXPECT_EQ(stale.bodyAxis, clean.bodyAxis);
}

TEST(ScaleViews, EmptyStoreAndTinyPictureStayFinite) {
  HullStore empty;
  scaleViews(empty, kW, kH, 1);
  HullStore tiny = plankedDefaultHull();
  scaleViews(tiny, 100, 100, 1);
  for (const HullStore* h : {&empty, &tiny}) {
    for (float v :
         {h->scaleX, h->scaleY, h->scaleZ, h->originX, h->originY, h->originZ, h->bodyAxis}) {
      EXPECT_TRUE(std::isfinite(v));
    }
    EXPECT_GT(h->scaleX, 0);
  }
}

}  // namespace
}  // namespace tolmar

// The strip development on made-up edges: a plane strip (which must come out
// congruent, every pair of points at its 3-D distance), repeated points,
// coincident edges, a cone with its apex as one edge, sub-micrometre plates
// and chords of no length.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <numbers>

#include "development/calc_develop.h"
#include "plate_checks.h"

namespace tolmar {
namespace {

using Table = Grid<double, 0, 1, 0, 82>;

struct Strip {
  Table x, y, z;
  checks::Tables refs() const { return {x.ref(), y.ref(), z.ref()}; }
  void set(int side, int i, double px, double py, double pz) {
    x(side, i) = px;
    y(side, i) = py;
    z(side, i) = pz;
  }
  void copy(int side, int to, int from) {
    set(side, to, x(side, from), y(side, from), z(side, from));
  }
};

// Plane coordinates (u, v) into a plane tilted about two axes.
void planePoint(double u, double v, double& px, double& py, double& pz) {
  const double e1[3] = {0.8, 0.0, 0.6};
  const double e2[3] = {-0.36, 0.8, 0.48};  // unit, orthogonal to e1
  px = 1.0 + u * e1[0] + v * e2[0];
  py = 0.5 + u * e1[1] + v * e2[1];
  pz = -0.2 + u * e1[2] + v * e2[2];
}

std::unique_ptr<Strip> planeStrip() {
  auto s = std::make_unique<Strip>();
  for (int i = 0; i <= 82; ++i) {
    double px, py, pz;
    planePoint(i * 0.07, 0.1 * std::sin(i / 10.0), px, py, pz);
    s->set(0, i, px, py, pz);
    planePoint(i * 0.07 + 0.02, 0.8 + 0.2 * std::cos(i / 13.0), px, py, pz);
    s->set(1, i, px, py, pz);
  }
  return s;
}

void develop(HullStore& h, const Strip& s, int line) {
  // Rows 0 and 1 of the tables stand for lines `line` and `line`+1: only the
  // levelling rule reads the line number.
  TableRef x = s.x.ref(), y = s.y.ref(), z = s.z.ref();
  for (TableRef* t : {&x, &y, &z}) {
    t->rowLo = line;
    t->rowHi = line + 1;
  }
  calcDevelop(h, 80, line, x, y, z);
}

struct FlatPt {
  double x, y;
};
FlatPt flat(const HullStore& h, int side, int i) {
  return side == 0 ? FlatPt{h.devXi(i), h.devYi(i)} : FlatPt{h.devXs(i), h.devYs(i)};
}

// Largest error over all pairs of the 166 points.
double worstPairError(const HullStore& h, const Strip& s) {
  double worst = 0;
  const auto t = s.refs();
  for (int a = 0; a < 166; ++a)
    for (int b = a + 1; b < 166; ++b) {
      const int sa = a / 83, ia = a % 83, sb = b / 83, ib = b % 83;
      const FlatPt p = flat(h, sa, ia), q = flat(h, sb, ib);
      worst = std::max(worst, std::abs(std::hypot(p.x - q.x, p.y - q.y) - t.dist(sa, ia, sb, ib)));
    }
  return worst;
}

TEST(DevelopPlaneStrip, ComesOutCongruentForEveryLevellingRule) {
  auto s = planeStrip();
  HullStore h;
  h.iMaxBeam = 41;
  for (int line : {0, 1, 2, 7}) {
    SCOPED_TRACE(line);
    develop(h, *s, line);
    EXPECT_LT(worstPairError(h, *s), 1e-9);
    const auto fit = checks::measurePlate(h, s->refs(), 0, 82);
    EXPECT_GT(fit.minArea, 0.0);
    const auto e = checks::outlineExtent(h, 82);
    EXPECT_EQ(e.minX, 0.0);
    EXPECT_EQ(e.minY, 0.0);
  }
}

TEST(DevelopPlaneStrip, RepeatedPointsGiveIdenticalFlatPointsAndKeepDistances) {
  auto s = planeStrip();
  s->copy(0, 0, 1);                                  // keel-like: points 0 and 1 coincide
  s->copy(0, 82, 81);                                // and 81, 82
  for (int i = 71; i <= 82; ++i) s->copy(1, i, 70);  // upper edge ends short
  for (int i = 3; i <= 6; ++i) s->copy(1, i, 2);     // repeats aft of the rung
  HullStore h;
  develop(h, *s, 3);
  EXPECT_EQ(h.devXi(0), h.devXi(1));
  EXPECT_EQ(h.devYi(0), h.devYi(1));
  EXPECT_EQ(h.devXi(82), h.devXi(81));
  for (int i = 71; i <= 82; ++i) {
    EXPECT_EQ(h.devXs(i), h.devXs(70));
    EXPECT_EQ(h.devYs(i), h.devYs(70));
  }
  for (int i = 3; i <= 6; ++i) EXPECT_EQ(h.devXs(i), h.devXs(2));
  EXPECT_LT(worstPairError(h, *s), 1e-9);
}

TEST(DevelopDegenerate, CoincidentEdgesDevelopIntoOneLine) {
  Strip s;
  for (int i = 0; i <= 82; ++i) {
    const double px = i * 0.075, py = 0.3 * std::sin(i / 20.0), pz = 0.01 * i * i / 82;
    s.set(0, i, px, py, pz);
    s.set(1, i, px, py, pz);
  }
  HullStore h;
  develop(h, s, 2);
  const auto fit = checks::measurePlate(h, s.refs(), 0, 82);
  EXPECT_TRUE(fit.finite);
  EXPECT_LT(fit.edge, 1e-9);
  for (int i = 0; i <= 82; ++i) {
    EXPECT_NEAR(h.devXi(i), h.devXs(i), 1e-9) << i;
    EXPECT_NEAR(h.devYi(i), h.devYs(i), 1e-9) << i;
  }
}

// The upper edge is one point: its end-to-end chord has no length, so the
// pattern is placed without turning, the starting rung standing upright.
TEST(DevelopDegenerate, ConeApexLeavesPatternUnturned) {
  Strip s;
  for (int i = 0; i <= 82; ++i) {
    const double a = i * 0.02;
    s.set(0, i, std::cos(a), std::sin(a), 0.1 * a);
    s.set(1, i, 0.0, 0.0, 1.5);
  }
  HullStore h;
  develop(h, s, 4);
  EXPECT_EQ(h.devXs(10), h.devXi(10));
  EXPECT_GT(h.devYs(10), h.devYi(10));
  const auto t = s.refs();
  for (int i = 0; i <= 82; ++i) {
    EXPECT_EQ(h.devXs(i), h.devXs(0));
    EXPECT_NEAR(std::hypot(h.devXi(i) - h.devXs(i), h.devYi(i) - h.devYs(i)), t.dist(0, i, 1, i),
                1e-9);
  }
}

TEST(DevelopDegenerate, OnePointPlateIsAllZeros) {
  Strip s;
  for (int i = 0; i <= 82; ++i) {
    s.set(0, i, 2.0, 0.4, 0.1);
    s.set(1, i, 2.0, 0.4, 0.1);
  }
  HullStore h;
  for (int line : {0, 1, 2}) {
    h.iMaxBeam = 41;
    develop(h, s, line);
    for (int i = 0; i <= 82; ++i) {
      EXPECT_EQ(h.devXi(i), 0.0);
      EXPECT_EQ(h.devYi(i), 0.0);
      EXPECT_EQ(h.devXs(i), 0.0);
      EXPECT_EQ(h.devYs(i), 0.0);
    }
  }
}

// All triangles below a millionth of a metre in perimeter: laid at pi/3,
// so the pattern stays finite and small.
TEST(DevelopDegenerate, SubMicrometrePlateStaysFinite) {
  Strip s;
  for (int i = 0; i <= 82; ++i) {
    s.set(0, i, 1 + i * 1e-9, 0, 0);
    s.set(1, i, 1 + i * 1e-9, 1e-8, 0);
  }
  HullStore h;
  develop(h, s, 2);
  const auto e = checks::outlineExtent(h, 82);
  EXPECT_TRUE(std::isfinite(e.maxX) && std::isfinite(e.maxY));
  EXPECT_EQ(e.minX, 0.0);
  EXPECT_EQ(e.minY, 0.0);
  EXPECT_LT(e.maxX, 1e-6);
  EXPECT_LT(e.maxY, 1e-6);
}

TEST(DevelopDegenerate, BottomChordOfNoLengthAtMaxBeamLeavesPatternUnturned) {
  auto s = planeStrip();
  for (int i = 39; i <= 43; ++i) s->copy(0, i, 41);
  HullStore h;
  h.iMaxBeam = 41;
  develop(h, *s, 0);
  EXPECT_EQ(h.devXs(10), h.devXi(10));
  EXPECT_EQ(h.devXi(39), h.devXi(43));
  EXPECT_LT(worstPairError(h, *s), 1e-9);
}

TEST(DevelopDegenerate, UnsetMaxBeamIsHeldInsideThePlate) {
  auto s = planeStrip();
  HullStore h;
  h.iMaxBeam = 0;
  develop(h, *s, 0);
  EXPECT_NEAR(h.devYi(0), h.devYi(4), 1e-12);
}

struct ChordCase {
  double x1, y1, x2, y2, theta;
};

TEST(LevellingAngle, TurnsTheChordLevelAndIsFiniteWithoutXExtent) {
  constexpr double q = std::numbers::pi / 2;
  const ChordCase cases[] = {
      {0, 0, 2, 2, -std::numbers::pi / 4},
      {1, 1, 3, 0, std::atan(0.5)},
      {0, 0, 0, 0, 0},        // one point: not turned
      {1, 3, 1, 1, q},        // straight down: a quarter turn anticlockwise
      {1, 1, 1, 3, -q},       // straight up: a quarter turn clockwise
      {0, 0, 1e-300, 1, -q},  // as good as straight up
  };
  for (const auto& c : cases) {
    const double t = levellingAngle(c.x1, c.y1, c.x2, c.y2);
    EXPECT_NEAR(t, c.theta, 1e-15) << c.x1 << " " << c.y1 << " " << c.x2 << " " << c.y2;
    // Turned by t, the chord has no Y extent left.
    const double dx = c.x2 - c.x1, dy = c.y2 - c.y1;
    EXPECT_NEAR(std::sin(t) * dx + std::cos(t) * dy, 0.0, 1e-12);
  }
}

}  // namespace
}  // namespace tolmar

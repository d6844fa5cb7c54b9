// Joints: where they go along a part, and that the pieces they give put
// back together make the part again: a scarf's pieces overlapping by ratio
// x thickness, a butt strap's meeting on the joint with the strap cut
// around it.
#include "sheets/joints.h"

#include <gtest/gtest.h>

#include <cmath>

#include "sheet_fixtures.h"
#include "sheets/clipper_geometry.h"

namespace tolmar::sheets {
namespace {

using testing::curvedStrip;

// Area of what lies in one outline but not the other.
double differenceArea(const std::vector<MmPolygon>& pieces, const MmPolygon& whole) {
  using namespace ClipperLib;
  Clipper c;
  for (const MmPolygon& p : pieces) c.AddPath(toPath(p), ptSubject, true);
  c.AddPath(toPath(whole), ptClip, true);
  Paths x;
  c.Execute(ctXor, x, pftNonZero, pftNonZero);
  return std::abs(pathsArea(x));
}

double perimeter(const MmPolygon& p) {
  double s = 0;
  for (std::size_t i = 0; i < p.size(); ++i) {
    const MmPoint& a = p[i];
    const MmPoint& b = p[(i + 1) % p.size()];
    s += std::hypot(b.x - a.x, b.y - a.y);
  }
  return s;
}

TEST(AutoJoints, PiecesFitTheSheetAndJointsKeepClearOfTheEnds) {
  const double L = 5200, U = 2420, s = 48;
  for (JointStrategy st :
       {JointStrategy::even, JointStrategy::fromAft, JointStrategy::fromForward}) {
    const auto c = autoJoints(L, U, s, st);
    ASSERT_EQ(c.size(), 2u);  // (5200 - 48) / (2420 - 48) = 2.17: three pieces
    double from = 0;
    for (std::size_t i = 0; i <= c.size(); ++i) {
      const double to = i < c.size() ? c[i] + s / 2 : L;
      EXPECT_LE(to - from, U + 1e-9);
      if (i < c.size()) {
        EXPECT_GE(c[i], kJointEndClearanceMm);
        EXPECT_LE(c[i], L - kJointEndClearanceMm);
        from = c[i] - s / 2;
      }
    }
  }
  // Even: three pieces of (5200 + 2 x 48) / 3 each.
  const auto even = autoJoints(L, U, s, JointStrategy::even);
  EXPECT_NEAR(even[0] + s / 2, (L + 2 * s) / 3, 1e-9);
  // From aft: the first piece takes the whole usable length.
  EXPECT_NEAR(autoJoints(L, U, s, JointStrategy::fromAft)[0] + s / 2, U, 1e-9);
  EXPECT_TRUE(autoJoints(2000, U, s, JointStrategy::even).empty());    // fits already
  EXPECT_TRUE(autoJoints(5000, 40, 48, JointStrategy::even).empty());  // scarf longer than sheet
}

TEST(CutParts, ScarfPiecesPutBackTogetherGiveThePart) {
  const SheetPart strip = curvedStrip("p02", 5300, 420, 160, 250, 6);
  SheetOptions o;
  o.joint = JointKind::scarf;
  o.scarfRatio = 8;
  const CutResult r = cutParts({strip}, o, 2420, JointStrategy::even, 1);
  ASSERT_EQ(r.error, "");
  ASSERT_EQ(r.pieces.size(), 3u);
  ASSERT_EQ(r.joints.size(), 2u);
  std::vector<MmPolygon> outlines;
  for (const Piece& p : r.pieces) {
    EXPECT_EQ(p.of, 3);
    EXPECT_LE(boundingBox(p.outline).width(), 2420 + 1e-6);
    outlines.push_back(p.outline);
  }
  // Within 0.1 mm all along the outline.
  EXPECT_LT(differenceArea(outlines, strip.outline), 0.1 * perimeter(strip.outline));
  // Neighbours overlap by the scarf, 8 x 6 mm, along the part.
  const MmBox a = boundingBox(r.pieces[0].outline), b = boundingBox(r.pieces[1].outline);
  EXPECT_NEAR(a.x1 - b.x0, 48, 0.02);
  EXPECT_NEAR(r.joints[0].overlapMm, 48, 1e-9);
  // The taper's start is marked on both pieces.
  auto hasLineAt = [](const Piece& p, double x) {
    for (const MmPolyline& m : p.marks)
      if (m.size() == 2 && std::abs(m[0].x - x) < 1e-6 && std::abs(m[1].x - x) < 1e-6) return true;
    return false;
  };
  EXPECT_TRUE(hasLineAt(r.pieces[0], r.joints[0].atMm - 24));
  EXPECT_TRUE(hasLineAt(r.pieces[1], r.joints[0].atMm + 24));
}

TEST(CutParts, ButtPiecesMeetOnTheJointAndTheStrapIsCutAroundIt) {
  const SheetPart strip = curvedStrip("p01", 4000, 400, 200, 150, 6);
  SheetOptions o;
  o.joint = JointKind::butt;
  o.strapWidthMm = 150;
  o.jointsAt = {{"p01", 1.8}};
  const CutResult r = cutParts({strip}, o, 2420, JointStrategy::even, 1);
  ASSERT_EQ(r.error, "");
  ASSERT_EQ(r.straps.size(), 1u);
  ASSERT_EQ(r.pieces.size(), 3u);  // two pieces and the strap
  EXPECT_NEAR(boundingBox(r.pieces[0].outline).x1, 1800, 0.01);
  EXPECT_NEAR(boundingBox(r.pieces[1].outline).x0, 1800, 0.01);
  EXPECT_LT(differenceArea({r.pieces[0].outline, r.pieces[1].outline}, strip.outline),
            0.1 * perimeter(strip.outline));
  const MmBox strap = boundingBox(r.straps[0].outline);
  EXPECT_NEAR(strap.x0, 1725, 0.01);
  EXPECT_NEAR(strap.x1, 1875, 0.01);
  EXPECT_EQ(r.straps[0].name, "p01 strap 1");
  EXPECT_EQ(r.pieces[2].part, 1);  // the strap's own part, after the parts
}

TEST(CutParts, RefusesWhatCannotBeCut) {
  const SheetPart strip = curvedStrip("p03", 4000, 400, 200, 150, 6);
  SheetOptions o;
  o.joint = JointKind::none;
  CutResult r = cutParts({strip}, o, 2420, JointStrategy::even, 1);
  EXPECT_NE(r.error.find("p03"), std::string::npos) << r.error;
  EXPECT_NE(r.error.find("4000 mm"), std::string::npos) << r.error;

  o.joint = JointKind::scarf;
  o.jointsAt = {{"p03", 0.2}};  // within 300 mm of the aft end
  r = cutParts({strip}, o, 2420, JointStrategy::even, 1);
  EXPECT_NE(r.error.find("300 mm"), std::string::npos) << r.error;
  o.jointsAt = {{"p03", 4.5}};  // beyond the forward end
  r = cutParts({strip}, o, 2420, JointStrategy::even, 0);
  EXPECT_NE(r.error.find("hors du panneau"), std::string::npos) << r.error;
  o.jointsAt = {{"p03", 0.9}};  // leaves a piece of 3100 mm
  r = cutParts({strip}, o, 2420, JointStrategy::even, 1);
  EXPECT_NE(r.error.find("Piece 2 of p03"), std::string::npos) << r.error;
}

}  // namespace
}  // namespace tolmar::sheets

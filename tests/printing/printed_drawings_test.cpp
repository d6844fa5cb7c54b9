// The drawings on paper: profile and plan (both halves), sections on an
// axis of their own, developed plates, end plates and the station sheet.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "board/view_map.h"
#include "development/calc_develop.h"
#include "print_fixture.h"
#include "printing/page_scale.h"
#include "printing/printed_plates.h"
#include "printing/printed_views.h"

namespace tolmar {
namespace {

using printtest::Printout;

std::vector<DrawCall> only(const RecordingSurface& s, DrawOp op) {
  std::vector<DrawCall> out;
  for (const DrawCall& c : s.calls())
    if (c.op == op) out.push_back(c);
  return out;
}

struct Scaled : Printout {
  explicit Scaled(std::unique_ptr<HullStore> hull) : Printout(std::move(hull)) { pageScale(job); }
  float x(double v) const { return static_cast<float>(h->printScaleX * v + h->printOriginX); }
  float y(double v) const { return static_cast<float>(h->printScaleY * v + h->printOriginY); }
  float m(double v) const { return static_cast<float>(h->printOriginY - h->printScaleY * v); }
  float z(double v) const { return static_cast<float>(h->printScaleZ * v + h->printOriginZ); }
};

TEST(PrintProfile, BottomThenKeelInOneRun) {
  Scaled p(fixture::defaultHull());
  const HullStore& h = *p.h;
  printProfile(p.job, 0);
  const auto& c = p.s.calls();
  ASSERT_EQ(c.size(), 1u + 84 + 1 + 83);
  EXPECT_EQ(c[0].op, DrawOp::PSet);
  EXPECT_FLOAT_EQ(c[0].x1, p.x(h.lineX(0, 0)));
  EXPECT_FLOAT_EQ(c[0].y1, p.z(h.lineZ(0, 0)));
  EXPECT_FLOAT_EQ(c[40].x2, p.x(h.lineX(1, 39)));
  EXPECT_FLOAT_EQ(c[40].y2, p.z(h.lineZ(1, 39)));
  EXPECT_FLOAT_EQ(c[84].x2, p.x(h.lineX(0, 82)));  // back to the keel's forward end
  EXPECT_EQ(c[85].op, DrawOp::PSet);
  EXPECT_FLOAT_EQ(c.back().y2, p.z(h.lineZ(0, 82)));

  Scaled planks(fixture::defaultHull());
  printProfile(planks.job, planks.h->nChines);
  EXPECT_EQ(only(planks.s, DrawOp::PSet).size(), 4u);  // lines 2..5
  EXPECT_EQ(only(planks.s, DrawOp::LineTo).size(), 4u * 84);
}

TEST(PrintPlan, BothHalvesMirrorEachOther) {
  for (int k : {0, 5}) {
    SCOPED_TRACE(k);
    Scaled p(fixture::defaultHull());
    printPlan(p.job, k);
    const auto& c = p.s.calls();
    ASSERT_EQ(c.size() % 2, 0u);
    const std::size_t half = c.size() / 2;
    const float centre = p.h->printOriginY;
    for (std::size_t i = 0; i < half; ++i) {
      EXPECT_EQ(c[i].op, c[half + i].op);
      EXPECT_FLOAT_EQ(c[i].x2, c[half + i].x2);
      EXPECT_NEAR(c[i].y2 - centre, centre - c[half + i].y2, 1e-2) << i;
    }
  }
}

TEST(PrintPlan, EndsOfTurnedPlanksReachTheCentreLine) {
  Scaled p(fixture::defaultHull());
  const HullStore& h = *p.h;
  printPlan(p.job, h.nChines);
  const auto lines = only(p.s, DrawOp::Line);
  // The transom turns at line 4 and ends at 5; the bow only at the sheer; per side.
  ASSERT_EQ(lines.size(), 6u);
  EXPECT_FLOAT_EQ(lines[0].x1, p.x(h.lineX(4, 0)));
  EXPECT_FLOAT_EQ(lines[0].y1, h.printOriginY);
  EXPECT_FLOAT_EQ(lines[0].y2, p.y(h.lineY(4, 0)));
  EXPECT_FLOAT_EQ(lines[2].x1, p.x(h.lineX(5, 82)));
  EXPECT_FLOAT_EQ(lines[2].y2, h.printOriginY);
  EXPECT_FLOAT_EQ(lines[3].y2, p.m(h.lineY(4, 0)));
}

TEST(PrintSections, AftStationsLeftForwardRightOfTheirOwnAxis) {
  Scaled p(fixture::defaultHull());
  const HullStore& h = *p.h;
  printSections(p.job, 0);
  const auto& c = p.s.calls();
  const float axis = static_cast<float>(h.printScaleX * (h.lineX(1, 80) / 2) + h.printOriginX);
  ASSERT_FALSE(c.empty());
  EXPECT_EQ(c[0].style, kStyleDashDot);
  EXPECT_FLOAT_EQ(c[0].x1, axis);
  EXPECT_FLOAT_EQ(c[0].y1,
                  static_cast<float>(1.1 * h.lineZ(4, 40) * h.printScaleZ + h.printOriginZ - 300));
  EXPECT_FLOAT_EQ(c[0].y2,
                  static_cast<float>(1.1 * h.lineZ(0, 40) * h.printScaleZ + h.printOriginZ + 300));
  // Steps 2 and 3 draw the transom and stations 4..40 on the - side, then 40..82 on the + side.
  const std::size_t aft = 2 + 10 + 10 * 13;
  for (std::size_t i = 1; i < c.size(); ++i) {
    EXPECT_EQ(c[i].style, kStyleSolid);
    if (i < aft) {
      EXPECT_LE(c[i].x2, axis + 0.01f) << i;
    } else {
      EXPECT_GE(c[i].x2, axis - 0.01f) << i;
    }
  }
  EXPECT_EQ(only(p.s, DrawOp::LineTo).size(), 10u + 10 * 12 + 10 + 10 * 12 + 12);
}

TEST(PrintSections, TransomStrokeNeedsTheFlagOfLineTwoAlone) {
  for (int turn : {1, -1}) {
    Scaled p(fixture::defaultHull());
    HullStore& h = *p.h;
    h.transomTurn(2) = static_cast<i16>(turn);
    h.lineColor(1) = static_cast<float>(rgb(10, 20, 30));
    h.lineColor(2) = static_cast<float>(rgb(40, 50, 60));
    printSections(p.job, 1);
    const auto& c = p.s.calls();
    const float axis = static_cast<float>(h.printScaleX * (h.lineX(1, 80) / 2) + h.printOriginX);
    int topEdge = 0, stroke = 0;
    for (const DrawCall& d : c) {
      if (d.op != DrawOp::LineTo || d.x2 != axis) continue;
      if (d.colour == rgb(40, 50, 60)) ++topEdge;
      if (d.colour == rgb(10, 20, 30)) {
        ++stroke;
        EXPECT_FLOAT_EQ(d.y2, p.z(h.stationZ(0, 11)));
        EXPECT_FLOAT_EQ(
            d.x1, static_cast<float>(h.printScaleX * (h.lineX(1, 80) / 2 - h.stationY(0, 11)) +
                                     h.printOriginX));
      }
    }
    EXPECT_EQ(topEdge, 1);
    EXPECT_EQ(stroke, turn == -1 ? 1 : 0) << "nChines = 5";
  }
}

TEST(PrintPlate, TwoFiguresAboutTheCentreLine) {
  struct Case {
    int k, last;
    const char* label;
  };
  for (const Case& t : {Case{0, 83, "Bottom"}, Case{3, 82, "Side plank 3 "}}) {
    SCOPED_TRACE(t.k);
    Scaled p(fixture::defaultHull());
    HullStore& h = *p.h;
    h.langue = 1;
    if (t.k == 0) {
      developBottom(h);
    } else {
      developPlank(h, t.k);
      h.devXs(83) = 1e6;  // left by an earlier plate: never read for a plank
    }
    printPlate(p.job, developPlate(h, t.k == 0 ? PlateKind::bottom : PlateKind::plank, t.k));
    const auto& c = p.s.calls();
    ASSERT_GE(c.size(), 2u);
    EXPECT_FLOAT_EQ(c[0].x1, 681.6f);
    EXPECT_FLOAT_EQ(c[0].y1, 900);
    EXPECT_EQ(c[1].text, t.label);
    EXPECT_EQ(only(p.s, DrawOp::LineTo).size(), 2u * (2 * (t.last + 1) + 1));
    const auto dotted = only(p.s, DrawOp::Line);
    ASSERT_EQ(dotted.size(), 2u);
    const int m = h.iMaxBeam;
    EXPECT_EQ(dotted[0].style, kStyleDot);
    EXPECT_FLOAT_EQ(dotted[0].x1, static_cast<float>(h.printScaleX * h.devXi(m) + 682));
    EXPECT_FLOAT_EQ(dotted[0].y1,
                    static_cast<float>(h.printOriginY + 100 + h.printScaleY * h.devYi(m)));
    EXPECT_FLOAT_EQ(dotted[1].y2,
                    static_cast<float>(h.printOriginY - 100 - h.printScaleY * h.devYs(m)));
    for (const DrawCall& d : c) EXPECT_LT(d.x2, 1e5f);
  }
}

TEST(PrintPlate, FrenchLabels) {
  Scaled p(fixture::defaultHull());
  printPlate(p.job, developPlate(*p.h, PlateKind::plank, 1));
  EXPECT_EQ(p.s.calls()[1].text, "Bordé 1 ");
}

TEST(PrintEndPlates, PointedStemLeavesTheBowOut) {
  Scaled pointed(fixture::defaultHull());
  pointed.h->langue = 1;
  printEndPlates(pointed.job);
  std::vector<std::string> labels;
  for (const DrawCall& d : pointed.s.calls())
    if (d.op == DrawOp::Print) labels.push_back(d.text);
  EXPECT_EQ(labels, (std::vector<std::string>{" Transom", " station Bmax", " x=3.000"}));

  Scaled pram(fixture::pramBowHull());
  printEndPlates(pram.job);
  labels.clear();
  std::vector<DrawCall> prints;
  for (const DrawCall& d : pram.s.calls())
    if (d.op == DrawOp::Print) prints.push_back(d);
  ASSERT_EQ(prints.size(), 4u);
  EXPECT_EQ(prints[0].text, " Tableau");
  EXPECT_EQ(prints[3].text, " Marotte");
  EXPECT_FLOAT_EQ(prints[0].y1, 1200);
  EXPECT_FLOAT_EQ(prints[2].y1, 1400);
  const HullStore& h = *pram.h;
  EXPECT_FLOAT_EQ(prints[0].x1,
                  static_cast<float>(std::nearbyint(-h.printOriginX / 3.0) + h.printOriginX));
  EXPECT_FLOAT_EQ(
      prints[3].x1,
      static_cast<float>(std::nearbyint(h.xFwd(0) * 0.75 * h.printScaleX) + h.printOriginX));
}

TEST(PrintEndPlates, StrokeAtSectionPointElevenWhateverTheFlags) {
  Scaled p(fixture::defaultHull());
  HullStore& h = *p.h;
  for (int n = 0; n <= kMaxLine; ++n) h.transomTurn(n) = 1;
  printEndPlates(p.job);
  const auto& c = p.s.calls();
  const int N = h.nChines + 9;
  // Label, start, N + 1 and N + 1 points, then the stroke.
  const std::size_t at = 2 + 1 + 2 * (N + 1);
  ASSERT_GT(c.size(), at + 1);
  EXPECT_EQ(c[at].op, DrawOp::PSet);
  EXPECT_EQ(c[at + 1].op, DrawOp::LineTo);
  EXPECT_FLOAT_EQ(c[at].x1, c[at + 1].x2);
  const double o = std::nearbyint(-h.printOriginX / 3.0);
  EXPECT_FLOAT_EQ(c[at].y1,
                  static_cast<float>(h.printOriginY + h.printScaleY * h.transomPlate(2, 11)));
  EXPECT_FLOAT_EQ(c[at + 1].y2,
                  static_cast<float>(h.printOriginY - h.printScaleY * h.transomPlate(2, 11)));
  EXPECT_FLOAT_EQ(c[at].x1,
                  static_cast<float>(o + h.printOriginX + h.printScaleX * h.transomPlate(1, 11)));
}

TEST(ImprimeStation, ClosedSectionInTheMiddleOfTheSheet) {
  Scaled p(fixture::defaultHull());
  const HullStore& h = *p.h;
  ImprimeStation(p.job, 20);
  const auto& c = p.s.calls();
  ASSERT_GE(c.size(), 5u);
  EXPECT_EQ(c[1].op, DrawOp::Print);
  EXPECT_EQ(c[1].text.find("TOLMAR2005  date:06-15-2025   Station X="), 0u);
  const float xc = 11906 / 2.0f;
  EXPECT_EQ(c[2].style, kStyleDashDot);
  EXPECT_FLOAT_EQ(c[2].x1, xc);
  EXPECT_EQ(c[3].style, kStyleDashDot);
  EXPECT_FLOAT_EQ(c[3].x1, 400);
  EXPECT_FLOAT_EQ(c[3].y1, h.printOriginZ);
  EXPECT_FLOAT_EQ(c[3].x2, static_cast<float>(11906 * 0.95 - 200));
  EXPECT_EQ(c[4].op, DrawOp::PSet);
  EXPECT_FLOAT_EQ(c.back().x2, c[4].x1);  // closed on the keel
  EXPECT_FLOAT_EQ(c.back().y2, c[4].y1);
  const int N = h.nChines + 9;
  EXPECT_EQ(only(p.s, DrawOp::LineTo).size(), 2u * (N + 1));
  EXPECT_FLOAT_EQ(c[5 + N].x2, static_cast<float>(xc + h.printScaleX * h.stationY(20, N)));
}

// Whatever the store holds, the drawings and reports stay finite.
TEST(PrintedDrawings, EmptyAndOverfullStoresStayFinite) {
  for (int n : {0, 1, kMaxLine, 300}) {
    SCOPED_TRACE(n);
    Printout p(std::make_unique<HullStore>());
    p.h->nChines = static_cast<i16>(n);
    p.h->iMaxBeam = static_cast<i16>(n);
    p.h->stationIndex = static_cast<i16>(n);
    pageScale(p.job);
    printProfile(p.job, n);
    printPlan(p.job, n);
    printSections(p.job, 1);
    printPlate(p.job, developPlate(*p.h, PlateKind::bottom, 0));
    printEndPlates(p.job);
    ImprimeStation(p.job, n);
    EXPECT_TRUE(printtest::allFinite(p.s.calls()));
  }
}

}  // namespace
}  // namespace tolmar

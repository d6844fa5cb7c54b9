// The pen and current-position rules of the drawing surface, and the arrow
// heads, on the recording surface.
#include <gtest/gtest.h>

#include "board/arrows.h"
#include "board/recording_surface.h"
#include "hull/hull_store.h"

namespace tolmar {
namespace {

TEST(DrawingSurface, OperationsMoveTheCurrentPositionAndCarryThePen) {
  RecordingSurface s(15000, 9000);
  s.ForeColor = rgb(1, 2, 3);
  s.DrawStyle = kStyleDot;
  s.DrawWidth = 2;
  s.DrawMode = kModeXorPen;
  s.Line(10, 20, 30, 40);
  s.LineTo(50, 60, rgb(9, 9, 9));
  s.LineStep(-5, 5);
  s.LineFromStep(100, 100, 10, -10);
  s.LineBox(1, 2, 3, 4);
  s.PSet(7, 8);
  s.PSetStep(1, 1);
  s.Circle(500, 600, 50);

  const auto& c = s.calls();
  ASSERT_EQ(c.size(), 8u);
  const DrawOp ops[] = {DrawOp::Line,    DrawOp::LineTo, DrawOp::LineStep, DrawOp::Line,
                        DrawOp::LineBox, DrawOp::PSet,   DrawOp::PSet,     DrawOp::Circle};
  for (std::size_t i = 0; i < c.size(); ++i) {
    EXPECT_EQ(c[i].op, ops[i]) << i;
    EXPECT_EQ(c[i].style, kStyleDot);
    EXPECT_EQ(c[i].width, 2);
    EXPECT_EQ(c[i].mode, kModeXorPen);
  }
  EXPECT_EQ(c[0].colour, rgb(1, 2, 3));
  EXPECT_EQ(c[1].colour, rgb(9, 9, 9));  // a colour of its own leaves ForeColor alone
  EXPECT_EQ(s.ForeColor, rgb(1, 2, 3));
  EXPECT_FLOAT_EQ(c[1].x1, 30);
  EXPECT_FLOAT_EQ(c[1].y1, 40);
  EXPECT_FLOAT_EQ(c[2].x2, 45);
  EXPECT_FLOAT_EQ(c[2].y2, 65);
  EXPECT_FLOAT_EQ(c[3].x2, 110);
  EXPECT_FLOAT_EQ(c[3].y2, 90);
  EXPECT_FLOAT_EQ(c[6].x1, 8);
  EXPECT_FLOAT_EQ(c[6].y1, 9);
  EXPECT_FLOAT_EQ(c[7].radius, 50);
  EXPECT_FLOAT_EQ(s.CurrentX, 500);
  EXPECT_FLOAT_EQ(s.CurrentY, 600);
}

TEST(DrawingSurface, PrintAdvancesByTheTextAndReturnsToTheLeftEdge) {
  RecordingSurface s(15000, 9000);
  s.CurrentX = 1000;
  s.CurrentY = 2000;
  s.Print({"ab", 2.5}, PrintEnd::StayOnLine);
  EXPECT_EQ(s.calls().back().text, "ab 2.5 ");
  EXPECT_FLOAT_EQ(s.CurrentX, 1000 + 7 * RecordingSurface::kCharWidth);
  EXPECT_FLOAT_EQ(s.CurrentY, 2000);
  s.Print({"page", 3});
  EXPECT_EQ(s.calls().back().text, "page 3 ");
  EXPECT_FLOAT_EQ(s.calls().back().x1, 1700);
  EXPECT_FLOAT_EQ(s.CurrentX, s.ScaleLeft);
  EXPECT_FLOAT_EQ(s.CurrentY, 2000 + RecordingSurface::kTextHeight);
  s.Print(-0.25);
  EXPECT_EQ(s.calls().back().text, "-0.25 ");
  s.Print(0.1f);  // a single prints at 7 digits
  EXPECT_EQ(s.calls().back().text, " 0.1 ");
}

TEST(DrawingSurface, ClsAndPagesResetThePosition) {
  RecordingSurface s(15000, 9000);
  s.PSet(40, 50);
  s.Cls();
  EXPECT_EQ(s.calls().back().op, DrawOp::Cls);
  EXPECT_FLOAT_EQ(s.CurrentX, 0);
  EXPECT_FLOAT_EQ(s.CurrentY, 0);
  s.PSet(40, 50);
  s.NewPage();
  s.NewPage();
  EXPECT_EQ(s.Page, 3);
  EXPECT_FLOAT_EQ(s.CurrentY, 0);
  s.EndDoc();
  EXPECT_EQ(s.Page, 1);
  EXPECT_FLOAT_EQ(s.Width(), 15000);
  EXPECT_FLOAT_EQ(s.ScaleHeight, 9000);
}

TEST(DrawingSurface, TextMetricsCountCharactersNotBytes) {
  RecordingSurface s(100, 100);
  EXPECT_FLOAT_EQ(s.TextWidth("00"), 200);
  EXPECT_FLOAT_EQ(s.TextWidth("Bordés"), 600);
  EXPECT_FLOAT_EQ(s.TextHeight("x"), RecordingSurface::kTextHeight);
}

struct ArrowCase {
  const char* name;
  void (*draw)(DrawingSurface&);
  float steps[3][2];
};

void PrintTo(const ArrowCase& c, std::ostream* os) { *os << c.name; }

class Arrows : public ::testing::TestWithParam<ArrowCase> {};

TEST_P(Arrows, ThreeStepsThatCloseOnTheTip) {
  const ArrowCase& a = GetParam();
  RecordingSurface s(1000, 1000);
  s.PSet(500, 500);
  a.draw(s);
  const auto& c = s.calls();
  ASSERT_EQ(c.size(), 4u);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(c[i + 1].op, DrawOp::LineStep);
    EXPECT_FLOAT_EQ(c[i + 1].x2 - c[i + 1].x1, a.steps[i][0]) << a.name << i;
    EXPECT_FLOAT_EQ(c[i + 1].y2 - c[i + 1].y1, a.steps[i][1]) << a.name << i;
  }
  EXPECT_FLOAT_EQ(s.CurrentX, 500);
  EXPECT_FLOAT_EQ(s.CurrentY, 500);
}

INSTANTIATE_TEST_SUITE_P(
    Heads, Arrows,
    ::testing::Values(ArrowCase{"down", &arrowDown, {{-50, -100}, {100, 0}, {-50, 100}}},
                      ArrowCase{"right", &arrowRight, {{-100, -50}, {0, 100}, {100, -50}}},
                      ArrowCase{"left", &arrowLeft, {{100, -50}, {0, 100}, {-100, -50}}},
                      ArrowCase{"up", &arrowUp, {{-50, 100}, {100, 0}, {-50, -100}}}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tolmar

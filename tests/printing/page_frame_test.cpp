// The frame of a drawing page: head, scale bar marks by scale, and the
// axes of each view.
#include "printing/page_frame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "print_fixture.h"
#include "printing/page_scale.h"

namespace tolmar {
namespace {

using namespace std::chrono_literals;
using printtest::Printout;

struct Mark {
  std::string label;
  double metres;
  float bar;  // offset of its bar below the ticks' level; kNoBar: none
};

struct BarCase {
  float scale;
  std::vector<Mark> marks;
};

constexpr float kNoBar = -1000;

TEST(ImprimeEchelle, MarksFollowTheScale) {
  const std::vector<BarCase> cases = {
      {568, {{"0", 0, kNoBar}, {"1", 1, 10}, {"2", 2, 20}, {"5", 5, 30}, {"10", 10, 40}}},
      {1136, {{"0", 0, kNoBar}, {"1", 1, 10}, {"2", 2, 20}}},
      {6000, {{"0", 0, kNoBar}, {".1", 0.1, -10}, {".2", 0.2, -10}, {"1", 1, 10}, {"2", 2, 20}}},
      {56.8f, {{"0", 0, kNoBar}, {"5", 5, 30}, {"10", 10, 40}, {"50", 50, 50}, {"100", 100, 60}}},
      {5.68f,
       {{"0", 0, kNoBar}, {"50", 50, 50}, {"100", 100, 60}, {"500", 500, 70}, {"1000", 1000, 80}}},
      {1, {{"0", 0, kNoBar}, {"500", 500, 70}, {"1000", 1000, 80}, {"10000", 10000, 90}}},
      {0.05f, {{"0", 0, kNoBar}}},
  };
  const std::map<std::string, float> shift = {
      {"0", 50},   {".1", 80},  {".2", 80},   {"1", 50},    {"2", 50},     {"5", 50},
      {"10", 150}, {"50", 120}, {"100", 120}, {"500", 240}, {"1000", 350}, {"10000", 450}};
  for (const BarCase& c : cases) {
    SCOPED_TRACE(c.scale);
    RecordingSurface s(11906, 16838);
    HullStore h;
    h.printScaleX = c.scale;
    s.CurrentY = 400;
    ImprimeEchelle(s, h);
    const float y0 = 580;
    std::vector<std::string> labels;
    std::size_t m = 0;
    const auto& calls = s.calls();
    for (std::size_t i = 0; i < calls.size(); ++i) {
      const DrawCall& d = calls[i];
      if (d.op != DrawOp::Print) continue;
      labels.push_back(d.text);
      ASSERT_LT(m, c.marks.size());
      const Mark& mk = c.marks[m++];
      const float x = static_cast<float>(681.6 + mk.metres * c.scale);
      // The tick before the label, and the bar before the tick.
      ASSERT_GE(i, 1u);
      const DrawCall& tick = calls[i - 1];
      EXPECT_EQ(tick.op, DrawOp::Line);
      EXPECT_FLOAT_EQ(tick.x1, x);
      EXPECT_FLOAT_EQ(tick.x2, x);
      EXPECT_FLOAT_EQ(tick.y1, y0 - 50);
      EXPECT_FLOAT_EQ(tick.y2, y0 + 100);
      EXPECT_FLOAT_EQ(d.x1, x - shift.at(mk.label));
      EXPECT_FLOAT_EQ(d.y1, y0 + 100);
      if (mk.bar != kNoBar) {
        const DrawCall& bar = calls[i - 2];
        EXPECT_EQ(bar.op, DrawOp::Line);
        EXPECT_FLOAT_EQ(bar.x1, 681.6f);
        EXPECT_FLOAT_EQ(bar.x2 - bar.x1, x - 681.6f);  // a mark of d metres is d * scale long
        EXPECT_FLOAT_EQ(bar.y1, y0 + mk.bar);
        EXPECT_FLOAT_EQ(bar.y2, y0 + mk.bar);
        EXPECT_EQ(bar.width, 1);
      }
    }
    EXPECT_EQ(m, c.marks.size());
  }
}

TEST(PrintFrame, HeadAtTheMarginWithDateAndPage) {
  Printout p(fixture::defaultHull());
  pageScale(p.job);
  p.s.FontName.clear();
  printFrame(p.job, FrameView::Plan);
  EXPECT_EQ(p.s.FontName, "Arial");
  const auto& c = p.s.calls();
  ASSERT_GE(c.size(), 2u);
  EXPECT_EQ(c[0].op, DrawOp::PSet);
  EXPECT_FLOAT_EQ(c[0].x1, 681.6f);
  EXPECT_FLOAT_EQ(c[0].y1, 200);
  EXPECT_EQ(c[1].op, DrawOp::Print);
  EXPECT_EQ(c[1].text, "TOLMAR2005  date:06-15-2025   page 1 ");
  p.s.NewPage();
  p.s.clear();
  printFrame(p.job, FrameView::Plan);
  EXPECT_EQ(p.s.calls()[1].text, "TOLMAR2005  date:06-15-2025   page 2 ");
  // The bar stands 180 under the line after the head.
  const float y0 = 200 + RecordingSurface::kTextHeight + 180;
  EXPECT_FLOAT_EQ(p.s.calls()[2].y1, y0 - 50);
}

TEST(PrintFrame, DateTextIsMonthDayYear) {
  EXPECT_EQ(dateText(2025y / 6 / 15), "06-15-2025");
  EXPECT_EQ(dateText(1999y / 12 / 1), "12-01-1999");
}

struct AxisCase {
  FrameView view;
  std::vector<std::string> letters;
  int axes;
};

TEST(PrintFrame, AxesOfEachView) {
  const AxisCase cases[] = {{FrameView::Sheet, {"X"}, 1},
                            {FrameView::Plan, {"X", "Y"}, 2},
                            {FrameView::Profile, {"X", "Z"}, 2},
                            {FrameView::Sections, {"Y", "Z"}, 2}};
  for (const AxisCase& c : cases) {
    SCOPED_TRACE(static_cast<int>(c.view));
    Printout p(fixture::defaultHull());
    pageScale(p.job);
    printFrame(p.job, c.view);
    std::vector<std::string> letters;
    std::vector<DrawCall> axes;
    for (const DrawCall& d : p.s.calls()) {
      if (d.op == DrawOp::Print && (d.text == "X" || d.text == "Y" || d.text == "Z"))
        letters.push_back(d.text);
      if (d.style == kStyleDashDot) axes.push_back(d);
      if (d.op == DrawOp::LineStep) {
        EXPECT_EQ(d.style, kStyleSolid) << "arrows are solid";
      }
    }
    EXPECT_EQ(letters, c.letters);
    ASSERT_EQ(static_cast<int>(axes.size()), c.axes);
    const HullStore& h = *p.h;
    const float W95 = static_cast<float>(11906 * 0.95);
    // The horizontal axis from the margin.
    EXPECT_FLOAT_EQ(axes[0].x1, 681.6f);
    EXPECT_FLOAT_EQ(axes[0].x2, c.view == FrameView::Plan ? W95 - 400 : W95 - 200);
    EXPECT_FLOAT_EQ(axes[0].y1, c.view == FrameView::Plan || c.view == FrameView::Sheet
                                    ? h.printOriginY
                                    : h.printOriginZ);
    if (c.axes == 2) {
      EXPECT_FLOAT_EQ(axes[1].x1, 681.6f);
      EXPECT_FLOAT_EQ(axes[1].x2, 681.6f);
      EXPECT_GT(axes[1].y1, axes[1].y2) << "the vertical axis points up";
    }
  }
}

TEST(PrintFrame, PlanAxisSpansTheBeamOfEveryLine) {
  Printout p(fixture::defaultHull());
  pageScale(p.job);
  const HullStore& h = *p.h;
  double yHi = 0;
  for (int l = 0; l <= h.nChines; ++l)
    for (int i = 0; i <= kLastPoint; ++i) yHi = std::max(yHi, h.lineY(l, i));
  printFrame(p.job, FrameView::Plan);
  std::vector<DrawCall> axes;
  for (const DrawCall& d : p.s.calls()) {
    if (d.style == kStyleDashDot) axes.push_back(d);
  }
  ASSERT_EQ(axes.size(), 2u);
  EXPECT_FLOAT_EQ(axes[1].y1, static_cast<float>(h.printScaleY * yHi + h.printOriginY));
  EXPECT_FLOAT_EQ(axes[1].y2, static_cast<float>(h.printOriginY - 1.1 * yHi * h.printScaleY - 200));
}

}  // namespace
}  // namespace tolmar

// The documents of the print menu as recorded page operations: which pages,
// with which head, frame and drawing or table, where NewPage stands, one
// scale per document, and the busy pointer.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "print_fixture.h"
#include "printing/print_menu.h"

namespace tolmar {
namespace {

using printtest::count;
using printtest::hasText;
using printtest::Page;
using printtest::pages;
using printtest::printed;
using printtest::Printout;

// What stands on a page: the view of its frame by the letters of its axes,
// then the plate, the end plates, or the title of a report.
std::string describe(const Page& page) {
  std::string axes;
  for (const std::string& t : printed(page))
    if (t == "X" || t == "Y" || t == "Z") axes += t;
  std::string d;
  if (axes == "X") d = "sheet";
  if (axes == "XY") d = "plan";
  if (axes == "XZ") d = "profile";
  if (axes == "YZ") d = "sections";
  for (const DrawCall& c : page) {
    if (c.op != DrawOp::Print) continue;
    const std::string& t = c.text;
    auto add = [&](const std::string& what) { d += (d.empty() ? "" : " + ") + what; };
    if (t.find("Tolmar2008  - ") != std::string::npos) add("data");
    if (c.x1 == 681.6f && c.y1 == 900) add(t);  // the label of a plate
    if (t == " Transom" || t == " Tableau") add("end plates");
    if (t.find("----- offsets : ") != std::string::npos) add(t.substr(t.find(": ") + 2));
    if (t.rfind("----- Development of", 0) == 0 || t.rfind("----- Développement du f", 0) == 0 ||
        t.rfind("----- Développement du b", 0) == 0)
      add(t.substr(6));
    if (t == "----- Transom development" || t.rfind("----- Maximum beam station", 0) == 0 ||
        t == "Bow plate development")
      add(t.substr(0, t.find("  X=")));
  }
  return d.empty() ? "(continued)" : d;
}

std::vector<std::string> describeAll(const RecordingSurface& s) {
  std::vector<std::string> out;
  for (const Page& p : pages(s.calls())) out.push_back(describe(p));
  return out;
}

// One NewPage between pages, EndDoc once at the end.
void expectDocument(const RecordingSurface& s) {
  const auto& c = s.calls();
  ASSERT_FALSE(c.empty());
  EXPECT_EQ(c.back().op, DrawOp::EndDoc);
  int ends = 0;
  for (std::size_t i = 0; i < c.size(); ++i) {
    ends += c[i].op == DrawOp::EndDoc;
    if (c[i].op == DrawOp::NewPage) {
      ASSERT_GT(i, 0u);
      EXPECT_NE(c[i - 1].op, DrawOp::NewPage) << "an empty page at " << i;
      ASSERT_LT(i + 1, c.size());
      EXPECT_NE(c[i + 1].op, DrawOp::EndDoc) << "an empty last page";
    }
  }
  EXPECT_EQ(ends, 1);
  EXPECT_TRUE(printtest::allFinite(c));
}

// The page number of each head, in order.
std::vector<int> headPages(const RecordingSurface& s) {
  std::vector<int> numbers;
  for (const DrawCall& c : s.calls()) {
    if (c.op != DrawOp::Print) continue;
    const auto at = c.text.find("page ");
    if (at != std::string::npos) numbers.push_back(std::stoi(c.text.substr(at + 5)));
  }
  return numbers;
}

// LineTo counts of the profile and plan of a hull of n lines.
int profileLines(int n, bool planks) { return 167 + (planks ? 84 * (n - 1) : 0); }
int planLines(int n, bool planks) { return 168 + (planks ? 2 * 84 * (n - 1) : 0); }

TEST(FmenuPDessin, ThreePagesOfViews) {
  for (int step : {0, 1}) {
    SCOPED_TRACE(step);
    Printout p(fixture::defaultHull());
    fmenu_P_Dessin(p.job, step);
    expectDocument(p.s);
    const auto pg = pages(p.s.calls());
    EXPECT_EQ(describeAll(p.s), (std::vector<std::string>{"profile", "plan", "sections"}));
    const int n = p.h->nChines;
    EXPECT_EQ(count(pg[0], DrawOp::LineTo), profileLines(n, step >= 1));
    EXPECT_EQ(count(pg[1], DrawOp::LineTo), planLines(n, step >= 1));
    EXPECT_EQ(headPages(p.s), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(p.s.FontName, "Arial");
  }
}

TEST(FmenuPDevelop, BottomPlanksAndEndPlatesOnSheets) {
  Printout p(fixture::defaultHull());
  p.h->langue = 1;
  fmenu_P_Develop(p.job, 1);
  expectDocument(p.s);
  EXPECT_EQ(describeAll(p.s),
            (std::vector<std::string>{"sheet + Bottom", "sheet + Side plank 1 ",
                                      "sheet + Side plank 2 ", "sheet + Side plank 3 ",
                                      "sheet + Side plank 4 ", "sheet + end plates"}));

  Printout bottom(fixture::defaultHull());
  bottom.h->langue = 0;
  fmenu_P_Develop(bottom.job, 0);
  expectDocument(bottom.s);
  EXPECT_EQ(describeAll(bottom.s), (std::vector<std::string>{"sheet + Fond"}));
}

TEST(FmenuPStation, OneSheetWithoutScaleBar) {
  Printout p(fixture::defaultHull());
  p.h->stationIndex = 41;
  fmenu_P_Station(p.job);
  expectDocument(p.s);
  const auto pg = pages(p.s.calls());
  ASSERT_EQ(pg.size(), 1u);
  const auto t = printed(pg[0]);
  ASSERT_EQ(t.size(), 1u);
  EXPECT_EQ(t[0], "TOLMAR2005  date:06-15-2025   Station X= 3 ");
  EXPECT_EQ(p.s.FontName, "Arial");
}

TEST(FmenuPData, DataReportAlone) {
  Printout p(fixture::defaultHull(), 11906, 23811);  // A3 height: one page
  fmenu_P_Data(p.job);
  expectDocument(p.s);
  EXPECT_EQ(describeAll(p.s), (std::vector<std::string>{"data"}));
}

TEST(FmenuPTout, EveryPageOfAHullWithPlanks) {
  Printout p(fixture::defaultHull(), 11906, 23811);
  p.h->langue = 1;
  fmenu_P_Tout(p.job, 1);
  expectDocument(p.s);
  const std::vector<std::string> expected = {
      "data",
      "profile",
      "plan",
      "sections",
      "Line of the keel ",
      "Line of chine  1",
      "Line of chine  2",
      "Line of chine  3",
      "Line of chine  4",
      "Shear line ",
      "plan + Bottom",
      "Development of bottom",
      "plan + Side plank 1 ",
      "Development of plank  1",
      "plan + Side plank 2 ",
      "Development of plank  2",
      "plan + Side plank 3 ",
      "Development of plank  3",
      "plan + Side plank 4 ",
      "Development of plank  4",
      "plan + end plates",
      "----- Transom development",
      "----- Maximum beam station",
  };
  EXPECT_EQ(describeAll(p.s), expected);
  std::vector<int> numbers;
  for (int i = 1; i <= static_cast<int>(expected.size()); ++i) numbers.push_back(i);
  EXPECT_EQ(headPages(p.s), numbers);
}

TEST(FmenuPTout, BottomOnlyAndPramBow) {
  Printout bottom(fixture::defaultHull(), 11906, 23811);
  bottom.h->langue = 1;
  fmenu_P_Tout(bottom.job, 0);
  expectDocument(bottom.s);
  EXPECT_EQ(
      describeAll(bottom.s),
      (std::vector<std::string>{"data", "profile", "plan", "sections", "Line of the keel ",
                                "Line of chine  1", "plan + Bottom", "Development of bottom"}));

  Printout pram(fixture::pramBowHull(), 11906, 23811);
  pram.h->langue = 1;
  fmenu_P_Tout(pram.job, 1);
  expectDocument(pram.s);
  const auto d = describeAll(pram.s);
  ASSERT_GE(d.size(), 3u);
  EXPECT_EQ(d[d.size() - 3], "----- Transom development");
  EXPECT_EQ(d[d.size() - 2], "----- Maximum beam station");
  EXPECT_EQ(d[d.size() - 1], "Bow plate development");
}

// The scale bar's 1 m tick stands at the same place on every drawing page:
// the views and the plates share the document's one scale.
TEST(FmenuPTout, OneScaleForTheWholeDocument) {
  Printout p(fixture::defaultHull());
  fmenu_P_Tout(p.job, 1);
  std::vector<float> ticks;
  for (const Page& pg : pages(p.s.calls())) {
    const auto& c = pg;
    for (std::size_t i = 1; i < c.size(); ++i)
      if (c[i].op == DrawOp::Print && c[i].text == "1" && c[i - 1].op == DrawOp::Line)
        ticks.push_back(c[i - 1].x1);
  }
  ASSERT_EQ(ticks.size(), 9u);  // 3 views, the bottom and 4 planks, the end plates
  for (float x : ticks) EXPECT_FLOAT_EQ(x, static_cast<float>(681.6 + p.h->printScaleX));
}

TEST(FmenuPTout, BusyPointerIsGivenBack) {
  Printout p(fixture::defaultHull());
  fmenu_P_Tout(p.job, 1);
  ASSERT_FALSE(p.host.busyCalls.empty());
  EXPECT_TRUE(p.host.busyCalls.front());
  EXPECT_FALSE(p.host.busyCalls.back());
}

// A hull of 21 lines on A4: the data report runs over onto a page of its
// own, and every page stays inside the paper's height.
TEST(FmenuPTout, TwentyOneLinesOnA4) {
  Printout p(fixture::manyLineHull());
  fmenu_P_Tout(p.job, 2);
  expectDocument(p.s);
  const auto d = describeAll(p.s);
  ASSERT_GE(d.size(), 3u);
  EXPECT_EQ(d[0], "data");
  EXPECT_EQ(d[1], "(continued)");
  const int n = p.h->nChines;
  // data on pages, 3 views, n + 1 offsets, n plates and tables, end plates and 2 tables.
  int dataPages = 0;
  while (d[static_cast<std::size_t>(dataPages)] == "data" ||
         d[static_cast<std::size_t>(dataPages)] == "(continued)")
    ++dataPages;
  EXPECT_GE(static_cast<int>(d.size()), dataPages + 3 + (n + 1) + 2 * n + 1 + 2);
  for (const DrawCall& c : p.s.calls())
    if (c.op == DrawOp::Print) {
      EXPECT_LE(c.y1 + RecordingSurface::kTextHeight, 16838 - 568) << c.text;
    }
}

}  // namespace
}  // namespace tolmar

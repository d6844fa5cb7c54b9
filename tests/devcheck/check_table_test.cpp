// The table the window and the printed page show: a cell under every head
// in both languages, no text of a number that is not one, and the marks
// for a flat plate, an assumed thickness and a pattern that is flagged.
#include "devcheck/check_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "development/hull_fixture.h"

namespace tolmar::devcheck {
namespace {

TEST(CheckTable, EveryRowUnderItsHeadsInBothLanguages) {
  const auto h = fixture::pramBowHull();
  const CheckReport r = checkDevelopment(*h);
  for (int langue : {0, 1}) {
    const std::vector<std::string> heads = checkHeads(langue);
    for (const PlateCheck& c : r.plates) {
      const std::vector<std::string> cells = checkCells(c, langue);
      ASSERT_EQ(cells.size(), heads.size());
      // The exports' names, their words in French.
      if (langue == 1 || c.kind == PlateKind::bottom || c.kind == PlateKind::plank)
        EXPECT_EQ(cells.front(), c.name);
      else
        EXPECT_NE(cells.front(), c.name);
      EXPECT_EQ(cells.back(), verdictText(c.verdict, langue));
      for (const std::string& s : cells) {
        EXPECT_EQ(s.find("nan"), std::string::npos) << s;
        EXPECT_EQ(s.find("inf"), std::string::npos) << s;
      }
      // 6 mm assumed: the thickness screen has not run.
      EXPECT_EQ(cells[9], "6.0*");
    }
    EXPECT_EQ(checkNotes(r, {}, langue).size(), 3u);
  }
  std::vector<std::string> french;
  for (const PlateCheck& c : r.plates) french.push_back(checkCells(c, 0).front());
  EXPECT_NE(std::find(french.begin(), french.end(), "pont 1"), french.end());
  EXPECT_NE(std::find(french.begin(), french.end(), "tableau"), french.end());
  EXPECT_NE(std::find(french.begin(), french.end(), "marotte"), french.end());
  EXPECT_EQ(checkTitle(0), "Contrôle du développement");
  EXPECT_EQ(checkTitle(1), "Development check");
}

TEST(CheckTable, FlatPlatesLapsAndFlags) {
  PlateCheck c;
  c.name = "p02";
  c.withLap = true;
  c.thickness = 0.009;
  c.twisted = true;
  c.verdict = Verdict::willNotBend;
  c.fit.minRadiusAlong = 2.346;
  c.alongX = 4.5;
  const std::vector<std::string> en = checkCells(c, 1);
  EXPECT_EQ(en[0], "p02 + lap");
  EXPECT_EQ(en[4], "2.35");
  EXPECT_EQ(en[5], "4.50");
  EXPECT_EQ(en[6], "flat");
  EXPECT_EQ(en[7], "");
  EXPECT_EQ(en[9], "9.0");
  EXPECT_EQ(en[10], "will not bend without kerfing or steaming; not developable");
  const std::vector<std::string> fr = checkCells(c, 0);
  EXPECT_EQ(fr[0], "p02 + clin");
  EXPECT_EQ(fr[6], "plat");
  // Three colours apart, each dark enough for text on white (a contrast of
  // 4 or more, as the window's rows and the printed page use them).
  const auto luminance = [](std::int32_t c) {
    const auto lin = [](int v) {
      const double s = v / 255.0;
      return s <= 0.03928 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lin(c & 0xff) + 0.7152 * lin((c >> 8) & 0xff) + 0.0722 * lin((c >> 16) & 0xff);
  };
  const std::int32_t colours[] = {verdictColour(Verdict::fits), verdictColour(Verdict::tight),
                                  verdictColour(Verdict::willNotBend)};
  for (std::int32_t c : colours) EXPECT_GE(1.05 / (luminance(c) + 0.05), 4.0) << c;
  EXPECT_NE(colours[0], colours[1]);
  EXPECT_NE(colours[1], colours[2]);
  EXPECT_NE(colours[0], colours[2]);
}

}  // namespace
}  // namespace tolmar::devcheck

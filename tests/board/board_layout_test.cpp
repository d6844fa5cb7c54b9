// The board's layout in twips: the load on a 1920 x 1080 display at 15
// twips a pixel, and the limits of the resize rule.
#include "board/board_layout.h"

#include <gtest/gtest.h>

namespace tolmar::board {
namespace {

TEST(BoardLayout, LoadOnAFullHdDisplay) {
  const BoardLayout l = loadLayout(28800, 16200);
  EXPECT_EQ(l.window, (Rect{576, 486, 27648, 14904}));
  EXPECT_EQ(l.plan1, (Rect{40, 40, 27448, 12904}));
  EXPECT_EQ(l.label2, (Rect{200, 13154, 950, 255}));
  EXPECT_EQ(l.text2, (Rect{1200, 13104, 2800, 285}));
  EXPECT_EQ(l.command1[0], (Rect{200, 13609, 1400, 400}));
  EXPECT_EQ(l.command1[1], (Rect{1700, 13609, 1400, 400}));
  EXPECT_EQ(l.command1[2], (Rect{3200, 13609, 1400, 400}));
  EXPECT_EQ(l.label1, (Rect{4900, 13154, 1000, 200}));
  EXPECT_EQ(l.text1, (Rect{6000, 13104, 1000, 285}));
  EXPECT_EQ(l.dessCouple, (Rect{4900, 13609, 2100, 400}));
  EXPECT_EQ(l.cancel, (Rect{26448, 13104, 1000, 400}));
  EXPECT_EQ(l.dessine, (Rect{24948, 13104, 1300, 400}));
  EXPECT_EQ(l.developer, (Rect{24948, 13609, 1300, 400}));
}

TEST(BoardLayout, ResizeOnlyAboveHeight4000AndWidth10000) {
  const BoardLayout start = loadLayout(28800, 16200);
  struct Size {
    double w, h;
    bool moves;
  };
  const Size sizes[] = {{10000, 9000, false},
                        {20000, 4000, false},
                        {10001, 4001, true},
                        {9000, 3000, false},
                        {20000, 9000, true}};
  for (const auto& s : sizes) {
    BoardLayout l = start;
    EXPECT_EQ(resizeLayout(l, s.w, s.h), s.moves) << s.w << " x " << s.h;
    EXPECT_EQ(l.window.width, s.w);
    EXPECT_EQ(l.window.height, s.h);
    if (s.moves) {
      EXPECT_EQ(l.plan1, (Rect{40, 40, s.w - 200, s.h - 2000}));
      EXPECT_EQ(l.cancel.left, s.w - 200 - 1000);
      EXPECT_EQ(l.label2.top, s.h - 2000 + 250);
    } else {
      EXPECT_EQ(l.plan1, start.plan1);
      EXPECT_EQ(l.cancel, start.cancel);
      EXPECT_EQ(l.dessCouple, start.dessCouple);
    }
  }
}

}  // namespace
}  // namespace tolmar::board

// Where the board's controls stand, in twips, from the size of the display
// and of the screen, by the load and resize rules of `dessin`.
#pragma once

namespace tolmar::board {

struct Rect {
  double left = 0, top = 0, width = 0, height = 0;
  double right() const { return left + width; }
  double bottom() const { return top + height; }
  bool operator==(const Rect&) const = default;
};

struct BoardLayout {
  Rect window;  // outer frame of the screen
  Rect plan1;
  Rect label2, text2;
  Rect command1[3];
  Rect label1, text1;
  Rect dessCouple, developer, dessine, cancel;
  bool operator==(const BoardLayout&) const = default;
};

// Load of the screen on a display of the given size (twips): the frame at
// 0.96 x 0.92 of the display, the fixed sizes, then the resize rule.
BoardLayout loadLayout(double displayWidth, double displayHeight);

// The resize rule for a frame of W x H twips.  Only above a height of 4000
// and a width of 10000 are the controls moved; returns whether they were.
// The frame itself takes the new size in any case.
bool resizeLayout(BoardLayout& l, double W, double H);

}  // namespace tolmar::board

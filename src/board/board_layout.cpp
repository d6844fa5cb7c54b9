#include "board/board_layout.h"

#include <initializer_list>

namespace tolmar::board {

BoardLayout loadLayout(double displayWidth, double displayHeight) {
  BoardLayout l;
  l.window = {0.02 * displayWidth, 0.03 * displayHeight, 0.96 * displayWidth, 0.92 * displayHeight};
  l.dessine.width = 1300;
  l.developer.width = 1300;
  l.cancel.width = 1000;
  for (Rect& r : l.command1) r.width = 1400;
  l.dessCouple.width = 1400;
  for (Rect* r : {&l.dessine, &l.developer, &l.cancel, &l.command1[0], &l.command1[1],
                  &l.command1[2], &l.dessCouple})
    r->height = 400;
  l.label1.width = 1000;
  l.label1.height = 200;
  l.label2.width = 950;
  l.label2.height = 255;
  l.text1.width = 1000;
  l.text2.width = 2800;
  l.text1.height = 285;
  l.text2.height = 285;
  resizeLayout(l, l.window.width, l.window.height);
  return l;
}

bool resizeLayout(BoardLayout& l, double W, double H) {
  l.window.width = W;
  l.window.height = H;
  if (!(H > 4000 && W > 10000)) return false;
  l.plan1 = {40, 40, W - 200, H - 2000};
  l.label2.left = 200;
  l.label2.top = l.plan1.height + 250;
  l.text2.left = l.label2.right() + 50;
  l.text2.top = l.label2.top - 50;
  l.command1[0].left = l.label2.left;
  l.command1[0].top = l.label2.bottom() + 200;
  for (int i = 1; i < 3; ++i) {
    l.command1[i].left = l.command1[i - 1].right() + 100;
    l.command1[i].top = l.command1[0].top;
  }
  l.label1.left = l.command1[2].right() + 300;
  l.label1.top = l.label2.top;
  l.text1.left = l.label1.right() + 100;
  l.text1.top = l.label1.top - 50;
  l.dessCouple.left = l.label1.left;
  l.dessCouple.top = l.command1[0].top;
  l.dessCouple.width = l.text1.right() - l.label1.left;
  l.cancel.left = l.plan1.width - l.cancel.width;
  l.cancel.top = l.label2.top - 50;
  l.dessine.left = l.cancel.left - l.dessine.width - 200;
  l.dessine.top = l.cancel.top;
  l.developer.left = l.dessine.left;
  l.developer.top = l.dessCouple.top;
  return true;
}

}  // namespace tolmar::board

// Where hydro1 and mass1 stand on the display when they are first shown,
// in twips, as outer boxes (window frame included).  The screens' own
// placement (both centred across, hydro1 200 below the top of the display,
// mass1 with its bottom 200 above the display's bottom) is kept when both
// fit and mass1 leaves hydro1 uncovered; otherwise the pair is stacked,
// then set side by side, and mass1 is made shorter (it scrolls) rather
// than run off the display or over hydro1.
#pragma once

namespace tolmar::analysis {

struct ScreenBox {
  double left = 0, top = 0, width = 0, height = 0;
  double right() const { return left + width; }
  double bottom() const { return top + height; }
};

struct PairPlacement {
  ScreenBox hydro, mass;  // mass.height may be less than asked: it scrolls
};

inline constexpr double kScreenMargin = 200;  // twips, from the display's edges
// mass1 is never made shorter than this (twips) to stay off hydro1.
inline constexpr double kMinMassHeight = 3000;

// Sizes are the windows' natural outer sizes; the display's top left
// corner is (0, 0).
PairPlacement placePair(double displayWidth, double displayHeight, double hydroWidth,
                        double hydroHeight, double massWidth, double massHeight);

}  // namespace tolmar::analysis

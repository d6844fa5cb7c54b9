// The start screen `menu2` as logic: its controls and captions in both
// languages, its layout in twips, the language switch, and what Create and
// Terminate make the windows do.
#pragma once

#include <string>

#include "board/board_action.h"
#include "board/board_layout.h"
#include "board/board_model.h"
#include "hull/hull_store.h"
#include "screens/control.h"

namespace tolmar::screens {

// The version words of menu2's caption, blanks included; `--version` of
// both programs shows them beside the package's version.
inline constexpr const char* kMenu2VersionDate = " 2 Dec 2007 ";

struct Menu2Layout {
  board::Rect window, label1, label2, label3, create, terminate;
  board::Rect langue1[2];
};

// Captions in `caption`; the chosen language option has `value` set.
struct Menu2 {
  Field title;
  Field Label1, Label2, Label3;  // product, empty, disclaimer
  double label3FontSize = 0;     // points
  Field Create, Terminate;
  ControlArray<0, 1> Langue1;
  Menu2Layout layout;

  Menu2();
  int selected() const;  // the Langue1 option chosen, -1 before the load
};

// Heights the layout keeps as the controls have them (twips).
inline constexpr double kMenu2ButtonHeight = 400;
inline constexpr double kMenu2OptionHeight = 300;

// The window (5000 x 6500, centred on a screen of the given size) and its
// controls laid out from the top.
Menu2Layout menu2Layout(double screenWidth, double screenHeight);

// Start of the program: layout, English chosen, the default hull in the
// store; then show menu2 and load the other screens.
board::Actions loadMenu2(Menu2& m, HullStore& h, double screenWidth, double screenHeight);

// Click on Langue1(i), i = 0 French or 1 English: langue and the texts of
// menu2, nothing else.  Another i is ignored.
void langueClick(Menu2& m, HullStore& h, int i);

// Create: the board's title and enabling, then hide menu2, show the board
// and bouchain1 modal over it.  The hull in the store stays as it is.
board::Actions createClick(board::BoardState& b, const HullStore& h);

// Terminate, and the closing of menu2: the end, nothing saved or asked.
board::Actions terminateClick();
board::Actions closeMenu2();

}  // namespace tolmar::screens

// What a window must do after an event of the start screen or the board,
// as a list of steps run in order by the windowing layer.  A modal show
// blocks until the screen hides; the steps after it run then.
#pragma once

#include <string_view>
#include <vector>

#include "board/board_control.h"

namespace tolmar::board {

enum class ScreenId { menu2, dessin, bouchain1, bouchain2, bouchain3, overlap1, hydro1, mass1 };

enum class Do {
  Load,          // load `screen` without showing it
  Show,          // show `screen` modeless
  ShowModal,     // show `screen` modal; the next steps wait for its end
  Hide,          // hide `screen`
  Unload,        // drop `screen`: the next show loads it afresh
  Focus,         // keyboard focus on the board's `control`; on `dessine` that redraws
  AfterModal,    // call the board's afterModal(`control`) (Command1(i) after its screen)
  ClearPicture,  // Cls of Plan1
  Refresh,       // repaint `screen`
  Beep,
  SaveHullFile,  // the Save of the hull file, with its dialog
  OpenHullFile,  // the Open of a hull file, with its dialog
  Run,           // the command of the board's `control` (develop, an export, a print...)
  EndProgram,
};

struct Action {
  Do what;
  ScreenId screen = ScreenId::dessin;
  BoardControl control = BoardControl::Plan1;
  bool operator==(const Action&) const = default;
};

using Actions = std::vector<Action>;

inline Action onScreen(Do what, ScreenId s) { return Action{what, s, BoardControl::Plan1}; }
inline Action onControl(Do what, BoardControl c) { return Action{what, ScreenId::dessin, c}; }

std::string_view screenName(ScreenId s);

}  // namespace tolmar::board

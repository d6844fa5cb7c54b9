// The one interpreter of the steps that the start screen, the board and the
// hull screens return (board_action.h), for the windows and for tolmar-cli
// alike.  A hull screen's modal show keeps the steps after it; they run
// once that screen hides, after the event that hid it has run to its end,
// as a blocking modal show would let them.
#pragma once

#include <functional>
#include <map>
#include <vector>

#include "board/board_action.h"
#include "board/step_host.h"
#include "hull/hull_store.h"

namespace tolmar::board {

class StepRunner {
 public:
  StepRunner(StepHost& host, HullStore& h) : host_(host), h_(h) {}

  // Runs the steps in order.  The outermost call then runs the steps kept
  // for the screens that hid meanwhile, each list as an event of its own,
  // and every event ends with the host's stepsDone.
  void perform(const Actions& actions);

  // The board's redraw, dessine: the button disabled while `draw` (the
  // full redraw of the views when empty) draws on the picture, then the
  // enabling and the focus that follow a redraw.
  void redraw(const std::function<void()>& draw = {});

  // Steps kept for a hull screen that is still shown.
  bool waitsFor(ScreenId s) const { return afterModal_.count(s) != 0; }

 private:
  void run(const Action& a);

  StepHost& host_;
  HullStore& h_;
  std::map<ScreenId, Actions> afterModal_;  // steps waiting for a modal screen
  std::vector<Actions> due_;                // of screens hidden meanwhile
  int depth_ = 0;
};

}  // namespace tolmar::board

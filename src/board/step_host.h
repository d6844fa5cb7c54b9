// What only the windows can do while the board's steps run: the host of a
// StepRunner.  The program's session shows and hides real windows; a host
// without windows (tolmar-cli) passes the hull screens in its own way and
// leaves the rest undone, which is what every step does by default.
#pragma once

#include "board/board_action.h"
#include "board/board_control.h"
#include "board/board_model.h"
#include "board/drawing_surface.h"

namespace tolmar::board {

class StepHost {
 public:
  virtual ~StepHost() = default;

  // The board's state and its picture Plan1, the board loaded first when
  // it is not.
  virtual BoardState& board() = 0;
  virtual DrawingSurface& picture() = 0;

  virtual void load(ScreenId) {}  // without showing it
  virtual void show(ScreenId) {}  // modeless
  // A hull screen shown modal returns at once: the runner keeps the steps
  // after it until the screen hides.  Any other screen is modal in its own
  // right and has ended when this returns.
  virtual void showModal(ScreenId) {}
  virtual void hide(ScreenId) {}
  virtual void unload(ScreenId) {}
  virtual void focus(BoardControl) {}  // any control but dessine, which redraws
  virtual void refresh(ScreenId) {}
  virtual void pictureChanged() {}  // the picture was drawn or cleared
  virtual void bell() {}            // the beep of a refused value
  // A command of the board with its dialogs: the hull file's Open and Save,
  // an export, a print, Develop...
  virtual void command(BoardControl) {}
  virtual void endProgram() {}
  // The busy pointer, on around a redraw.
  virtual void busy(bool) {}
  // The steps of one event have all run, those kept for a modal screen
  // that hid meanwhile included.
  virtual void stepsDone() {}
};

}  // namespace tolmar::board

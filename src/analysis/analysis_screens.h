// hydro1 and mass1 open side by side beside the board: which of them is
// active, the events that pass from one to the other, and the way out that
// draws the water line.  The window layer reports activation, clicks and
// keys here and shows the two screens' fields.
#pragma once

#include <functional>

#include "analysis/hydro_screen.h"
#include "analysis/mass_screen.h"
#include "board/drawing_surface.h"
#include "hull/hull_store.h"

namespace tolmar::analysis {

enum class ActiveScreen { other, hydro1, mass1 };

class AnalysisScreens {
 public:
  explicit AnalysisScreens(HullStore& h);

  Hydro1 hydro;
  Mass1 mass;

  // The board shows and activates `dessin` when the screens are left.
  std::function<void()> showBoard;

  ActiveScreen active() const { return active_; }

  // Hmenu: hydro1 shown and active, then mass1 shown and active.
  void open();

  // The window reports that screen s became the active one (other: a
  // screen outside the pair).  The newly active screen's event runs first,
  // then the one of the screen that stopped being active.
  void activate(ActiveScreen s);

  // Calcul1 of mass1, and mass1 ceasing to be active: calcMass, the total
  // mass / 1000 as hydro1's displacement, Option1(0) chosen, hydro1 active.
  void pushDisplacement();

  // cdQuit: both screens hidden, the board shown, the water line drawn on
  // its picture.  Hiding runs no further calculation.
  void quit(DrawingSurface& plan);

  // hydro1 closed by the window: calcHydro, then mass1 hidden.
  void closeHydro();

 private:
  HullStore& h_;
  ActiveScreen active_ = ActiveScreen::other;
  bool loaded_ = false;
};

}  // namespace tolmar::analysis

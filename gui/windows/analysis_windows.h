// hydro1 and mass1 beside the board, modeless: the pair's model, its two
// windows, the activation that the system reports turned into the pair's
// events, and the water line drawn on the board's picture when the pair is
// left.  Each event takes the typed texts into the model, runs, shows the
// model again, and then gives the focus to the window the model made
// active (mass1's Calcul1 hands over to hydro1).
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <optional>

#include "analysis/analysis_screens.h"
#include "board/drawing_surface.h"
#include "hull/hull_store.h"
#include "windows/hydro1_window.h"
#include "windows/mass1_window.h"

class QWidget;
class QWindow;

namespace tolmar::gui {

class AnalysisWindows : public QObject {
  Q_OBJECT
 public:
  AnalysisWindows(HullStore& h, QWidget* board);
  ~AnalysisWindows() override;

  // Hmenu: hydro1 shown and active, then mass1 shown and active; placed at
  // their first showing as the screens say (hydro1 200 twips under the top
  // of the display, mass1 200 above its bottom, both centred across) where
  // the display allows, and otherwise both whole on it and mass1 off
  // hydro1 (analysis/pair_placement.h).
  void open();

  // The board's picture for cdQuit, and what to do once it is drawn on.
  std::function<DrawingSurface*()> picture;
  std::function<void()> pictureChanged;
  std::function<void(bool on)> busy;

  analysis::AnalysisScreens& screens() { return screens_; }
  Hydro1Window* hydroWindow() { return hydro_.data(); }
  Mass1Window* massWindow() { return mass_.data(); }

  // The active window changed (null: none of this program).  Reports made
  // while an event runs wait for its end; the echo of a focus change the
  // pair asked for itself is no event.
  void windowActivated(QWindow* w);
  // The same for a screen named directly (tests without a window manager).
  void activated(analysis::ActiveScreen s);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void run(const std::function<void()>& event);
  void showWindows();
  void giveFocus();
  void place();
  void quit();
  analysis::ActiveScreen screenOf(QWindow* w) const;

  HullStore& h_;
  QWidget* board_;
  analysis::AnalysisScreens screens_;
  QPointer<Hydro1Window> hydro_;
  QPointer<Mass1Window> mass_;
  bool running_ = false;
  bool placed_ = false;
  std::optional<analysis::ActiveScreen> pending_;
  QPointer<QWindow> expected_;
};

}  // namespace tolmar::gui

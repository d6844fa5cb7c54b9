// One run of the program: the hull store, the windows, and the host of the
// core's runner of the steps that the screens' events return
// (board/step_runner.h): what only a window can do, it does here.
#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "board/board_action.h"
#include "board/step_host.h"
#include "board/step_runner.h"
#include "hull/hull_store.h"

namespace tolmar::gui {

class Menu2Window;
class DessinWindow;
class Bouchain1Window;
class Bouchain2Window;
class Bouchain3Window;

// Deletes a window once control is back in the event loop, so that a
// window may unload itself from inside one of its own events.
struct DeleteLater {
  void operator()(QObject* o) const;
};

class Session : public QObject, private board::StepHost {
  Q_OBJECT
 public:
  Session();
  ~Session() override;

  // The start of the program: the busy pointer, menu2 laid out and shown
  // in English with the default hull, the other screens loaded.
  void start();

  // Create on menu2: the board loaded if it is not, then its steps.
  void create();

  // `tolmar HULL.D50`, once the start screen shows: the board comes up
  // with the hull read as its Open reads it, and bouchain1 on top.  A file
  // that cannot be read, or holds no hull, leaves the start screen and the
  // store as they were and says why in a message box.
  void openAtStart(const std::string& path);

  // Runs the steps in order, then brings every window up to its model.
  // Once the program has ended, no step runs and no window comes back.
  void perform(const board::Actions& actions) {
    if (!ended_) runner_.perform(actions);
  }
  void syncWindows();
  // The board's redraw: `draw` in place of the full redraw when given.
  void redraw(const std::function<void()>& draw = {}) { runner_.redraw(draw); }

  HullStore& store() { return *h_; }
  // The beep of a refused value; a test may count them instead.
  std::function<void()> beep;
  // A message box over the start screen; a test may keep them instead.
  std::function<void(std::string_view title, std::string_view text)> message;

  // Each loads its screen when it is not loaded.
  Menu2Window& menu2();
  DessinWindow& dessin();
  Bouchain1Window& bouchain1();
  Bouchain2Window& bouchain2();
  Bouchain3Window& bouchain3();
  DessinWindow* loadedDessin() const { return dessin_.get(); }

  bool ended() const { return ended_; }

 signals:
  // Terminate, or the closing of menu2: the program is to end.
  void programEnded();

 private:
  // What the steps ask of the windows.
  board::BoardState& board() override;
  DrawingSurface& picture() override;
  void load(board::ScreenId s) override;
  void show(board::ScreenId s) override;
  void showModal(board::ScreenId s) override;
  void hide(board::ScreenId s) override;
  void unload(board::ScreenId s) override;
  void focus(board::BoardControl c) override;
  void refresh(board::ScreenId s) override;
  void pictureChanged() override;
  void bell() override;
  void command(board::BoardControl c) override;
  void endProgram() override;
  void busy(bool on) override;
  void stepsDone() override { syncWindows(); }

  QWidget* window(board::ScreenId s, bool load);
  // The board's commands: files, exports, prints, develop, station.
  void runOnBoard(board::BoardControl c);

  std::unique_ptr<HullStore> h_;
  std::unique_ptr<Menu2Window, DeleteLater> menu2_;
  std::unique_ptr<DessinWindow, DeleteLater> dessin_;
  std::unique_ptr<Bouchain1Window, DeleteLater> bouchain1_;
  std::unique_ptr<Bouchain2Window, DeleteLater> bouchain2_;
  std::unique_ptr<Bouchain3Window, DeleteLater> bouchain3_;
  board::StepRunner runner_;
  bool ended_ = false;
};

}  // namespace tolmar::gui

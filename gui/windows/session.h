// One run of the program: the hull store, the windows, and the runner of
// the steps that the screens' events return (board_action.h).  A modal
// show opens the screen and keeps the steps after it; they run once that
// screen hides, after the event that hid it has run to its end, as a
// blocking modal show would let them.
#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "board/board_action.h"
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

class Session : public QObject {
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
  void perform(const board::Actions& actions);
  void syncWindows();

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
  void run(const board::Action& a);
  void showModal(board::ScreenId s, board::Actions rest);
  QWidget* window(board::ScreenId s, bool load);
  // The board's commands: files, exports, prints, develop, station.
  void runOnBoard(board::BoardControl c);

  std::unique_ptr<HullStore> h_;
  std::unique_ptr<Menu2Window, DeleteLater> menu2_;
  std::unique_ptr<DessinWindow, DeleteLater> dessin_;
  std::unique_ptr<Bouchain1Window, DeleteLater> bouchain1_;
  std::unique_ptr<Bouchain2Window, DeleteLater> bouchain2_;
  std::unique_ptr<Bouchain3Window, DeleteLater> bouchain3_;
  std::map<board::ScreenId, board::Actions> afterModal_;  // steps waiting for a modal screen
  std::vector<board::Actions> due_;                       // of screens hidden meanwhile
  int depth_ = 0;
  bool ended_ = false;
};

}  // namespace tolmar::gui

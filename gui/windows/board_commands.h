// The work behind the board's menu entries and the screens it opens beside
// itself: hull files, exports, printing, overlap1, hydro1 and mass1.  The
// board window calls runBoardCommand for a Do::Run, Do::OpenHullFile or
// Do::SaveHullFile step of its model, and showBoardScreen for a Show or
// ShowModal step naming overlap1, hydro1 or mass1.  The dialogs and those
// windows live as long as the board, in one BoardWindows object under it.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>

#include "board/board_action.h"
#include "board/board_model.h"
#include "board/drawing_surface.h"
#include "hull/hull_store.h"

class QWidget;

namespace tolmar::gui {

class AnalysisWindows;
class CmDialog1;
class CmDialog2;
class Overlap1Window;

// What a command needs of the board window.
struct BoardHooks {
  // Show the BoardState again: title, Text1, Text2, enabling.
  std::function<void()> refresh;
  // Run steps of the board's model (the modal bouchain1 after Open, the
  // focus on Cancel after a save, the clearing of the picture).
  std::function<void(const board::Actions&)> perform;
  // The picture Plan1, for the station and the water line; may be null.
  std::function<DrawingSurface*()> picture;
  // Plan1 was drawn on: repaint it.
  std::function<void()> pictureChanged;
};

// The board's menu entries and buttons that are not its own: fmenu_New
// (the model's), fmenu_Open, fmenu_S_Data, the exports, the print entries,
// fmenu_PSetup, Hmenu, DessCouple (the station chosen and drawn) and
// Developer (the plates developed and drawn).  Any other control does
// nothing.  Bad input of any kind ends in a message box, never a crash,
// and a failed file leaves the hull in memory and the file on disk as they
// were.
void runBoardCommand(QWidget* board, HullStore& h, board::BoardState& b, board::BoardControl c,
                     const BoardHooks& hooks);

// The board's Open in two halves, for a hull named on the command line as
// well as the one chosen in the dialog.  readHullForOpen reads the file into
// `read`, a copy of the store, and returns empty text, or the system's text
// of why it holds no hull.  openReadHull then makes `read` the hull and runs
// the board's steps after the reading: title, enabling, lines, bouchain1.
std::string readHullForOpen(const std::string& path, HullStore& read);
void openReadHull(HullStore& h, const HullStore& read, board::BoardState& b,
                  const BoardHooks& hooks);

// Show or ShowModal of overlap1 (modal: it returns when the screen ends),
// hydro1 or mass1 (beside the board).  Another screen does nothing.
void showBoardScreen(QWidget* board, HullStore& h, board::BoardState& b, board::ScreenId s,
                     const BoardHooks& hooks);

// The dialogs and windows of one board, made at the first command.
class BoardWindows : public QObject {
  Q_OBJECT
 public:
  BoardWindows(QWidget* board, HullStore& h);
  ~BoardWindows() override;

  static BoardWindows& of(QWidget* board, HullStore& h);

  CmDialog1& files() { return *files_; }
  CmDialog2& printers() { return *printers_; }
  Overlap1Window& overlap();
  AnalysisWindows& analysis();

  // overlap1 has ended through a ShowModal step of the board's model, and
  // the Run of fmenu_SD_DXF that follows must not show it again.
  bool overlapAnswered = false;

  // Unattended: no dialog or message box shows (tests).
  void setUnattended(bool on);
  bool unattended() const { return unattended_; }

  QWidget* board() const { return board_; }

 private:
  QWidget* board_;
  HullStore& h_;
  std::unique_ptr<CmDialog1> files_;
  std::unique_ptr<CmDialog2> printers_;
  Overlap1Window* overlap_ = nullptr;
  AnalysisWindows* analysis_ = nullptr;
  bool unattended_ = false;
};

}  // namespace tolmar::gui

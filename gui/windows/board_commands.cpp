#include "windows/board_commands.h"

#include <QWidget>
#include <exception>

#include "board/plate_drawing.h"
#include "board/station_drawing.h"
#include "export/end_plates_dxf.h"
#include "export/lines_dxf.h"
#include "export/plate_dxf.h"
#include "export/vrml_file.h"
#include "export/xyz_files.h"
#include "windows/analysis_windows.h"
#include "windows/command_steps.h"
#include "windows/file_dialog.h"
#include "windows/overlap1_window.h"
#include "windows/printer_dialog.h"

namespace tolmar::gui {

namespace {

using board::BoardControl;
using board::Do;
using board::ScreenId;
using C = BoardControl;

void perform(const BoardHooks& hooks, const board::Actions& a) {
  if (hooks.perform && !a.empty()) hooks.perform(a);
}

void refresh(const BoardHooks& hooks) {
  if (hooks.refresh) hooks.refresh();
}

DrawingSurface* picture(const BoardHooks& hooks) {
  return hooks.picture ? hooks.picture() : nullptr;
}

void pictureChanged(const BoardHooks& hooks) {
  if (hooks.pictureChanged) hooks.pictureChanged();
}

// The board's touches of an export, for the time of one command: the hull
// name in Text2 and the focus on Cancel.
class BoardTouches {
 public:
  BoardTouches(CmDialog1& files, board::BoardState& b, const BoardHooks& hooks) : files_(files) {
    files_.onHullName = [&b, &hooks](std::string_view name) {
      b.text2 = std::string(name);
      refresh(hooks);
    };
    files_.onFocusCancel = [&hooks] { perform(hooks, {board::onControl(Do::Focus, C::Cancel)}); };
  }
  ~BoardTouches() {
    files_.onHullName = nullptr;
    files_.onFocusCancel = nullptr;
    files_.setBusy(false);
  }
  BoardTouches(const BoardTouches&) = delete;
  BoardTouches& operator=(const BoardTouches&) = delete;

 private:
  CmDialog1& files_;
};

void drawOnPicture(CmDialog1& files, const BoardHooks& hooks,
                   const std::function<void(DrawingSurface&)>& draw) {
  DrawingSurface* plan = picture(hooks);
  if (!plan) return;
  files.setBusy(true);
  draw(*plan);
  files.setBusy(false);
  pictureChanged(hooks);
}

void openPair(BoardWindows& w, const BoardHooks& hooks) {
  AnalysisWindows& a = w.analysis();
  a.picture = hooks.picture;
  a.pictureChanged = hooks.pictureChanged;
  a.open();
}

void command(BoardWindows& w, HullStore& h, board::BoardState& b, BoardControl c,
             const BoardHooks& hooks) {
  CmDialog1& files = w.files();
  switch (c) {
    case C::fmenu_New: {
      const board::Actions next = board::fmenuNew(b, h);
      refresh(hooks);
      perform(hooks, next);
      break;
    }
    case C::fmenu_Open:
      openHull(w, h, b, hooks);
      break;
    case C::fmenu_S_Data:
      saveHull(w, h, b, hooks);
      break;
    case C::fmenu_S_XYZ:
      (void)saveLinesXyz(files, h);
      break;
    case C::fmenu_S_DXF2D:
      (void)saveLines2D(files, h);
      break;
    case C::fmenu_S_DXF3D:
      (void)saveLines3D(files, h);
      break;
    case C::fmenu_SD_XYZ:
      saveDevelopedXyz(files, h, b.stepIndex);
      break;
    case C::fmenu_SD_DXF:
      if (!w.overlapAnswered) w.overlap().run();
      w.overlapAnswered = false;
      saveDevelopedDxf(files, h, b.stepIndex);
      break;
    case C::fmenu_Station_DXF:
      (void)stationFileDXF(files, h, h.stationIndex);
      break;
    case C::fmenu_S_VRML:
      (void)saveVrml(files, h);
      break;
    case C::Hmenu:
      openPair(w, hooks);
      break;
    case C::DessCouple:
      board::drawStationState(b, h);
      refresh(hooks);
      drawOnPicture(files, hooks, [&h](DrawingSurface& s) { drawStation(s, h); });
      break;
    case C::Developer:
      drawOnPicture(files, hooks,
                    [&h, &b](DrawingSurface& s) { developerDisplay(s, h, b.stepIndex); });
      break;
    default:
      printEntry(w, h, b, c);
      break;
  }
}

}  // namespace

BoardWindows::BoardWindows(QWidget* board, HullStore& h)
    : QObject(board),
      board_(board),
      h_(h),
      files_(std::make_unique<CmDialog1>(board)),
      printers_(std::make_unique<CmDialog2>(board)) {
  setObjectName("tolmarBoardWindows");
}

BoardWindows::~BoardWindows() = default;

BoardWindows& BoardWindows::of(QWidget* board, HullStore& h) {
  if (auto* w = board->findChild<BoardWindows*>(QString(), Qt::FindDirectChildrenOnly)) return *w;
  return *new BoardWindows(board, h);
}

Overlap1Window& BoardWindows::overlap() {
  if (!overlap_) overlap_ = new Overlap1Window(h_, board_);
  return *overlap_;
}

AnalysisWindows& BoardWindows::analysis() {
  if (!analysis_) {
    analysis_ = new AnalysisWindows(h_, board_);
    analysis_->busy = [this](bool on) { files_->setBusy(on); };
  }
  return *analysis_;
}

void BoardWindows::setUnattended(bool on) {
  unattended_ = on;
  files_->setUnattended(on);
  printers_->setUnattended(on);
}

void runBoardCommand(QWidget* board, HullStore& h, board::BoardState& b, BoardControl c,
                     const BoardHooks& hooks) {
  if (!board) return;
  BoardWindows& w = BoardWindows::of(board, h);
  BoardTouches touches(w.files(), b, hooks);
  try {
    command(w, h, b, c, hooks);
  } catch (const std::exception& e) {
    // Nothing below throws by design; memory can still run out.
    w.files().setBusy(false);
    w.files().showError("Tolmar2008", e.what());
  }
}

void showBoardScreen(QWidget* board, HullStore& h, board::BoardState& b, ScreenId s,
                     const BoardHooks& hooks) {
  (void)b;
  if (!board) return;
  BoardWindows& w = BoardWindows::of(board, h);
  switch (s) {
    case ScreenId::overlap1:
      w.overlap().run();
      w.overlapAnswered = true;
      break;
    case ScreenId::hydro1:
      openPair(w, hooks);
      break;
    case ScreenId::mass1:
      // Hmenu shows hydro1 then mass1; the pair opens at the first.
      if (!w.analysis().screens().mass.visible) openPair(w, hooks);
      break;
    default:
      break;
  }
}

}  // namespace tolmar::gui

// The drawing board `dessin` as a window: the picture Plan1, the buttons
// and fields under it and the whole menu, bound to board::BoardState.
// Captions follow the language the board had when it last became active;
// enabling, texts and the title follow the model after every event.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <array>
#include <functional>

#include "board/board_control.h"
#include "board/board_layout.h"
#include "board/board_model.h"
#include "windows/board_commands.h"
#include "windows/build_menu.h"
#include "windows/devcheck_window.h"
#include "windows/hull_view_window.h"

class QAction;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tolmar::gui {

class PlanWidget;
class Session;

class DessinWindow : public QMainWindow {
  Q_OBJECT
 public:
  explicit DessinWindow(Session& s);

  board::BoardState& state() { return b_; }
  const board::BoardLayout& layout() const { return layout_; }
  PlanWidget& plan() { return *plan_; }
  void syncFromModel();

  // The widget of a screen control, the menu action of a menu entry.
  QWidget* widget(board::BoardControl c) const { return widgets_[board::index(c)]; }
  QAction* action(board::BoardControl c) const { return actions_[board::index(c)]; }
  QPushButton* button(board::BoardControl c) const;
  QLineEdit* text1() const { return text1_; }
  QLineEdit* text2() const { return text2_; }
  // The "Build" menu after the original menus.
  BuildMenu& constructionMenu() const { return *buildMenu_; }
  // The warning line over the top of the picture, shown while the hull
  // folds (board::BoardState::folds), in the store's language.
  QLabel* foldLine() const { return foldLine_; }
  // Entries beyond the original screens: "3-D view…" in the Build menu and
  // "3-D model (STL, OBJ)…" after the VRML export; the 3-D view while open.
  QAction* view3dAction() const { return view3d_; }
  QAction* model3dAction() const { return model3d_; }
  HullViewWindow* view3d() const { return view3dWindow_.data(); }
  // "Development check…" in the Build menu, enabled with Developer; its
  // window while open.
  QAction* devCheckAction() const { return devCheck_; }
  DevCheckWindow* devCheck() const { return devCheckWindow_.data(); }

  // A click on a button or menu entry, or its shortcut.
  void press(board::BoardControl c);
  // Keyboard focus on a control; on dessine (enabled) that is the redraw.
  void focusControl(board::BoardControl c);
  // The dessine action: the full redraw (or `draw` in its place, for the
  // double click's fit), then the enabling of a redraw and its focus.
  void dessineAction(const std::function<void()>& draw = {});
  void clearPicture();  // Cls of Plan1
  void text2Enter();
  // What the board's commands (board_commands.h) need of this window.
  BoardHooks hooks();

 protected:
  bool event(QEvent* e) override;
  bool eventFilter(QObject* o, QEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  void closeEvent(QCloseEvent* e) override;

 private:
  void buildControls();
  void buildMenu();
  void buildAddedEntries();
  void applyLayout();
  void placeFoldLine();

  Session& s_;
  board::BoardState b_;
  board::BoardLayout layout_;
  int captionLangue_ = 1;
  std::array<QWidget*, board::kBoardControlCount> widgets_{};
  std::array<QAction*, board::kBoardControlCount> actions_{};
  PlanWidget* plan_ = nullptr;
  QLabel* label1_ = nullptr;
  QLabel* label2_ = nullptr;
  QLineEdit* text1_ = nullptr;
  QLineEdit* text2_ = nullptr;
  BuildMenu* buildMenu_ = nullptr;
  QAction* printStability_ = nullptr;  // the print menu's "Stability"
  QLabel* foldLine_ = nullptr;
  QMenu* build_ = nullptr;
  QAction* view3d_ = nullptr;
  QAction* model3d_ = nullptr;
  QPointer<HullViewWindow> view3dWindow_;
  QAction* devCheck_ = nullptr;
  QPointer<DevCheckWindow> devCheckWindow_;
};

}  // namespace tolmar::gui

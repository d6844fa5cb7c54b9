#include "windows/session.h"

#include <QApplication>
#include <QCursor>
#include <QWidget>

#include "screens/menu2.h"
#include "windows/board_commands.h"
#include "windows/bouchain1_window.h"
#include "windows/bouchain2_window.h"
#include "windows/bouchain3_window.h"
#include "windows/busy_cursor.h"
#include "windows/command_steps.h"
#include "windows/dessin_window.h"
#include "windows/file_dialog.h"
#include "windows/menu2_window.h"
#include "windows/plan_widget.h"
#include "windows/twips.h"

namespace tolmar::gui {

using board::Actions;
using board::BoardControl;
using board::Do;
using board::ScreenId;

void DeleteLater::operator()(QObject* o) const {
  if (o) o->deleteLater();
}

Session::Session()
    : beep([] { QApplication::beep(); }),
      message([this](std::string_view title, std::string_view text) {
        showMessage(menu2_.get(), title, text);
      }),
      h_(std::make_unique<HullStore>()),
      runner_(*this, *h_) {}

Session::~Session() {
  // No event loop runs after this: the windows go at once.
  delete bouchain3_.release();
  delete bouchain2_.release();
  delete bouchain1_.release();
  delete dessin_.release();
  delete menu2_.release();
}

void Session::start() {
  BusyCursor busy;
  Menu2Window& m = menu2();
  const QSizeF display = displayTwips(m);
  const Actions steps = screens::loadMenu2(m.model(), *h_, display.width(), display.height());
  m.applyLayout();
  perform(steps);
}

void Session::create() { perform(screens::createClick(dessin().state(), *h_)); }

void Session::openAtStart(const std::string& path) {
  auto read = std::make_unique<HullStore>(*h_);
  std::string why;
  {
    BusyCursor busy;
    why = readHullForOpen(path, *read);
  }
  if (!why.empty()) {
    // Unlike the dialog's choice, the name was typed: the message repeats it.
    if (message) message(kOpenErrorTitle, path + ": " + why);
    return;
  }
  // The board as Create leaves it, without the default hull's bouchain1
  // that the file replaces, then the steps of its Open.
  DessinWindow& d = dessin();
  board::boardOnCreate(d.state(), *h_);
  perform(
      {board::onScreen(Do::Hide, ScreenId::menu2), board::onScreen(Do::Show, ScreenId::dessin)});
  openReadHull(*h_, *read, d.state(), d.hooks());
}

void Session::syncWindows() {
  if (menu2_) menu2_->syncFromModel();
  if (dessin_) dessin_->syncFromModel();
  if (bouchain1_) bouchain1_->syncFromModel();
  if (bouchain2_) bouchain2_->syncFromModel();
  if (bouchain3_) bouchain3_->syncFromModel();
}

board::BoardState& Session::board() { return dessin().state(); }

DrawingSurface& Session::picture() { return dessin().plan().surface(); }

void Session::load(ScreenId s) { window(s, true); }

void Session::show(ScreenId s) {
  if (QWidget* w = window(s, true)) {
    w->show();
    w->raise();
    w->activateWindow();
  } else {
    showBoardScreen(&dessin(), *h_, dessin().state(), s, dessin().hooks());
  }
}

void Session::showModal(ScreenId s) {
  switch (s) {
    case ScreenId::bouchain1:
      bouchain1().showModalScreen();
      break;
    case ScreenId::bouchain2:
      bouchain2().showModalScreen();
      break;
    case ScreenId::bouchain3:
      bouchain3().showModalScreen();
      break;
    default:
      // overlap1: modal in its own right, it returns when the screen ends.
      showBoardScreen(&dessin(), *h_, dessin().state(), s, dessin().hooks());
      break;
  }
}

void Session::hide(ScreenId s) {
  if (QWidget* w = window(s, false)) w->hide();
}

void Session::unload(ScreenId s) {
  if (s == ScreenId::dessin && dessin_) {
    dessin_->hide();
    dessin_.reset();
  }
}

void Session::focus(BoardControl c) { dessin().focusControl(c); }

void Session::refresh(ScreenId s) {
  if (QWidget* w = window(s, false)) w->update();
}

void Session::pictureChanged() {
  if (dessin_) dessin_->plan().update();
}

void Session::bell() {
  if (beep) beep();
}

void Session::command(BoardControl c) { runOnBoard(c); }

void Session::endProgram() {
  ended_ = true;
  emit programEnded();
}

void Session::busy(bool on) {
  if (on) {
    QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
  } else {
    QApplication::restoreOverrideCursor();
  }
}

QWidget* Session::window(ScreenId s, bool load) {
  switch (s) {
    case ScreenId::menu2:
      return load ? &menu2() : menu2_.get();
    case ScreenId::dessin:
      return load ? &dessin() : dessin_.get();
    case ScreenId::bouchain1:
      return load ? &bouchain1() : bouchain1_.get();
    case ScreenId::bouchain2:
      return load ? &bouchain2() : bouchain2_.get();
    case ScreenId::bouchain3:
      return load ? &bouchain3() : bouchain3_.get();
    default:
      return nullptr;  // overlap1 and the analysis screens live with the board's commands
  }
}

Menu2Window& Session::menu2() {
  if (!menu2_) menu2_.reset(new Menu2Window(*this));
  return *menu2_;
}

DessinWindow& Session::dessin() {
  if (!dessin_) dessin_.reset(new DessinWindow(*this));
  return *dessin_;
}

Bouchain1Window& Session::bouchain1() {
  if (!bouchain1_) bouchain1_.reset(new Bouchain1Window(*this));
  return *bouchain1_;
}

Bouchain2Window& Session::bouchain2() {
  if (!bouchain2_) bouchain2_.reset(new Bouchain2Window(*this));
  return *bouchain2_;
}

Bouchain3Window& Session::bouchain3() {
  if (!bouchain3_) bouchain3_.reset(new Bouchain3Window(*this));
  return *bouchain3_;
}

void Session::runOnBoard(BoardControl c) {
  DessinWindow& d = dessin();
  runBoardCommand(&d, *h_, d.state(), c, d.hooks());
}

}  // namespace tolmar::gui

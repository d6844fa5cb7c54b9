#include "windows/analysis_windows.h"

#include <QApplication>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "analysis/pair_placement.h"
#include "board/recording_surface.h"
#include "windows/hydro1_window.h"
#include "windows/mass1_window.h"
#include "windows/twips.h"

namespace tolmar::gui {

using analysis::ActiveScreen;

AnalysisWindows::AnalysisWindows(HullStore& h, QWidget* board)
    : QObject(board), h_(h), board_(board), screens_(h) {
  hydro_ = new Hydro1Window(screens_.hydro, board);
  mass_ = new Mass1Window(screens_.mass, board);

  // The solver shows each height it tries; only painting is served then.
  screens_.hydro.repaint = [this] {
    if (!hydro_) return;
    hydro_->showModel();
    if (hydro_->isVisible()) {
      hydro_->repaint();
      QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
  };
  screens_.hydro.busyPointer = [this](bool on) {
    if (busy) busy(on);
  };
  screens_.showBoard = [this] {
    if (!board_) return;
    board_->show();
    board_->raise();
    board_->activateWindow();
  };

  hydro_->onCalcul = [this] { run([this] { calcHydro(screens_.hydro, h_); }); };
  hydro_->onOption = [this](int n) {
    run([this, n] { selectHydroOption(screens_.hydro, h_, n); });
  };
  hydro_->onEnter = [this](int n) {
    run([this, n] { hydroKeyPress(screens_.hydro, h_, n, analysis::kEnterKey); });
  };
  hydro_->onQuit = [this] { quit(); };
  hydro_->onClose = [this] { run([this] { screens_.closeHydro(); }); };
  mass_->onCalcul = [this] { run([this] { screens_.pushDisplacement(); }); };
  mass_->onEnter = [this] {
    run([this] { massKeyPress(screens_.mass, h_, analysis::kEnterKey); });
  };
  mass_->onFieldLeft = [this] {
    if (!running_) run([this] { massFieldLeft(screens_.mass, h_); });
  };
  mass_->onClose = [this] { run([this] { screens_.mass.visible = false; }); };

  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &AnalysisWindows::windowActivated);
  qApp->installEventFilter(this);
}

AnalysisWindows::~AnalysisWindows() {
  if (qApp) qApp->removeEventFilter(this);
  delete hydro_.data();
  delete mass_.data();
}

void AnalysisWindows::open() {
  run([this] { screens_.open(); });
}

void AnalysisWindows::run(const std::function<void()>& event) {
  if (running_ || !hydro_ || !mass_) return;
  running_ = true;
  hydro_->takeTexts();
  mass_->takeTexts();
  event();
  hydro_->showModel();
  mass_->showModel();
  running_ = false;
  showWindows();
  giveFocus();
  if (pending_) {
    const ActiveScreen s = *pending_;
    pending_.reset();
    activated(s);
  }
}

void AnalysisWindows::showWindows() {
  const bool hydroOn = screens_.hydro.visible, massOn = screens_.mass.visible;
  if (hydroOn != hydro_->isVisible() || massOn != mass_->isVisible()) {
    const bool first = !placed_ && (hydroOn || massOn);
    if (first) place();
    hydro_->setVisible(hydroOn);
    mass_->setVisible(massOn);
    // Shown, the windows know their styled sizes and the window manager
    // its frame: they are placed again on that.
    if (first) QTimer::singleShot(0, this, &AnalysisWindows::place);
  }
}

void AnalysisWindows::giveFocus() {
  QWidget* want = screens_.active() == ActiveScreen::hydro1  ? static_cast<QWidget*>(hydro_.data())
                  : screens_.active() == ActiveScreen::mass1 ? static_cast<QWidget*>(mass_.data())
                                                             : nullptr;
  if (!want || !want->isVisible() || want->isActiveWindow()) return;
  expected_ = want->windowHandle();
  want->raise();
  want->activateWindow();
}

void AnalysisWindows::place() {
  placed_ = true;
  QScreen* screen =
      board_ && board_->screen() ? board_->screen() : QGuiApplication::primaryScreen();
  if (!screen) return;
  const Twips t(screen->logicalDotsPerInchX(), screen->logicalDotsPerInchY());
  const QRect display = screen->availableGeometry();
  // The frame around a window: as the platform tells it for mass1, or as
  // the board has it once shown (a window manager tells it only then).
  mass_->winId();
  const QMargins m = mass_->windowHandle() ? mass_->windowHandle()->frameMargins() : QMargins();
  QSize frame(m.left() + m.right(), m.top() + m.bottom());
  if (board_ && board_->isVisible())
    frame = frame.expandedTo(board_->frameGeometry().size() - board_->geometry().size());
  // The natural sizes (adjustSize would hold a window to 2/3 of the display).
  hydro_->resize(hydro_->sizeHint().expandedTo(hydro_->minimumSizeHint()));
  mass_->resize(mass_->sizeHint().expandedTo(mass_->minimumSizeHint()));
  const QSize hydro = hydro_->size() + frame, mass = mass_->size() + frame;
  const analysis::PairPlacement p = analysis::placePair(
      t.twipsX(display.width()), t.twipsY(display.height()), t.twipsX(hydro.width()),
      t.twipsY(hydro.height()), t.twipsX(mass.width()), t.twipsY(mass.height()));
  hydro_->move(display.topLeft() + t.pixelAt(p.hydro.left, p.hydro.top));
  const QPoint massAt = display.topLeft() + t.pixelAt(p.mass.left, p.mass.top);
  const int massHeight = std::min(mass.height(), t.y(p.mass.height)) - frame.height();
  if (massHeight < mass_->height()) {
    // Shortened: the rows scroll, and the bar takes its room beside them,
    // kept on the display.
    const int width = mass_->width() + mass_->scrollBarWidth();
    mass_->resize(width, massHeight);
  }
  const int massLeft = std::min(massAt.x(), display.right() + 1 - mass_->width() - frame.width());
  mass_->move(std::max(display.left(), massLeft), massAt.y());
}

void AnalysisWindows::quit() {
  run([this] {
    DrawingSurface* plan = picture ? picture() : nullptr;
    if (plan) {
      screens_.quit(*plan);
    } else {
      // No picture to draw on: the pair is left all the same.
      RecordingSurface none(0, 0);
      screens_.quit(none);
    }
  });
  if (pictureChanged) pictureChanged();
}

ActiveScreen AnalysisWindows::screenOf(QWindow* w) const {
  if (hydro_ && w == hydro_->windowHandle()) return ActiveScreen::hydro1;
  if (mass_ && w == mass_->windowHandle()) return ActiveScreen::mass1;
  return ActiveScreen::other;
}

void AnalysisWindows::windowActivated(QWindow* w) {
  if (!w) return;  // another program: no screen of this one changed
  if (expected_) {
    if (w == expected_) expected_.clear();
    return;
  }
  activated(screenOf(w));
}

void AnalysisWindows::activated(ActiveScreen s) {
  if (!screens_.hydro.visible && !screens_.mass.visible) return;
  if (running_) {
    pending_ = s;
    return;
  }
  if (s == screens_.active()) return;
  run([this, s] { screens_.activate(s); });
}

bool AnalysisWindows::eventFilter(QObject* watched, QEvent* event) {
  // A click of the user in another window than the one asked for ends the
  // wait for the echo: a window manager may refuse to hand the focus over.
  if (expected_ && event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
    const QWidget* top = static_cast<QWidget*>(watched)->window();
    if (top && top->windowHandle() != expected_) expected_.clear();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace tolmar::gui

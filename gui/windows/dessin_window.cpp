#include "windows/dessin_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QFocusEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <algorithm>

#include "board/fold_drawing.h"
#include "devcheck/checked_drawing.h"
#include "windows/board_commands.h"
#include "windows/busy_cursor.h"
#include "windows/command_steps.h"
#include "windows/field_widgets.h"
#include "windows/hull_view_window.h"
#include "windows/model_export.h"
#include "windows/plan_widget.h"
#include "windows/session.h"
#include "windows/stability_window.h"
#include "windows/twips.h"

namespace tolmar::gui {

using board::BoardControl;
using C = board::BoardControl;

namespace {

constexpr BoardControl kButtons[] = {C::Command1_0, C::Command1_1, C::Command1_2, C::DessCouple,
                                     C::Developer,  C::dessine,    C::Cancel};

QString text(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}
QString captionOf(BoardControl c, int langue) { return text(board::caption(c, langue)); }
QString nameOf(BoardControl c) { return text(board::controlName(c)); }

}  // namespace

DessinWindow::DessinWindow(Session& s)
    : QMainWindow(nullptr), s_(s), b_(board::loadBoard(s.store())) {
  setObjectName("dessin");
  captionLangue_ = s.store().langue;
  buildControls();
  buildMenu();
  buildAddedEntries();
  const Twips t(*this);
  const QSizeF display = displayTwips(*this);
  layout_ = board::loadLayout(display.width(), display.height());
  setGeometry(t.rect(layout_.window));
  applyLayout();
  syncFromModel();
}

void DessinWindow::buildControls() {
  auto* central = new QWidget(this);
  setCentralWidget(central);
  plan_ = new PlanWidget(s_.store(), b_, central);
  plan_->onDoubleClick = [this] { dessineAction([this] { plan_->mouse().doubleClick(); }); };
  widgets_[board::index(C::Plan1)] = plan_;
  for (BoardControl c : kButtons) {
    auto* b = new QPushButton(central);
    b->setObjectName(nameOf(c));
    b->setAutoDefault(false);
    connect(b, &QPushButton::clicked, this, [this, c] { press(c); });
    widgets_[board::index(c)] = b;
  }
  button(C::dessine)->installEventFilter(this);
  label1_ = new QLabel(central);
  label2_ = new QLabel(central);
  text1_ = new QLineEdit(central);
  text2_ = new QLineEdit(central);
  label1_->setObjectName("Label1");
  label2_->setObjectName("Label2");
  text1_->setObjectName("Text1");
  text2_->setObjectName("Text2");
  widgets_[board::index(C::Label1)] = label1_;
  widgets_[board::index(C::Label2)] = label2_;
  widgets_[board::index(C::Text1)] = text1_;
  widgets_[board::index(C::Text2)] = text2_;
  connect(text1_, &QLineEdit::textEdited, this,
          [this](const QString& t) { b_.text1 = t.toStdString(); });
  connect(text2_, &QLineEdit::textEdited, this,
          [this](const QString& t) { b_.text2 = t.toStdString(); });
  connect(text2_, &QLineEdit::returnPressed, this, &DessinWindow::text2Enter);
  // Not one of the screen's controls: a line of its own over the picture.
  foldLine_ = new QLabel(central);
  foldLine_->setObjectName("foldLine");
  foldLine_->setAutoFillBackground(true);
  foldLine_->setMargin(4);
  QPalette p = foldLine_->palette();
  p.setColor(QPalette::Window, qtColor(kFoldColour));
  p.setColor(QPalette::WindowText, Qt::black);
  foldLine_->setPalette(p);
  foldLine_->hide();
}

void DessinWindow::buildMenu() {
  QMenu* top = nullptr;
  QMenu* sub = nullptr;
  const auto entries = board::boardMenu();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const board::MenuEntry& e = entries[i];
    const bool opensSubMenu = e.level == 1 && i + 1 < entries.size() && entries[i + 1].level == 2;
    QAction* a = nullptr;
    if (e.level == 0 && e.actsOnClick) {
      a = menuBar()->addAction(QString());
    } else if (e.level == 0) {
      top = menuBar()->addMenu(QString());
      a = top->menuAction();
    } else if (e.separator) {
      a = top->addSeparator();
    } else if (opensSubMenu) {
      sub = top->addMenu(QString());
      a = sub->menuAction();
    } else {
      a = (e.level == 2 ? sub : top)->addAction(QString());
    }
    a->setObjectName(nameOf(e.control));
    if (!e.key.empty()) {
      a->setShortcut(QKeySequence(text(e.key)));
      a->setShortcutContext(Qt::WindowShortcut);
    }
    if (!e.separator && (e.actsOnClick || (e.level > 0 && !opensSubMenu))) {
      const BoardControl c = e.control;
      connect(a, &QAction::triggered, this, [this, c] { press(c); });
    }
    actions_[board::index(e.control)] = a;
  }
  // "Stability" at the end of the print menu: pages of this program's own.
  if (QMenu* printMenu = actions_[board::index(C::fmenu_Print)]->menu()) {
    printStability_ = printMenu->addAction(QString());
    printStability_->setObjectName("fmenu_P_Stability");
    connect(printStability_, &QAction::triggered, this,
            [this] { printStabilityEntry(BoardWindows::of(this, s_.store()), s_.store()); });
  }
}

void DessinWindow::buildAddedEntries() {
  // After the VRML export, in the menu that holds it.
  QAction* vrml = actions_[board::index(C::fmenu_S_VRML)];
  for (QObject* o : vrml ? vrml->associatedObjects() : QObjectList{}) {
    auto* menu = qobject_cast<QMenu*>(o);
    if (!menu) continue;
    const auto list = menu->actions();
    const auto at = std::find(list.begin(), list.end(), vrml);
    model3d_ = new QAction(menu);
    menu->insertAction(at + 1 != list.end() ? *(at + 1) : nullptr, model3d_);
    break;
  }
  if (model3d_) {
    model3d_->setObjectName("fmenu_S_Model3D");
    connect(model3d_, &QAction::triggered, this, [this] { saveHullModel(this, s_.store()); });
  }
  build_ = menuBar()->addMenu(QString());
  build_->menuAction()->setObjectName("fmenu_Build");
  view3d_ = build_->addAction(QString());
  view3d_->setObjectName("fmenu_B_View3D");
  connect(view3d_, &QAction::triggered, this, [this] {
    if (!view3d_->isEnabled()) return;
    if (!view3dWindow_) {
      view3dWindow_ = openHullViewWindow(this, s_.store());
      if (!view3dWindow_) return;
      view3dWindow_->setAttribute(Qt::WA_DeleteOnClose);
      // The heel a crew on one side gives, while the stability window
      // shows one.
      view3dWindow_->setStabilityHeel([this]() -> std::optional<double> {
        const auto* w = qobject_cast<StabilityWindow*>(buildMenu_->window("fmenu_B_Stability"));
        if (!w || !w->result().ok() || !w->result().crewAsked || !w->result().crew.rests)
          return std::nullopt;
        return w->result().crew.heel;
      });
    }
    view3dWindow_->show();
    view3dWindow_->raise();
    view3dWindow_->activateWindow();
  });
  devCheck_ = build_->addAction(QString());
  devCheck_->setObjectName("fmenu_B_DevCheck");
  connect(devCheck_, &QAction::triggered, this, [this] {
    if (!devCheck_->isEnabled()) return;
    // A window in another language than the hull's now is made anew.
    if (devCheckWindow_ && devCheckWindow_->langue() != s_.store().langue)
      delete devCheckWindow_.data();
    if (!devCheckWindow_) {
      // The patterns in their verdicts' colours over the picture; Developer
      // draws the board's own figure again.
      devCheckWindow_ = new DevCheckWindow(
          this, s_.store(),
          [this](const std::vector<DevelopedPlate>& plates, const devcheck::CheckReport& r) {
            devcheck::drawCheckedPlates(plan_->surface(), s_.store(), plates, r);
            devcheck::drawVerdictLegend(plan_->surface(), devCheckWindow_->langue());
            plan_->update();
          });
      devCheckWindow_->setAttribute(Qt::WA_DeleteOnClose);
    } else {
      devCheckWindow_->refresh();
    }
    devCheckWindow_->show();
    devCheckWindow_->raise();
    devCheckWindow_->activateWindow();
  });
  // The entries of build_menu.h after it.
  buildMenu_ = new BuildMenu(build_, this, s_.store());
}

QPushButton* DessinWindow::button(BoardControl c) const {
  return qobject_cast<QPushButton*>(widgets_[board::index(c)]);
}

void DessinWindow::applyLayout() {
  const Twips t(*this);
  const board::BoardLayout& l = layout_;
  place(plan_, t, l.plan1);
  // A label is given at least the height of its text, from the same top.
  auto placeLabel = [&](QLabel* w, const board::Rect& r) {
    QRect g = t.rect(r);
    g.setHeight(std::max(g.height(), w->fontMetrics().height()));
    w->setGeometry(g);
  };
  placeLabel(label2_, l.label2);
  place(text2_, t, l.text2);
  for (int i = 0; i < 3; ++i) place(button(board::command1(i)), t, l.command1[i]);
  placeLabel(label1_, l.label1);
  place(text1_, t, l.text1);
  place(button(C::DessCouple), t, l.dessCouple);
  place(button(C::Cancel), t, l.cancel);
  place(button(C::dessine), t, l.dessine);
  place(button(C::Developer), t, l.developer);
  placeFoldLine();
}

void DessinWindow::placeFoldLine() {
  const QRect picture = plan_->geometry();
  foldLine_->setGeometry(picture.left(), picture.top(), picture.width(),
                         foldLine_->sizeHint().height());
  foldLine_->raise();
}

void DessinWindow::syncFromModel() {
  setWindowTitle(qtText(b_.title));
  for (std::size_t i = 0; i < board::kBoardControlCount; ++i) {
    const auto c = static_cast<BoardControl>(i);
    if (QWidget* w = widgets_[i]) w->setEnabled(b_.isEnabled(c));
    if (QAction* a = actions_[i]) {
      a->setEnabled(b_.isEnabled(c));
      if (!a->isSeparator()) a->setText(captionOf(c, captionLangue_));
    }
  }
  for (BoardControl c : kButtons) button(c)->setText(captionOf(c, captionLangue_));
  buildMenu_->sync(b_, captionLangue_);
  if (printStability_) {
    printStability_->setText(captionLangue_ == 0 ? QString::fromUtf8("Stabilité") : "Stability");
    printStability_->setEnabled(b_.stepIndex >= 1 && b_.isEnabled(C::fmenu_P_Tout));
  }
  label1_->setText(captionOf(C::Label1, captionLangue_));
  label2_->setText(captionOf(C::Label2, captionLangue_));
  if (text1_->text() != qtText(b_.text1)) text1_->setText(qtText(b_.text1));
  if (text2_->text() != qtText(b_.text2)) text2_->setText(qtText(b_.text2));
  // The hull name's "background of the screen" is the window's own colour.
  QPalette p = text2_->palette();
  p.setColor(QPalette::Base, b_.text2Background == board::kScreenBackground
                                 ? palette().color(QPalette::Window)
                                 : qtColor(b_.text2Background));
  text2_->setPalette(p);

  // The planks' lines are drawn: a redraw after the planking, which also
  // enables the VRML export.
  const bool drawn = b_.stepIndex >= 1 && b_.isEnabled(C::fmenu_S_VRML) && s_.store().nChines >= 1;
  const bool fr = captionLangue_ == 0;
  build_->setTitle(fr ? "Construction" : "Build");
  view3d_->setText(QString::fromUtf8(fr ? "Vue 3D…" : "3-D view…"));
  view3d_->setEnabled(drawn);
  if (model3d_) {
    model3d_->setText(QString::fromUtf8(fr ? "Modèle 3D (STL, OBJ)…" : "3-D model (STL, OBJ)…"));
    model3d_->setEnabled(drawn);
  }
  if (view3dWindow_ && drawn) view3dWindow_->follow();
  devCheck_->setText(QString::fromUtf8(fr ? "Contrôle du développement…" : "Development check…"));
  devCheck_->setEnabled(b_.isEnabled(C::Developer));
  // Like the 3-D view, the check follows the hull redrawn.
  if (devCheckWindow_ && devCheck_->isEnabled()) devCheckWindow_->follow();

  const QString folds = qtText(b_.folds.message(s_.store().langue));
  if (folds != foldLine_->text()) {
    foldLine_->setText(folds);
    placeFoldLine();
  }
  foldLine_->setVisible(!folds.isEmpty());
}

void DessinWindow::press(BoardControl c) { s_.perform(board::press(b_, s_.store(), c)); }

void DessinWindow::focusControl(BoardControl c) {
  if (c == C::dessine) {
    // A disabled button cannot take the focus, so it does not redraw.
    if (b_.isEnabled(C::dessine)) dessineAction();
    return;
  }
  QWidget* w = widgets_[board::index(c)];
  if (!w || !b_.isEnabled(c)) return;
  syncFromModel();  // the control may have been enabled by the same event
  w->setFocus(Qt::OtherFocusReason);
}

void DessinWindow::dessineAction(const std::function<void()>& draw) { s_.redraw(draw); }

BoardHooks DessinWindow::hooks() {
  BoardHooks k;
  k.refresh = [this] { syncFromModel(); };
  k.perform = [this](const board::Actions& a) { s_.perform(a); };
  k.picture = [this]() -> DrawingSurface* { return &plan_->surface(); };
  k.pictureChanged = [this] { plan_->update(); };
  return k;
}

void DessinWindow::clearPicture() {
  plan_->surface().Cls();
  plan_->update();
}

void DessinWindow::text2Enter() {
  BusyCursor busy;
  b_.text2 = text2_->text().toStdString();
  s_.perform(board::text2Enter(b_, s_.store()));
}

bool DessinWindow::event(QEvent* e) {
  if (e->type() == QEvent::WindowActivate) {
    captionLangue_ = s_.store().langue;
    board::activateBoard(b_, captionLangue_);
    syncFromModel();
  }
  return QMainWindow::event(e);
}

bool DessinWindow::eventFilter(QObject* o, QEvent* e) {
  // dessine taken by the keyboard redraws, as the end of a hull screen's
  // focus does; a click redraws through the click itself.
  if (o == button(C::dessine) && e->type() == QEvent::FocusIn) {
    const Qt::FocusReason r = static_cast<QFocusEvent*>(e)->reason();
    if (r == Qt::TabFocusReason || r == Qt::BacktabFocusReason) focusControl(C::dessine);
  }
  return QMainWindow::eventFilter(o, e);
}

void DessinWindow::resizeEvent(QResizeEvent* e) {
  QMainWindow::resizeEvent(e);
  const Twips t(*this);
  if (board::resizeLayout(layout_, t.twipsX(width()), t.twipsY(height()))) applyLayout();
}

void DessinWindow::closeEvent(QCloseEvent* e) {
  // Once the program has ended, the application closes its windows on the
  // way out: the board goes without a way back to the start screen.
  if (s_.ended()) {
    e->accept();
    return;
  }
  e->ignore();
  s_.perform(board::closeBoard());
}

}  // namespace tolmar::gui

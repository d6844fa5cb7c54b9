// Helpers of the board session tests: a started program, typing into a
// field, mouse events with the buttons held, and pictures compared.
#pragma once

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QMouseEvent>
#include <QtTest>
#include <memory>

#include "board/views.h"
#include "qtdraw/image_surface.h"
#include "windows/bouchain1_window.h"
#include "windows/dessin_window.h"
#include "windows/menu2_window.h"
#include "windows/plan_widget.h"
#include "windows/session.h"

namespace tolmar::test {

// The offscreen platform's notes about raise() and size hints, which it
// cannot honour, would bury the test output.  Call from initTestCase,
// after the test library has put its own handler in place.
inline QtMessageHandler previousHandler = nullptr;
inline void quietOffscreen() {
  previousHandler =
      qInstallMessageHandler([](QtMsgType t, const QMessageLogContext& c, const QString& m) {
        if (t == QtWarningMsg && m.startsWith("This plugin does not support")) return;
        if (previousHandler) previousHandler(t, c, m);
      });
}

// A program started as at launch, with its beeps counted.
struct Started {
  std::unique_ptr<gui::Session> s = std::make_unique<gui::Session>();
  int beeps = 0;
  Started() {
    s->beep = [this] { ++beeps; };
    s->start();
  }
  gui::DessinWindow& board() { return s->dessin(); }
  HullStore& h() { return s->store(); }
  // Create, then Valider on the default hull's bottom.
  void createAndValidate() {
    s->menu2().createButton()->click();
    s->bouchain1().valider();
  }
};

inline void type(QLineEdit* e, const QString& text) {
  e->setFocus();
  e->selectAll();
  QTest::keyClick(e, Qt::Key_Backspace);
  for (const QChar ch : text) {
    // keyClicks takes Latin letters only; an accented one goes as its text.
    QTest::sendKeyEvent(QTest::Press, e, Qt::Key_unknown, QString(ch), Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Release, e, Qt::Key_unknown, QString(ch), Qt::NoModifier);
  }
}

inline void mouse(QWidget* w, QEvent::Type t, QPoint p, Qt::MouseButton b, Qt::MouseButtons held) {
  QMouseEvent e(t, QPointF(p), w->mapToGlobal(QPointF(p)), b, held, Qt::NoModifier);
  QApplication::sendEvent(w, &e);
}

inline int inkedPixels(const QImage& img) {
  int n = 0;
  for (int y = 0; y < img.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(img.constScanLine(y));
    for (int x = 0; x < img.width(); ++x) n += (line[x] & 0xFFFFFF) != 0xFFFFFF;
  }
  return n;
}

// The views as redrawViews paints them at the store's present scale, on a
// fresh picture of the same size.
inline QImage viewsAsDrawn(HullStore& h, QSize dots, int stepIndex) {
  qtdraw::ImageSurface s(dots);
  s.ScaleWidth = s.Width();
  s.ScaleHeight = s.Height();
  redrawViews(s, h, stepIndex);
  return s.picture();
}

}  // namespace tolmar::test

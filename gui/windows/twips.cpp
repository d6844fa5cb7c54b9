#include "windows/twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "qtdraw/device_scale.h"

namespace tolmar::gui {

namespace {

using qtdraw::kTwipsPerInch;

int toPx(double twips, double dpi) {
  const double px = std::round(twips * dpi / kTwipsPerInch);
  // A rule applied to a frame far beyond any display stays inside int.
  return static_cast<int>(std::clamp(px, -1.0e6, 1.0e6));
}

}  // namespace

Twips::Twips(const QWidget& w) : dpiX_(w.logicalDpiX()), dpiY_(w.logicalDpiY()) {}

int Twips::x(double twips) const { return toPx(twips, dpiX_); }
int Twips::y(double twips) const { return toPx(twips, dpiY_); }

QRect Twips::rect(const board::Rect& r) const {
  const int left = x(r.left), top = y(r.top);
  return QRect(left, top, x(r.right()) - left, y(r.bottom()) - top);
}

QPoint Twips::pixelAt(double xTwips, double yTwips) const {
  return {static_cast<int>(xTwips * dpiX_ / kTwipsPerInch),
          static_cast<int>(yTwips * dpiY_ / kTwipsPerInch)};
}

double Twips::twipsX(double px) const { return px * kTwipsPerInch / dpiX_; }
double Twips::twipsY(double px) const { return px * kTwipsPerInch / dpiY_; }

QSizeF displayTwips(const QWidget& w) {
  const QScreen* screen = w.screen() ? w.screen() : QGuiApplication::primaryScreen();
  const QSize px = screen ? screen->geometry().size() : QSize(1024, 768);
  const Twips t(w);
  return {t.twipsX(px.width()), t.twipsY(px.height())};
}

void place(QWidget* w, const Twips& t, const board::Rect& r) { w->setGeometry(t.rect(r)); }

}  // namespace tolmar::gui

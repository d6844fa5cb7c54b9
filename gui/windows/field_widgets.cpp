#include "windows/field_widgets.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>

namespace tolmar::gui {

QColor qtColor(std::int32_t rgb) {
  const auto v = static_cast<std::uint32_t>(rgb);
  return QColor(static_cast<int>(v & 0xFF), static_cast<int>((v >> 8) & 0xFF),
                static_cast<int>((v >> 16) & 0xFF));
}

QString qtText(const std::string& utf8) { return QString::fromStdString(utf8); }

void setBackground(QWidget* w, const QColor& c) {
  const QPalette::ColorRole role = qobject_cast<QLineEdit*>(w) ? QPalette::Base : QPalette::Window;
  if (w->palette().color(role) == c && (role == QPalette::Base || w->autoFillBackground())) return;
  QPalette p = w->palette();
  p.setColor(role, c);
  w->setPalette(p);
  if (role == QPalette::Window) w->setAutoFillBackground(true);
}

void showField(QLineEdit* e, const Field& f) {
  const QString text = qtText(f.text);
  if (e->text() != text) e->setText(text);
  setBackground(e, qtColor(f.backColor));
  e->setEnabled(f.enabled);
  e->setVisible(f.visible);
}

void showCaption(QLabel* l, const Field& f) {
  const QString text = qtText(f.caption);
  if (l->text() != text) l->setText(text);
  l->setEnabled(f.enabled);
}

void showCaption(QAbstractButton* b, const Field& f) {
  const QString text = qtText(f.caption);
  if (b->text() != text) b->setText(text);
  b->setEnabled(f.enabled);
  b->setVisible(f.visible);
  if (b->isCheckable() && b->isChecked() != f.value) b->setChecked(f.value);
}

void takeText(Field& f, const QLineEdit* e) { f.text = e->text().toStdString(); }

}  // namespace tolmar::gui

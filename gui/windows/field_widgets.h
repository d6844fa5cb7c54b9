// A screen's Field shown on a Qt widget: text, caption, background colour,
// enabled and visible states.  A line edit's text is set only when it
// differs, so that the cursor of a field being typed in stays where it is.
#pragma once

#include <QColor>
#include <QString>
#include <cstdint>
#include <string>

#include "screens/control.h"

class QAbstractButton;
class QLabel;
class QLineEdit;
class QWidget;

namespace tolmar::gui {

// RGB with red in the low byte, as the screens keep their colours.
QColor qtColor(std::int32_t rgb);

QString qtText(const std::string& utf8);

void showField(QLineEdit* e, const Field& f);
void showCaption(QLabel* l, const Field& f);
void showCaption(QAbstractButton* b, const Field& f);  // an option button shows `value` too

// The typed text back into the field.
void takeText(Field& f, const QLineEdit* e);

// Background of a widget through its palette (Base for a line edit,
// Window for the rest).
void setBackground(QWidget* w, const QColor& c);

}  // namespace tolmar::gui

// A group of option buttons shown from its screen model: exactly the
// buttons whose field has `value` are checked, none while the model has
// chosen none.  An exclusive group cannot show "none chosen", so it is
// opened for the moment of the update.
#pragma once

#include <QButtonGroup>
#include <QRadioButton>
#include <array>

#include "screens/control.h"
#include "windows/field_widgets.h"

namespace tolmar::gui {

template <int Lo, int Hi>
void showOptionGroup(QButtonGroup* g, const std::array<QRadioButton*, Hi - Lo + 1>& buttons,
                     const ControlArray<Lo, Hi>& fields) {
  g->setExclusive(false);
  for (int i = Lo; i <= Hi; ++i) showCaption(buttons[static_cast<std::size_t>(i - Lo)], fields(i));
  g->setExclusive(true);
}

}  // namespace tolmar::gui

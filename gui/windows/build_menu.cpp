#include "windows/build_menu.h"

#include <QAction>
#include <cstring>

#include "windows/sheets_window.h"
#include "windows/stability_window.h"

namespace tolmar::gui {

bool planksDrawn(const board::BoardState& b) {
  return b.stepIndex >= 1 && b.isEnabled(board::BoardControl::fmenu_SD_DXF);
}

const std::vector<BuildEntry>& buildEntries() {
  // One row per entry, in the order of the menu.
  static const std::vector<BuildEntry> entries = {
      {"fmenu_B_Sheets", "Panneaux de contreplaqué…", "Plywood sheets…", planksDrawn,
       openSheetsWindow},
      {"fmenu_B_Stability", "Stabilité…", "Stability…", planksDrawn, openStabilityWindow},
  };
  return entries;
}

BuildMenu::BuildMenu(QMenu* menu, QWidget* board, const HullStore& h)
    : QObject(menu), board_(board), h_(h), menu_(menu) {
  const auto& entries = buildEntries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    QAction* a = menu_->addAction(QString());
    a->setObjectName(entries[i].objectName);
    connect(a, &QAction::triggered, this, [this, i] { open(i); });
    actions_.push_back(a);
    windows_.emplace_back();
  }
}

void BuildMenu::sync(const board::BoardState& b, int langue) {
  menu_->setTitle(langue == 0 ? "Construction" : "Build");
  const auto& entries = buildEntries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    actions_[i]->setText(QString::fromUtf8(langue == 0 ? entries[i].french : entries[i].english));
    actions_[i]->setEnabled(entries[i].enabled(b));
    // A window that follows the hull (a `follow()` it can be asked for)
    // computes again once the hull changed, while its entry is enabled.
    QWidget* w = windows_[i].data();
    if (w && actions_[i]->isEnabled() && w->metaObject()->indexOfMethod("follow()") >= 0)
      QMetaObject::invokeMethod(w, "follow", Qt::DirectConnection);
  }
}

QAction* BuildMenu::action(const char* objectName) const {
  for (QAction* a : actions_)
    if (a->objectName() == QLatin1String(objectName)) return a;
  return nullptr;
}

QWidget* BuildMenu::window(const char* objectName) const {
  for (std::size_t i = 0; i < actions_.size(); ++i)
    if (actions_[i]->objectName() == QLatin1String(objectName)) return windows_[i].data();
  return nullptr;
}

void BuildMenu::open(std::size_t i) {
  if (!actions_[i]->isEnabled()) return;
  // Each opening computes on the hull as it is now.
  if (windows_[i]) delete windows_[i].data();
  QWidget* w = buildEntries()[i].open(board_, h_);
  if (!w) return;
  w->setAttribute(Qt::WA_DeleteOnClose);
  windows_[i] = w;
  w->show();
  w->raise();
  w->activateWindow();
}

}  // namespace tolmar::gui

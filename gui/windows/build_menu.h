// Entries of the board's "Build" / "Construction" menu (after the menus of
// the original screens: what this program adds to them) that open a window
// of their own.  Each entry is one row of buildEntries() (build_menu.cpp):
// its captions, when it is enabled, and the function that opens its window
// beside the board.
#pragma once

#include <QMenu>
#include <QPointer>
#include <vector>

#include "board/board_model.h"
#include "hull/hull_store.h"

class QAction;

namespace tolmar::gui {

struct BuildEntry {
  const char* objectName;  // of the QAction, for tests and screenshots
  const char* french;
  const char* english;
  bool (*enabled)(const board::BoardState& b);
  // A new window on the hull as it is now, parented to the board; it is
  // deleted when closed or when the entry opens it again.
  QWidget* (*open)(QWidget* board, const HullStore& h);
};

// The planks are defined and drawn: the board's exports of the plates are
// enabled after a redraw with stepIndex 1 or 2.
bool planksDrawn(const board::BoardState& b);

const std::vector<BuildEntry>& buildEntries();

class BuildMenu : public QObject {
  Q_OBJECT
 public:
  // Adds the entries to the board's Build menu `menu`.
  BuildMenu(QMenu* menu, QWidget* board, const HullStore& h);

  // Captions by langue (0 French, 1 English) and enabling by the board;
  // an open window with an invokable follow() is asked to follow the hull.
  void sync(const board::BoardState& b, int langue);

  QMenu* menu() const { return menu_; }
  QAction* action(const char* objectName) const;
  // The window an entry opened last, if it is still open.
  QWidget* window(const char* objectName) const;

 private:
  void open(std::size_t i);

  QWidget* board_;
  const HullStore& h_;
  QMenu* menu_;
  std::vector<QAction*> actions_;
  std::vector<QPointer<QWidget>> windows_;
};

}  // namespace tolmar::gui

// The busy pointer around a long operation: the hourglass from construction
// to destruction.  Nested uses stack, so an inner one does not end an outer
// one early.
#pragma once

#include <QApplication>
#include <QCursor>

namespace tolmar::gui {

class BusyCursor {
 public:
  BusyCursor() { QApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
  ~BusyCursor() { QApplication::restoreOverrideCursor(); }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
};

}  // namespace tolmar::gui

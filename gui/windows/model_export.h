// "3-D model (STL, OBJ)…" of the board's File menu: a dialog for the
// format, the unit, the scale of a scale model (1:N, as tolmar-cli export
// --scale takes it) and the file, which the save writes.  The format, the
// unit and the scale are remembered between runs.
#pragma once

#include <QDialog>

#include "hull/hull_store.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace tolmar::gui {

class ModelExportDialog : public QDialog {
  Q_OBJECT
 public:
  ModelExportDialog(QWidget* board, const HullStore& h);

  QComboBox* format() const { return format_; }  // 0 STL, 1 OBJ
  QComboBox* unit() const { return unit_; }      // 0 metres, 1 millimetres
  QLineEdit* scale() const { return scale_; }
  QLineEdit* path() const { return path_; }
  QLabel* message() const { return message_; }

  // Writes the file the fields describe; false, with the reason in
  // message(), for a scale that is not 1:N with N above 0, no file, or a
  // write that fails (which leaves any file there as it was).
  bool save();

 private:
  void browse();
  void saveSettings() const;

  const HullStore& h_;
  QComboBox* format_;
  QComboBox* unit_;
  QLineEdit* scale_;
  QLineEdit* path_;
  QLabel* message_;
};

// Refuses a folded hull with its message, else runs the dialog.
void saveHullModel(QWidget* board, const HullStore& h);

}  // namespace tolmar::gui

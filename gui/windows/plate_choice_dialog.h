// Before the full-size patterns or the panel offsets are printed: which
// plates, and the tiles' overlap or the offsets' step.  The choice is
// remembered between runs of the program, per document.
#pragma once

#include <QDialog>
#include <optional>
#include <string>
#include <vector>

#include "development/developed_plate.h"

class QDialogButtonBox;
class QDoubleSpinBox;
class QListWidget;

namespace tolmar::gui {

enum class PlateDocument { patterns, panelOffsets };

struct PlateChoice {
  std::vector<std::string> plates;  // names, as choosePlates takes them
  double valueMm = 0;               // the overlap of the tiles, or the step
};

// The remembered choice for `plates`: a plate the user ticked or cleared
// keeps that; any other is in unless it is a deck, as the CLI's default.
// A remembered value out of its range is the default.
PlateChoice rememberedPlateChoice(PlateDocument doc, const std::vector<DevelopedPlate>& plates);
// Remembers which of `plates` are in `choice` and the value.
void rememberPlateChoice(PlateDocument doc, const std::vector<DevelopedPlate>& plates,
                         const PlateChoice& choice);

class PlateChoiceDialog : public QDialog {
  Q_OBJECT
 public:
  PlateChoiceDialog(PlateDocument doc, const std::vector<DevelopedPlate>& plates,
                    const PlateChoice& initial, int langue, QWidget* parent = nullptr);
  PlateChoice choice() const;

  QListWidget* plateList() const { return list_; }
  QDoubleSpinBox* valueBox() const { return value_; }
  QDialogButtonBox* buttons() const { return buttons_; }

 private:
  void updateOk();

  std::vector<std::string> names_;
  QListWidget* list_;
  QDoubleSpinBox* value_;
  QDialogButtonBox* buttons_;
};

// The dialog over `parent`, or the remembered choice at once when
// unattended; nothing when the user cancels.  An accepted choice is
// remembered.
std::optional<PlateChoice> askPlateChoice(QWidget* parent, bool unattended, PlateDocument doc,
                                          const std::vector<DevelopedPlate>& plates, int langue);

}  // namespace tolmar::gui

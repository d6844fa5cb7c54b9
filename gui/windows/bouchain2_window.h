// The planks screen bouchain2: five rows of heights and inclination with
// three groups of option buttons (sheer line, transom and bow turn-in),
// bound to tolmar::Bouchain2.
#pragma once

#include <QPushButton>
#include <array>

#include "screens/bouchain2.h"
#include "windows/hull_screen_window.h"

class QButtonGroup;
class QFrame;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace tolmar::gui {

class Bouchain2Window : public HullScreenWindow {
  Q_OBJECT
 public:
  static constexpr int kRows = 5;
  using Row = std::array<QLineEdit*, kRows>;
  using Options = std::array<QRadioButton*, kRows>;

  explicit Bouchain2Window(Session& s);

  Bouchain2& model() { return m_; }
  void syncFromModel() override;
  // Column 0..3: Text1 (height aft), Text2 (at maximum beam), Text3
  // (forward), Text4 (inclination).
  QLineEdit* field(int column, int row) const;
  QRadioButton* optShear(int i) const { return optShear_.at(static_cast<std::size_t>(i)); }
  QRadioButton* optTableau(int i) const { return optTableau_.at(static_cast<std::size_t>(i)); }
  QRadioButton* optMarotte(int i) const { return optMarotte_.at(static_cast<std::size_t>(i)); }
  QPushButton* validerButton() override { return valider_; }

 public slots:
  void valider() override;

 protected:
  void activate() override;

 private:
  ControlArray<0, 4>& column(int c);

  Bouchain2 m_;
  QLabel* titre1_;
  std::array<QLabel*, 7> label1_{};  // Label1(1..7)
  std::array<QLabel*, kRows> label2_{};
  std::array<Row, 4> text_{};
  Options optShear_{}, optTableau_{}, optMarotte_{};
  std::array<QButtonGroup*, 3> groups_{};
  std::array<QFrame*, 3> frames_{};
  QPushButton* valider_;
};

}  // namespace tolmar::gui

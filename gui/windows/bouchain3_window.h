// The automatic planking screen bouchain3: seven numbers, a progress line
// repainted between the passes of a long validation, and Valider, bound
// to tolmar::Bouchain3.
#pragma once

#include <QPushButton>
#include <array>

#include "screens/bouchain3.h"
#include "windows/hull_screen_window.h"

class QLabel;
class QLineEdit;

namespace tolmar::gui {

class Bouchain3Window : public HullScreenWindow {
  Q_OBJECT
 public:
  static constexpr int kWidth = 9600;  // twips
  static constexpr int kHeight = 6800;

  explicit Bouchain3Window(Session& s);

  Bouchain3& model() { return m_; }
  void syncFromModel() override;
  QLineEdit* text0() const { return text0_; }
  QLineEdit* text1(int i) const { return i == 0 ? text1_ : nullptr; }
  QLineEdit* text2(int i) const { return text2_.at(static_cast<std::size_t>(i)); }
  QLineEdit* text4() const { return text4_; }
  QLabel* progressLine() const { return label3_; }
  QPushButton* validerButton() override { return valider_; }

 public slots:
  void valider() override;

 protected:
  void activate() override;

 private:
  void showProgress();  // Label3 with its own text colour
  Bouchain3 m_;
  std::array<QLabel*, 2> label0_{};
  QLineEdit* text0_;
  QLabel* label1_;
  QLineEdit* text1_;
  std::array<QLabel*, 4> label2_{};
  std::array<QLineEdit*, 4> text2_{};
  QLabel* label4_;
  QLineEdit* text4_;
  QLabel* label3_;
  QPushButton* valider_;
};

}  // namespace tolmar::gui

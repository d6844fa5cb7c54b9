// The bottom and first chine screen bouchain1: fifteen numbers in two
// columns (plan X-Y, profile X-Z) and Valider, bound to tolmar::Bouchain1.
#pragma once

#include <QPushButton>
#include <array>

#include "screens/bouchain1.h"
#include "windows/hull_screen_window.h"

class QLabel;
class QLineEdit;

namespace tolmar::gui {

class Bouchain1Window : public HullScreenWindow {
  Q_OBJECT
 public:
  explicit Bouchain1Window(Session& s);

  Bouchain1& model() { return m_; }
  void syncFromModel() override;
  QLineEdit* text1(int i) const { return text1_.at(static_cast<std::size_t>(i)); }
  QLineEdit* text2(int i) const { return text2_.at(static_cast<std::size_t>(i)); }
  QPushButton* validerButton() override { return valider_; }

 public slots:
  void valider() override;

 protected:
  void activate() override;

 private:
  Bouchain1 m_;
  std::array<QLabel*, 4> titre1_{};
  std::array<QLabel*, 7> label1_{};
  std::array<QLineEdit*, 7> text1_{};
  std::array<QLabel*, 8> label2_{};
  std::array<QLineEdit*, 8> text2_{};
  QPushButton* valider_;
};

}  // namespace tolmar::gui

#include "screens/menu2.h"

#include "hull/default_hull.h"

namespace tolmar::screens {

namespace {

using board::Do;
using board::onScreen;
using board::ScreenId;

constexpr double kWidth = 5000;
constexpr double kHeight = 6500;

// Centred across the window, below `above` by `gap`.
board::Rect below(const board::Rect& above, double gap, double width, double height) {
  return {(kWidth - width) / 2, above.bottom() + gap, width, height};
}

}  // namespace

Menu2::Menu2() {
  Langue1(0).caption = "Français";
  Langue1(1).caption = "English";
}

int Menu2::selected() const {
  for (int i = 0; i <= 1; ++i)
    if (Langue1(i).value) return i;
  return -1;
}

Menu2Layout menu2Layout(double screenWidth, double screenHeight) {
  Menu2Layout l;
  l.window = {(screenWidth - kWidth) / 2, (screenHeight - kHeight) / 2, kWidth, kHeight};
  const double labelWidth = 0.9 * kWidth;
  l.label1 = {(kWidth - labelWidth) / 2, 100, labelWidth, 400};
  l.label2 = below(l.label1, 200, labelWidth, 950);
  l.label3 = below(l.label2, 200, labelWidth, 1500);
  l.create = below(l.label3, 200, kWidth / 2, kMenu2ButtonHeight);
  l.terminate = below(l.create, 100, kWidth / 2, kMenu2ButtonHeight);
  l.langue1[0] = {l.create.left, l.terminate.bottom() + 200, 1500, kMenu2OptionHeight};
  l.langue1[1] = {l.create.left, l.langue1[0].bottom() + 100, 1500, kMenu2OptionHeight};
  return l;
}

board::Actions loadMenu2(Menu2& m, HullStore& h, double screenWidth, double screenHeight) {
  m.layout = menu2Layout(screenWidth, screenHeight);
  m.title.caption = std::string("  Version : ") + kMenu2VersionDate;
  langueClick(m, h, 1);
  initDefaultHull(h);
  return {onScreen(Do::Show, ScreenId::menu2), onScreen(Do::Load, ScreenId::dessin),
          onScreen(Do::Load, ScreenId::bouchain1), onScreen(Do::Load, ScreenId::bouchain2)};
}

void langueClick(Menu2& m, HullStore& h, int i) {
  if (i != 0 && i != 1) return;
  m.Langue1(i).value = true;
  m.Langue1(1 - i).value = false;
  h.langue = static_cast<i16>(i);
  m.Label1.caption = "Tolmar2008";
  m.label3FontSize = 7.8;
  m.title.caption = std::string(" Tolmar2008") + "  - version " + kMenu2VersionDate;
  if (i == 0) {
    m.Create.caption = "Créer une tolmar";
    m.Terminate.caption = "Quitter";
    m.Label3.caption =
        "L'auteur ne prend aucune responsabilité quand aux conséquences résultant de l'utilisation "
        "de ce logiciel.";
  } else {
    m.Create.caption = "Create a hull";
    m.Terminate.caption = "Quit";
    m.Label3.caption =
        "The author takes no responsibility for the consequences resulting from the use of this "
        "software.";
  }
}

board::Actions createClick(board::BoardState& b, const HullStore& h) {
  board::boardOnCreate(b, h);
  return {onScreen(Do::Hide, ScreenId::menu2), onScreen(Do::Show, ScreenId::dessin),
          onScreen(Do::ShowModal, ScreenId::bouchain1)};
}

board::Actions terminateClick() {
  return {onScreen(Do::Hide, ScreenId::menu2), onScreen(Do::EndProgram, ScreenId::menu2)};
}

board::Actions closeMenu2() { return {onScreen(Do::EndProgram, ScreenId::menu2)}; }

}  // namespace tolmar::screens

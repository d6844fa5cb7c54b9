// The start screen: program start, language switch, Create and Terminate.
#include "screens/menu2.h"

#include <gtest/gtest.h>

#include "board/board_model.h"
#include "hull/default_hull.h"

namespace tolmar::screens {
namespace {

using board::Actions;
using board::Do;
using board::onScreen;
using board::ScreenId;

TEST(Menu2, StartComesUpInEnglishWithTheDefaultHull) {
  Menu2 m;
  HullStore h;
  const Actions a = loadMenu2(m, h, 28800, 16200);
  EXPECT_EQ(m.selected(), 1);
  EXPECT_EQ(h.langue, 1);
  EXPECT_EQ(h.hullName, "TOLMAR2005");
  EXPECT_EQ(h.nChines, 5);
  EXPECT_EQ(m.title.caption, " Tolmar2008  - version  2 Dec 2007 ");
  EXPECT_EQ(m.Label1.caption, "Tolmar2008");
  EXPECT_EQ(m.Label2.caption, "");
  EXPECT_EQ(m.label3FontSize, 7.8);
  EXPECT_EQ(a, (Actions{onScreen(Do::Show, ScreenId::menu2), onScreen(Do::Load, ScreenId::dessin),
                        onScreen(Do::Load, ScreenId::bouchain1),
                        onScreen(Do::Load, ScreenId::bouchain2)}));
}

TEST(Menu2, LayoutFromTheTopOfACentredWindow) {
  const Menu2Layout l = menu2Layout(28800, 16200);
  using board::Rect;
  EXPECT_EQ(l.window, (Rect{11900, 4850, 5000, 6500}));
  EXPECT_EQ(l.label1, (Rect{250, 100, 4500, 400}));
  EXPECT_EQ(l.label2, (Rect{250, 700, 4500, 950}));
  EXPECT_EQ(l.label3, (Rect{250, 1850, 4500, 1500}));
  EXPECT_EQ(l.create, (Rect{1250, 3550, 2500, kMenu2ButtonHeight}));
  EXPECT_EQ(l.terminate, (Rect{1250, 3550 + kMenu2ButtonHeight + 100, 2500, kMenu2ButtonHeight}));
  EXPECT_EQ(l.langue1[0].left, 1250);
  EXPECT_EQ(l.langue1[0].width, 1500);
  EXPECT_EQ(l.langue1[0].top, l.terminate.bottom() + 200);
  EXPECT_EQ(l.langue1[1].top, l.langue1[0].bottom() + 100);
}

struct LangCase {
  int langue;
  const char* create;
  const char* terminate;
  const char* label3;
};

TEST(Menu2, CaptionsInBothLanguages) {
  const LangCase cases[] = {
      {0, "Créer une tolmar", "Quitter",
       "L'auteur ne prend aucune responsabilité quand aux conséquences résultant de l'utilisation "
       "de ce "
       "logiciel."},
      {1, "Create a hull", "Quit",
       "The author takes no responsibility for the consequences resulting from the use of this "
       "software."},
  };
  for (const auto& c : cases) {
    Menu2 m;
    HullStore h;
    langueClick(m, h, c.langue);
    EXPECT_EQ(m.Create.caption, c.create);
    EXPECT_EQ(m.Terminate.caption, c.terminate);
    EXPECT_EQ(m.Label3.caption, c.label3);
    EXPECT_EQ(m.title.caption, " Tolmar2008  - version  2 Dec 2007 ");
    EXPECT_EQ(m.Langue1(0).caption, "Français");
    EXPECT_EQ(m.Langue1(1).caption, "English");
  }
}

TEST(Menu2, LanguageSwitchTouchesNothingButLangue) {
  Menu2 m;
  HullStore h;
  loadMenu2(m, h, 28800, 16200);
  h.lineX(2, 10) = 1.5;
  h.stationIndex = 12;
  const HullStore before = h;
  langueClick(m, h, 0);
  EXPECT_EQ(h.langue, 0);
  EXPECT_TRUE(m.Langue1(0).value);
  EXPECT_FALSE(m.Langue1(1).value);
  HullStore back = h;
  back.langue = 1;
  EXPECT_TRUE(back == before);
  langueClick(m, h, 1);
  EXPECT_TRUE(h == before);
  langueClick(m, h, 7);
  EXPECT_TRUE(h == before);
  EXPECT_EQ(m.selected(), 1);
}

TEST(Menu2, CreateTwiceKeepsTheHullAndTheFixedTitle) {
  Menu2 m;
  HullStore h;
  loadMenu2(m, h, 28800, 16200);
  h.hullName = "DORIS";
  h.xFwd(0) = 7.5;
  const HullStore kept = h;
  board::BoardState b = board::loadBoard(h);
  const Actions want{onScreen(Do::Hide, ScreenId::menu2), onScreen(Do::Show, ScreenId::dessin),
                     onScreen(Do::ShowModal, ScreenId::bouchain1)};
  EXPECT_EQ(createClick(b, h), want);
  EXPECT_EQ(b.title, "Tolmar2008  -  New Hull : DORIS");
  board::activateBoard(b, h.langue);
  langueClick(m, h, 0);
  EXPECT_EQ(createClick(b, h), want);
  EXPECT_EQ(b.title, "Tolmar2008  -  Nouvelle tolmar : DORIS");
  HullStore now = h;
  now.langue = kept.langue;
  EXPECT_TRUE(now == kept);
}

TEST(Menu2, TerminateAndCloseEndWithoutSaving) {
  EXPECT_EQ(terminateClick(), (Actions{onScreen(Do::Hide, ScreenId::menu2),
                                       onScreen(Do::EndProgram, ScreenId::menu2)}));
  EXPECT_EQ(closeMenu2(), (Actions{onScreen(Do::EndProgram, ScreenId::menu2)}));
}

}  // namespace
}  // namespace tolmar::screens

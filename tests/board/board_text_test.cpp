// The board's captions, menu keys, titles, the hull name rule of Text2 and
// the station field of drawStation.
#include <gtest/gtest.h>

#include <string>

#include "board/board_model.h"
#include "hull/default_hull.h"

namespace tolmar::board {
namespace {

using C = BoardControl;

struct CaptionCase {
  C control;
  const char* fr;
  const char* en;
};

TEST(BoardCaptions, EveryControlInBothLanguages) {
  const CaptionCase cases[] = {
      {C::Command1_0, "Fond", "Bottom"},
      {C::Command1_1, "Bordés", "Planks"},
      {C::Command1_2, "Auto Bordés", "Auto Planking"},
      {C::Label2, "Lignes de ", "Lines of "},
      {C::Label1, "Station X=", "Station X="},
      {C::DessCouple, "Dessiner couple", "Draw station"},
      {C::Developer, "Développer", "Develop"},
      {C::dessine, "Redessiner", "Redraw lines"},
      {C::Cancel, "Terminer", "Quit"},
      {C::fmenu, "Fichier", "File"},
      {C::fmenu_New, "Nouveau", "New"},
      {C::fmenu_Open, "Ouvrir", "Open"},
      {C::fmenu_Save, "Sauvegarde", "Save"},
      {C::fmenu_S_Data, "Données", "Data"},
      {C::fmenu_S_XYZ, "Lignes  XYZ", "Lines  XYZ"},
      {C::fmenu_S_DXF2D, "Lignes 2D DXF", "Lines 2D DXF"},
      {C::fmenu_S_DXF3D, "Lignes 3D DXF", "Lines 3D DXF"},
      {C::fmenu_SD_XYZ, "Développés XYZ", "Development XYZ"},
      {C::fmenu_SD_DXF, "Développés DXF", "Development DXF"},
      {C::fmenu_Station_DXF, "Station DXF", "Station DXF"},
      {C::fmenu_S_VRML, "VRML", "VRML"},
      {C::fmenu_Print, "Imprimer", "Print"},
      {C::fmenu_P_Data, "Données", "Data"},
      {C::fmenu_P_Dessin, "Dessin", "Drawing"},
      {C::fmenu_P_Develop, "Développés", "Development"},
      {C::fmenu_P_Station, "Station", "Station"},
      {C::fmenu_P_Tout, "Tous offsets", "All offsets"},
      {C::fmenu_P_Patterns, "Gabarits grandeur nature", "Full-size patterns"},
      {C::fmenu_P_Panels, "Cotes des panneaux", "Panel offsets"},
      {C::fmenu_PSetup, "Choix imprimante", "Printer setup"},
      {C::fmenu_Quit, "Quitter", "Quit"},
      {C::Hmenu, "&Hydro", "&Hydro"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(caption(c.control, 0), c.fr) << controlName(c.control);
    EXPECT_EQ(caption(c.control, 1), c.en) << controlName(c.control);
  }
  EXPECT_EQ(boardTitle(0), "  Planche à dessin  ");
  EXPECT_EQ(boardTitle(1), "  Drawing board  ");
  BoardState b;
  b.title = "Tolmar2008 - File Open : X";
  activateBoard(b, 0);
  EXPECT_EQ(b.title, "  Planche à dessin  ");
}

TEST(BoardMenu, OrderLevelsAndShortcutKeys) {
  struct Want {
    C control;
    int level;
    const char* key;
  };
  const Want want[] = {
      {C::fmenu, 0, ""},
      {C::fmenu_New, 1, "Ctrl+N"},
      {C::fmenu_Open, 1, "Ctrl+O"},
      {C::separ0, 1, ""},
      {C::fmenu_Save, 1, ""},
      {C::fmenu_S_Data, 2, "Ctrl+S"},
      {C::fmenu_S_XYZ, 2, ""},
      {C::fmenu_S_DXF2D, 2, ""},
      {C::fmenu_S_DXF3D, 2, ""},
      {C::fmenu_SD_XYZ, 2, ""},
      {C::fmenu_SD_DXF, 2, ""},
      {C::fmenu_Station_DXF, 2, ""},
      {C::fmenu_S_VRML, 2, ""},
      {C::separ1, 1, ""},
      {C::fmenu_Print, 1, ""},
      {C::fmenu_P_Data, 2, ""},
      {C::fmenu_P_Dessin, 2, "Ctrl+D"},
      {C::fmenu_P_Develop, 2, ""},
      {C::fmenu_P_Station, 2, ""},
      {C::fmenu_P_Tout, 2, "Ctrl+A"},
      {C::fmenu_P_Patterns, 2, ""},
      {C::fmenu_P_Panels, 2, ""},
      {C::fmenu_PSetup, 1, ""},
      {C::separ2, 1, ""},
      {C::fmenu_Quit, 1, "Ctrl+Q"},
      {C::Hmenu, 0, ""},
  };
  const auto menu = boardMenu();
  ASSERT_EQ(menu.size(), std::size(want));
  for (std::size_t i = 0; i < menu.size(); ++i) {
    EXPECT_EQ(menu[i].control, want[i].control) << i;
    EXPECT_EQ(menu[i].level, want[i].level) << controlName(want[i].control);
    EXPECT_EQ(menu[i].key, want[i].key) << controlName(want[i].control);
    EXPECT_EQ(menu[i].separator, caption(want[i].control, 1).empty())
        << controlName(want[i].control);
  }
  EXPECT_TRUE(menu.back().actsOnClick);
}

TEST(BoardTitles, FixedTextsWhateverTheHull) {
  HullStore h;
  h.hullName = "DORIS";
  h.langue = 1;
  EXPECT_EQ(titleNew(h), "Tolmar2008  -  New Hull : DORIS");
  EXPECT_EQ(titleFileOpen(h), "Tolmar2008 - File Open : DORIS");
  h.langue = 0;
  EXPECT_EQ(titleNew(h), "Tolmar2008  -  Nouvelle tolmar : DORIS");
  EXPECT_EQ(titleFileOpen(h), "Tolmar2008 - Fichier Ouvert : DORIS");
  EXPECT_EQ(titleNewHull(0), "Tolmar2008 -  Nouvelle tolmar");
  EXPECT_EQ(titleNewHull(1), "Tolmar2008 -  New hull");
  EXPECT_EQ(titleDataSaved(0), "Tolmar2008 -  Données sauvegardées ");
  EXPECT_EQ(titleDataSaved(1), "Tolmar2008 -  Data saved  ");
  BoardState b;
  EXPECT_EQ(saveDone(b, h), (Actions{onControl(Do::Focus, C::Cancel)}));
  EXPECT_EQ(b.title, titleDataSaved(0));
  EXPECT_EQ(b.text2, "DORIS");
}

struct NameCase {
  const char* typed;
  const char* field;
  const char* hullName;
  std::int32_t background;
  bool beep;
};

TEST(BoardHullName, LengthRuleOfText2) {
  const NameCase cases[] = {
      {"ab", "TOLMAR", "OLD", kNameRefused, true},
      {"", "TOLMAR", "OLD", kNameRefused, true},
      {"abc", "ABC", "ABC", kScreenBackground, false},
      {"abcdefghijklmno", "ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNO", kScreenBackground, false},
      {"abcdefghijklmnop", "ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNO", kNameCut, false},
      {"Doris 2", "DORIS 2", "DORIS 2", kScreenBackground, false},
      {"éte", "ÉTE", "ÉTE", kScreenBackground, false},  // 3 characters in 4 bytes
      {"àé", "TOLMAR", "OLD", kNameRefused, true},      // 2 characters in 4 bytes
      {"ééééééééééééééé", "ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ", "ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ", kScreenBackground, false},
      {"éééééééééééééééé", "ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ", "ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ", kNameCut, false},
  };
  for (const auto& c : cases) {
    HullStore h;
    h.hullName = "OLD";
    BoardState b;
    b.text2Background = kNameCut;
    b.text2 = c.typed;
    const Actions a = text2Enter(b, h);
    EXPECT_EQ(b.text2, c.field) << c.typed;
    EXPECT_EQ(h.hullName, c.hullName) << c.typed;
    EXPECT_EQ(b.text2Background, c.background) << c.typed;
    EXPECT_EQ(a.size(), c.beep ? 1u : 0u) << c.typed;
  }
}

TEST(BoardLoad, FieldsShowTheHullNameAndTheMaximumBeamPosition) {
  HullStore h;
  initDefaultHull(h);
  const BoardState b = loadBoard(h);
  EXPECT_EQ(b.text2, "TOLMAR2005");
  EXPECT_EQ(b.text1, " 3");
  h.xMax(1) = 2.85;
  EXPECT_EQ(loadBoard(h).text1, " 2.85");
}

struct StationCase {
  const char* typed;
  int index;
  const char* shown;
};

// Keel stations of a 6 m hull: station p at (p - 1) * 6 / 80 m.
TEST(BoardStation, TypedXFallsOnAStationBetween1And81) {
  HullStore h;
  for (int p = 1; p <= 81; ++p) {
    h.lineX(0, p) = (p - 1) * 6.0 / 80.0;
    h.lineX(1, p) = h.lineX(0, p);
  }
  const StationCase cases[] = {
      {"-5", 1, " 0"},    {"0", 1, " 0"},       {"abc", 1, " 0"}, {"3", 41, " 3"},
      {"3,0", 41, " 3"},  {"2.99", 41, " 3"},   {"6", 81, " 6"},  {"1e300", 81, " 6"},
      {"5.99", 81, " 6"}, {"0.04", 2, " .075"},
  };
  for (const auto& c : cases) {
    BoardState b;
    b.text1 = c.typed;
    drawStationState(b, h);
    EXPECT_EQ(h.stationIndex, c.index) << c.typed;
    EXPECT_EQ(b.text1, c.shown) << c.typed;
  }
}

TEST(BoardStation, EmptyLinesGiveAnEndStationNotACrash) {
  HullStore h;
  BoardState b;
  b.text1 = "2";
  drawStationState(b, h);
  EXPECT_EQ(h.stationIndex, 81);
  EXPECT_DOUBLE_EQ(h.stationAtX, 2.0);
  b.text1 = "-2";
  drawStationState(b, h);
  EXPECT_EQ(h.stationIndex, 1);
}

TEST(BoardStation, FirstChineStartingAftOfZeroStaysWithinTheStations) {
  HullStore h;
  for (int p = 1; p <= 81; ++p) {
    h.lineX(0, p) = (p - 1) * 6.0 / 80.0;
    h.lineX(1, p) = std::max(h.lineX(0, p), 0.5);
  }
  BoardState b;
  b.text1 = "5.99";
  drawStationState(b, h);
  EXPECT_EQ(h.stationIndex, 81);
}

TEST(BoardNewHull, StartsOverWithTolmarAndOpensTheBottomScreen) {
  HullStore h;
  initDefaultHull(h);
  h.hullName = "DORIS";
  h.lineX(3, 40) = 2;
  h.xFwd(0) = 9;
  h.langue = 1;
  BoardState b = loadBoard(h);
  b.stepIndex = 2;
  const Actions a = press(b, h, C::fmenu_New);
  EXPECT_EQ(h.hullName, "Tolmar");
  EXPECT_EQ(b.text2, "Tolmar");
  EXPECT_EQ(b.title, "Tolmar2008 -  New hull");
  EXPECT_EQ(h.lineX(3, 40), 0);
  EXPECT_EQ(h.xFwd(0), 6);
  EXPECT_EQ(h.langue, 1);
  EXPECT_EQ(b.stepIndex, 0);
  EXPECT_EQ(a, (Actions{onScreen(Do::ClearPicture, ScreenId::dessin),
                        onScreen(Do::ShowModal, ScreenId::bouchain1),
                        onControl(Do::AfterModal, C::Command1_0)}));
}

}  // namespace
}  // namespace tolmar::board

#include "board/board_model.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "hull/default_hull.h"
#include "text/data_line.h"
#include "text/number_reader.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tolmar::board {

namespace {

using C = BoardControl;
constexpr std::string_view kProduct = "Tolmar2008";

void set(BoardState& b, std::initializer_list<C> cs, bool on) {
  for (C c : cs) b.enable(c, on);
}

// The seven entries that every new hull screen closes until the next redraw.
void disableExportsAndPrints(BoardState& b) {
  set(b,
      {C::fmenu_P_Tout, C::fmenu_P_Develop, C::fmenu_S_XYZ, C::fmenu_S_DXF2D, C::fmenu_S_DXF3D,
       C::fmenu_Station_DXF, C::fmenu_S_VRML},
      false);
}

ScreenId hullScreen(int i) {
  return i == 1 ? ScreenId::bouchain2 : i == 2 ? ScreenId::bouchain3 : ScreenId::bouchain1;
}

Actions endOfHullScreen(ScreenId s) {
  return {onScreen(Do::Hide, s), onControl(Do::Focus, C::dessine),
          onScreen(Do::Refresh, ScreenId::dessin), onScreen(Do::Show, ScreenId::dessin)};
}

// Upper case of ASCII and of the Latin-1 letters à..þ (UTF-8 C3 A0..C3 BE,
// but for the sign ÷), the letters that a single-byte hull name can hold.
std::string upper(std::string s) {
  for (std::size_t i = 0; i < s.size(); ++i) {
    const auto ch = static_cast<unsigned char>(s[i]);
    if (ch >= 'a' && ch <= 'z') {
      s[i] = static_cast<char>(ch - 32);
    } else if (ch == 0xC3 && i + 1 < s.size()) {
      const auto next = static_cast<unsigned char>(s[i + 1]);
      if (next >= 0xA0 && next <= 0xBE && next != 0xB7) s[i + 1] = static_cast<char>(next - 0x20);
      ++i;
    }
  }
  return s;
}

}  // namespace

std::string titleNew(const HullStore& h) {
  return std::string(kProduct) + (h.langue == 0 ? "  -  Nouvelle tolmar : " : "  -  New Hull : ") +
         h.hullName;
}

std::string titleNewHull(int langue) {
  return std::string(kProduct) + (langue == 0 ? " -  Nouvelle tolmar" : " -  New hull");
}

std::string titleFileOpen(const HullStore& h) {
  return std::string(kProduct) + (h.langue == 1 ? " - File Open : " : " - Fichier Ouvert : ") +
         h.hullName;
}

std::string titleDataSaved(int langue) {
  return std::string(kProduct) + (langue == 0 ? " -  Données sauvegardées " : " -  Data saved  ");
}

BoardState loadBoard(const HullStore& h) {
  BoardState b;
  b.enabled.fill(true);
  b.text2 = h.hullName;
  b.text1 = hullNumberText(h.xMax(1));
  set(b, {C::DessCouple, C::Command1_1, C::Developer, C::dessine, C::Hmenu}, false);
  b.enable(C::fmenu_PSetup);
  return b;
}

void activateBoard(BoardState& b, int langue) { b.title = boardTitle(langue); }

void boardOnCreate(BoardState& b, const HullStore& h) {
  b.title = titleNew(h);
  b.enable(C::Command1_0);
  set(b,
      {C::Command1_1, C::Command1_2, C::fmenu_P_Tout, C::fmenu_P_Develop, C::fmenu_S_XYZ,
       C::fmenu_S_DXF2D, C::fmenu_S_DXF3D, C::fmenu_SD_XYZ, C::fmenu_SD_DXF, C::fmenu_S_VRML,
       C::fmenu_Station_DXF},
      false);
}

Actions fmenuNew(BoardState& b, HullStore& h) {
  newHullStore(h);
  b.text2 = h.hullName;
  b.title = titleNewHull(h.langue);
  disableExportsAndPrints(b);
  b.enable(C::Command1_0);
  set(b, {C::Command1_1, C::dessine}, false);
  Actions out{onScreen(Do::ClearPicture, ScreenId::dessin)};
  Actions next = command1Press(b, 0);
  out.insert(out.end(), next.begin(), next.end());
  return out;
}

Actions command1Press(BoardState& b, int i) {
  i = std::clamp(i, 0, 2);
  disableExportsAndPrints(b);
  b.stepIndex = static_cast<i16>(i);
  b.enable(C::dessine);
  return {onScreen(Do::ShowModal, hullScreen(i)), onControl(Do::AfterModal, command1(i))};
}

void afterModal(BoardState& b, BoardControl c) {
  if (c == C::Command1_0) {
    set(b, {C::DessCouple, C::Developer}, false);
  } else if (c == C::Command1_1 || c == C::Command1_2) {
    set(b, {C::Hmenu, C::fmenu_S_VRML}, true);
  }
}

Actions endOfBouchain1(BoardState& b, const HullStore& h) {
  set(b, {C::Command1_0, C::Command1_2, C::dessine}, true);
  b.enable(C::Command1_1, h.nChines <= 6);
  return endOfHullScreen(ScreenId::bouchain1);
}

Actions endOfBouchain2(BoardState& b) {
  set(b, {C::Command1_0, C::Command1_1, C::dessine}, true);
  Actions out = endOfHullScreen(ScreenId::bouchain2);
  out.push_back(onControl(Do::Focus, C::Command1_1));
  return out;
}

Actions endOfBouchain3(BoardState& b, const HullStore& h) {
  set(b, {C::Command1_0, C::dessine}, true);
  b.enable(C::Command1_1, h.nChines <= 6);
  Actions out = endOfHullScreen(ScreenId::bouchain3);
  out.push_back(onControl(Do::Focus, C::Command1_2));
  return out;
}

void checkHull(BoardState& b, const HullStore& h) { b.folds = checkFolds(h); }

Action afterRedraw(BoardState& b, const HullStore& h) {
  b.folds = b.stepIndex >= 1 ? checkFolds(h) : checkFoldsUpTo(h, 1);
  if (b.stepIndex >= 1) {
    set(b,
        {C::Developer, C::DessCouple, C::fmenu_P_Tout, C::fmenu_P_Develop, C::fmenu_S_XYZ,
         C::fmenu_S_DXF2D, C::fmenu_S_DXF3D, C::fmenu_SD_XYZ, C::fmenu_SD_DXF, C::fmenu_S_VRML},
        true);
    return onControl(Do::Focus, C::Developer);
  }
  set(b,
      {C::DessCouple, C::fmenu_S_XYZ, C::fmenu_S_DXF2D, C::fmenu_S_DXF3D, C::fmenu_SD_XYZ,
       C::fmenu_SD_DXF, C::fmenu_Station_DXF, C::fmenu_S_VRML},
      false);
  set(b, {C::Developer, C::fmenu_P_Tout, C::fmenu_P_Develop}, true);
  const bool fewLines = h.nChines <= 6;
  b.enable(C::Command1_1, fewLines);
  return onControl(Do::Focus, fewLines ? C::Command1_1 : C::Command1_2);
}

void drawingStarted(BoardState& b) { b.enable(C::dessine, false); }
void drawingEnded(BoardState& b) { b.enable(C::dessine, true); }

void drawStationState(BoardState& b, HullStore& h) {
  cleanNumber(b.text1);
  h.stationAtX = readNumber(b.text1);
  const double x = h.stationAtX;
  const double x1 = h.lineX(1, 1);
  const double x2 = h.lineX(1, 81);
  int s = 81;
  if (x <= x1) {
    s = 1;
  } else if (x < x2) {
    // x1 > 0 would let the formula pass 81; a station outside 1..81 cannot be chosen.
    const double k = std::floor(x * 80.0 / (x2 - x1) + 0.5) + 1.0;
    s = std::isfinite(k) ? static_cast<int>(std::clamp(k, 1.0, 81.0)) : 81;
  }
  h.stationIndex = static_cast<i16>(s);
  b.text1 = hullNumberText(h.lineX(0, s));
  b.enable(C::fmenu_Station_DXF);
}

Actions text2Enter(BoardState& b, HullStore& h) {
  const std::size_t n = utf8Length(b.text2);
  if (n < 3) {
    b.text2 = "TOLMAR";
    b.text2Background = kNameRefused;
    return {onScreen(Do::Beep, ScreenId::dessin)};
  }
  if (n <= 15) {
    b.text2 = upper(b.text2);
    b.text2Background = kScreenBackground;
  } else {
    b.text2 = upper(std::string(utf8Prefix(b.text2, 15)));
    b.text2Background = kNameCut;
  }
  h.hullName = b.text2;
  return {};
}

void openNamed(BoardState& b, const HullStore& h) {
  b.text2 = h.hullName;
  b.title = titleFileOpen(h);
}

Actions openBeforeRebuild(BoardState& b) {
  b.enable(C::Command1_0);
  set(b, {C::Command1_1, C::Command1_2, C::DessCouple, C::Developer}, false);
  b.stepIndex = 0;
  return {onScreen(Do::ClearPicture, ScreenId::dessin)};
}

Actions openAfterRebuild(BoardState& b) {
  set(b,
      {C::dessine, C::fmenu_P_Tout, C::fmenu_P_Develop, C::fmenu_S_XYZ, C::fmenu_S_DXF2D,
       C::fmenu_S_DXF3D},
      true);
  b.enable(C::fmenu_Station_DXF, false);
  return command1Press(b, 0);
}

Actions saveDone(BoardState& b, const HullStore& h) {
  b.title = titleDataSaved(h.langue);
  b.text2 = h.hullName;
  return {onControl(Do::Focus, C::Cancel)};
}

Actions closeBoard() {
  return {onScreen(Do::Unload, ScreenId::dessin), onScreen(Do::Show, ScreenId::menu2)};
}

Actions press(BoardState& b, HullStore& h, BoardControl c) {
  if (!b.isEnabled(c)) return {};
  switch (c) {
    case C::Command1_0:
      return command1Press(b, 0);
    case C::Command1_1:
      return command1Press(b, 1);
    case C::Command1_2:
      return command1Press(b, 2);
    case C::Cancel:
      return {onScreen(Do::SaveHullFile, ScreenId::dessin), onScreen(Do::Hide, ScreenId::bouchain1),
              onScreen(Do::Hide, ScreenId::bouchain2),      onScreen(Do::Hide, ScreenId::bouchain3),
              onScreen(Do::Hide, ScreenId::dessin),         onScreen(Do::Show, ScreenId::menu2)};
    case C::fmenu_New:
      return fmenuNew(b, h);
    case C::fmenu_Open:
      return {onScreen(Do::OpenHullFile, ScreenId::dessin)};
    case C::fmenu_S_Data:
      return {onScreen(Do::SaveHullFile, ScreenId::dessin)};
    case C::fmenu_SD_DXF:
      return {onScreen(Do::ShowModal, ScreenId::overlap1), onControl(Do::Run, c)};
    case C::fmenu_Station_DXF:
    case C::fmenu_P_Station:
      return {onControl(Do::Run, C::DessCouple), onControl(Do::Run, c)};
    case C::fmenu_Quit:
      return {onScreen(Do::Show, ScreenId::menu2)};
    case C::Hmenu:
      return {onScreen(Do::Show, ScreenId::hydro1), onScreen(Do::Show, ScreenId::mass1)};
    case C::Plan1:
    case C::Label1:
    case C::Label2:
    case C::Text1:
    case C::Text2:
    case C::fmenu:
    case C::fmenu_Save:
    case C::fmenu_Print:
    case C::separ0:
    case C::separ1:
    case C::separ2:
      return {};
    default:
      return {onControl(Do::Run, c)};
  }
}

std::string_view screenName(ScreenId s) {
  switch (s) {
    case ScreenId::menu2:
      return "menu2";
    case ScreenId::dessin:
      return "dessin";
    case ScreenId::bouchain1:
      return "bouchain1";
    case ScreenId::bouchain2:
      return "bouchain2";
    case ScreenId::bouchain3:
      return "bouchain3";
    case ScreenId::overlap1:
      return "overlap1";
    case ScreenId::hydro1:
      return "hydro1";
    case ScreenId::mass1:
      return "mass1";
  }
  return "";
}

}  // namespace tolmar::board

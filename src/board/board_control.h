// The controls and menu entries of the drawing board `dessin`, with their
// captions in both languages and the menu's shortcut keys.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace tolmar::board {

// Screen controls first, then the menu in its order of display.
enum class BoardControl : int {
  Plan1,
  Command1_0,
  Command1_1,
  Command1_2,
  Label2,
  Text2,
  Label1,
  Text1,
  DessCouple,
  Developer,
  dessine,
  Cancel,
  fmenu,
  fmenu_New,
  fmenu_Open,
  separ0,
  fmenu_Save,
  fmenu_S_Data,
  fmenu_S_XYZ,
  fmenu_S_DXF2D,
  fmenu_S_DXF3D,
  fmenu_SD_XYZ,
  fmenu_SD_DXF,
  fmenu_Station_DXF,
  fmenu_S_VRML,
  separ1,
  fmenu_Print,
  fmenu_P_Data,
  fmenu_P_Dessin,
  fmenu_P_Develop,
  fmenu_P_Station,
  fmenu_P_Tout,
  fmenu_P_Patterns,  // full-size patterns on tiles, enabled with fmenu_P_Develop
  fmenu_P_Panels,    // panel offsets, enabled with fmenu_P_Develop
  fmenu_PSetup,
  separ2,
  fmenu_Quit,
  Hmenu,
};

inline constexpr std::size_t kBoardControlCount = static_cast<std::size_t>(BoardControl::Hmenu) + 1;
inline constexpr BoardControl kFirstMenuEntry = BoardControl::fmenu;

constexpr std::size_t index(BoardControl c) { return static_cast<std::size_t>(c); }

// Command1(i), i = 0..2; any other i gives Command1(0).
constexpr BoardControl command1(int i) {
  return i == 1   ? BoardControl::Command1_1
         : i == 2 ? BoardControl::Command1_2
                  : BoardControl::Command1_0;
}

// The name as the program writes it: "Command1(1)", "fmenu_S_DXF2D".
std::string_view controlName(BoardControl c);

// The caption in langue 0 (French) or 1 (English); empty for the picture, the
// text fields and the separators.  A "&" marks the keyboard mnemonic.
std::string_view caption(BoardControl c, int langue);

// The title bar of the board when it becomes active.
std::string_view boardTitle(int langue);

struct MenuEntry {
  BoardControl control;
  int level;  // 0 top, 1 entry of a top menu, 2 entry of a sub-menu
  bool separator;
  std::string_view key;  // "Ctrl+N", empty for none
  bool actsOnClick;      // a top entry that runs a command instead of opening
};

// The whole menu in its order of display.
std::span<const MenuEntry> boardMenu();

}  // namespace tolmar::board

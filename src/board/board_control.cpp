#include "board/board_control.h"

namespace tolmar::board {

namespace {

struct ControlText {
  std::string_view name;
  std::string_view fr;
  std::string_view en;
};

// In the order of BoardControl.
constexpr std::array<ControlText, kBoardControlCount> kTexts{{
    {"Plan1", "", ""},
    {"Command1(0)", "Fond", "Bottom"},
    {"Command1(1)", "Bordés", "Planks"},
    {"Command1(2)", "Auto Bordés", "Auto Planking"},
    {"Label2", "Lignes de ", "Lines of "},
    {"Text2", "", ""},
    {"Label1", "Station X=", "Station X="},
    {"Text1", "", ""},
    {"DessCouple", "Dessiner couple", "Draw station"},
    {"Developer", "Développer", "Develop"},
    {"dessine", "Redessiner", "Redraw lines"},
    {"Cancel", "Terminer", "Quit"},
    {"fmenu", "Fichier", "File"},
    {"fmenu_New", "Nouveau", "New"},
    {"fmenu_Open", "Ouvrir", "Open"},
    {"separ0", "", ""},
    {"fmenu_Save", "Sauvegarde", "Save"},
    {"fmenu_S_Data", "Données", "Data"},
    {"fmenu_S_XYZ", "Lignes  XYZ", "Lines  XYZ"},
    {"fmenu_S_DXF2D", "Lignes 2D DXF", "Lines 2D DXF"},
    {"fmenu_S_DXF3D", "Lignes 3D DXF", "Lines 3D DXF"},
    {"fmenu_SD_XYZ", "Développés XYZ", "Development XYZ"},
    {"fmenu_SD_DXF", "Développés DXF", "Development DXF"},
    {"fmenu_Station_DXF", "Station DXF", "Station DXF"},
    {"fmenu_S_VRML", "VRML", "VRML"},
    {"separ1", "", ""},
    {"fmenu_Print", "Imprimer", "Print"},
    {"fmenu_P_Data", "Données", "Data"},
    {"fmenu_P_Dessin", "Dessin", "Drawing"},
    {"fmenu_P_Develop", "Développés", "Development"},
    {"fmenu_P_Station", "Station", "Station"},
    {"fmenu_P_Tout", "Tous offsets", "All offsets"},
    {"fmenu_P_Patterns", "Gabarits grandeur nature", "Full-size patterns"},
    {"fmenu_P_Panels", "Cotes des panneaux", "Panel offsets"},
    {"fmenu_PSetup", "Choix imprimante", "Printer setup"},
    {"separ2", "", ""},
    {"fmenu_Quit", "Quitter", "Quit"},
    {"Hmenu", "&Hydro", "&Hydro"},
}};

using C = BoardControl;

constexpr std::array<MenuEntry, kBoardControlCount - index(kFirstMenuEntry)> kMenu{{
    {C::fmenu, 0, false, "", false},
    {C::fmenu_New, 1, false, "Ctrl+N", false},
    {C::fmenu_Open, 1, false, "Ctrl+O", false},
    {C::separ0, 1, true, "", false},
    {C::fmenu_Save, 1, false, "", false},
    {C::fmenu_S_Data, 2, false, "Ctrl+S", false},
    {C::fmenu_S_XYZ, 2, false, "", false},
    {C::fmenu_S_DXF2D, 2, false, "", false},
    {C::fmenu_S_DXF3D, 2, false, "", false},
    {C::fmenu_SD_XYZ, 2, false, "", false},
    {C::fmenu_SD_DXF, 2, false, "", false},
    {C::fmenu_Station_DXF, 2, false, "", false},
    {C::fmenu_S_VRML, 2, false, "", false},
    {C::separ1, 1, true, "", false},
    {C::fmenu_Print, 1, false, "", false},
    {C::fmenu_P_Data, 2, false, "", false},
    {C::fmenu_P_Dessin, 2, false, "Ctrl+D", false},
    {C::fmenu_P_Develop, 2, false, "", false},
    {C::fmenu_P_Station, 2, false, "", false},
    {C::fmenu_P_Tout, 2, false, "Ctrl+A", false},
    {C::fmenu_P_Patterns, 2, false, "", false},
    {C::fmenu_P_Panels, 2, false, "", false},
    {C::fmenu_PSetup, 1, false, "", false},
    {C::separ2, 1, true, "", false},
    {C::fmenu_Quit, 1, false, "Ctrl+Q", false},
    {C::Hmenu, 0, false, "", true},
}};

}  // namespace

std::string_view controlName(BoardControl c) { return kTexts[index(c)].name; }

std::string_view caption(BoardControl c, int langue) {
  const auto& t = kTexts[index(c)];
  return langue == 0 ? t.fr : t.en;
}

std::string_view boardTitle(int langue) {
  return langue == 0 ? "  Planche à dessin  " : "  Drawing board  ";
}

std::span<const MenuEntry> boardMenu() { return kMenu; }

}  // namespace tolmar::board

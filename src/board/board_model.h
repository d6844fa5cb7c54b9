// The drawing board `dessin` as logic: its own state (stepIndex, enabling,
// title, the two text fields) and its events, each returning what the
// window must do next.  The drawing itself and the hull arithmetic live
// elsewhere; the redraw's enabling is afterRedraw, called by whoever draws.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "board/board_action.h"
#include "board/board_control.h"
#include "hull/fold_check.h"
#include "hull/hull_store.h"

namespace tolmar::board {

// Background of Text2: the screen's own, or a warning colour.
inline constexpr std::int32_t kScreenBackground = -1;
inline constexpr std::int32_t kNameRefused = rgb(255, 127, 0);
inline constexpr std::int32_t kNameCut = rgb(255, 255, 0);

struct BoardState {
  i16 stepIndex = 0;  // 0 bottom, 1 planks, 2 automatic planks
  std::array<bool, kBoardControlCount> enabled{};
  std::string title;
  std::string text1;  // X of the station to draw
  std::string text2;  // the name of the hull
  std::int32_t text2Background = kScreenBackground;
  float rubberX0 = 0, rubberY0 = 0, rubberX1 = 0, rubberY1 = 0, rubberXp = 0, rubberYp = 0;
  // Where the hull folds, as found after the last redraw or opening; the
  // board shows its message as a warning line.
  FoldReport folds;

  // The print entries added beside the plates' sheets follow that entry.
  bool isEnabled(BoardControl c) const {
    const bool plates = c == BoardControl::fmenu_P_Patterns || c == BoardControl::fmenu_P_Panels;
    return enabled[index(plates ? BoardControl::fmenu_P_Develop : c)];
  }
  void enable(BoardControl c, bool on = true) { enabled[index(c)] = on; }
};

// Load of the screen: every control enabled but for the load row of the
// enabling, Text2 = hullName, Text1 = xMax(1) as a plain number.
BoardState loadBoard(const HullStore& h);

// The screen becomes active: the title bar takes the board's own caption.
void activateBoard(BoardState& b, int langue);

// Create on the start screen, the board's part: title and enabling.
void boardOnCreate(BoardState& b, const HullStore& h);

// fmenu_New: the store starts over (newHullStore), then Command1(0).
Actions fmenuNew(BoardState& b, HullStore& h);

// Command1(i) pressed: enabling, stepIndex = i, then the hull screen modal
// and AfterModal(Command1(i)).
Actions command1Press(BoardState& b, int i);
// The rows "after the modal screen of Command1(i)".
void afterModal(BoardState& b, BoardControl c);

// The end (a passing Valider) of each hull screen.
Actions endOfBouchain1(BoardState& b, const HullStore& h);
Actions endOfBouchain2(BoardState& b);
Actions endOfBouchain3(BoardState& b, const HullStore& h);

// The enabling at the end of a redraw, by stepIndex and nChines; returns
// the step that moves the focus.  The fold check runs here too (checkHull),
// since every validation of a hull screen ends in a redraw.
Action afterRedraw(BoardState& b, const HullStore& h);
// folds = checkFolds(h) when a file has been opened (all its lines are
// built) and after a redraw with stepIndex >= 1; after a redraw of the
// bottom alone (stepIndex 0) only the bottom is checked, since the lines
// above it are not yet built for it.
void checkHull(BoardState& b, const HullStore& h);
// dessine is disabled while lines or sections are drawn.
void drawingStarted(BoardState& b);
void drawingEnded(BoardState& b);

// drawStation's part on the board: Text1 cleaned and read as stationAtX,
// stationIndex found (1..81), Text1 rewritten with the X found, and
// fmenu_Station_DXF enabled.  The drawing of the section is the views'.
void drawStationState(BoardState& b, HullStore& h);

// Key Enter in Text2: the hull name rule.  Returns Beep for a refused name.
Actions text2Enter(BoardState& b, HullStore& h);

// Hull file, the board's steps.  Open: after the dialog (title, Text2),
// before the lines are rebuilt (picture, enabling, stepIndex 0), after
// (enabling, then Command1(0)).  Save: after writing (title, Text2, focus).
void openNamed(BoardState& b, const HullStore& h);
Actions openBeforeRebuild(BoardState& b);
Actions openAfterRebuild(BoardState& b);
Actions saveDone(BoardState& b, const HullStore& h);

// A click on a button or a menu entry, or its shortcut key.  A disabled
// control does nothing.
Actions press(BoardState& b, HullStore& h, BoardControl c);

// Closing the board's frame.
Actions closeBoard();

// The title texts.
std::string titleNew(const HullStore& h);       // Create on the start screen
std::string titleNewHull(int langue);           // fmenu_New
std::string titleFileOpen(const HullStore& h);  // Open
std::string titleDataSaved(int langue);         // Save

}  // namespace tolmar::board

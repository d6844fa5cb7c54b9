// The commands behind runBoardCommand, one function each, for the files
// that hold them: hull files, print entries.
#pragma once

#include <string>

#include "board/board_control.h"
#include "board/board_model.h"
#include "hull/hull_store.h"
#include "windows/board_commands.h"

namespace tolmar::gui {

inline constexpr const char* kOpenErrorTitle = "Tolmar2008 Opening file";
inline constexpr const char* kSaveErrorTitle = "Tolmar2008 Saving Data";
inline constexpr const char* kSavedTitle = "Tolmar2008 - Data saved ";
// What the message of a file that holds no hull says.
inline constexpr const char* kNotAHull = "Invalid file format: this is not a hull data file";

// fmenu_Open: dialog, the file read into a copy of the store which
// replaces the hull only when the read went through, then the board's
// steps and bouchain1.
void openHull(BoardWindows& w, HullStore& h, board::BoardState& b, const BoardHooks& hooks);

// fmenu_S_Data, and the save of Cancel: dialog, the file written whole or
// not at all, the message with its path.  A failure keeps the hull's name.
void saveHull(BoardWindows& w, HullStore& h, board::BoardState& b, const BoardHooks& hooks);

// A file read as a hull that holds none: binary bytes, or no length.
// Empty text when it may be a hull, else why not.
std::string notAHull(const std::string& path, const HullStore& read);

// The entries of the print menu; false for another control.
bool printEntry(BoardWindows& w, HullStore& h, board::BoardState& b, board::BoardControl c);

// "Stability" at the end of the print menu: the righting-arm and
// hydrostatic curves from the mass budget; false when nothing was printed.
bool printStabilityEntry(BoardWindows& w, HullStore& h);

}  // namespace tolmar::gui

// A user's session replayed without windows: the program starts (default
// hull, English), a hull file is opened or not, values are typed into the
// hull screens, each screen is validated as the user would press Valider,
// and the board redraws as it does after each hull screen.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "board/board_model.h"
#include "hull/hull_store.h"
#include "screens/replacement.h"

namespace tolmar::cli {

// One --set SCREEN.CONTROL=VALUE: "bouchain1.Text1(0)=7.5" types 7.5 into
// Text1(0) of bouchain1; "bouchain2.OptShear(2)", without a value, clicks
// an option button.
struct SetValue {
  std::string screen;   // bouchain1, bouchain2, bouchain3
  std::string control;  // Text1, OptShear, Text0
  int index = -1;       // -1: a control that is not an array
  bool hasValue = false;
  std::string value;
  std::string arg;  // as given, for messages
};

// Empty error on success.
SetValue parseSet(std::string_view arg, std::string& error);

struct PipelineOptions {
  std::optional<std::filesystem::path> hullFile;  // none: the default hull
  std::vector<SetValue> sets;                     // in the order given
  bool autoPlanking =
      false;  // bouchain3 rather than bouchain2 (so also any bouchain3 set, or nChines > 6)
};

struct PipelineResult {
  int status =
      0;  // 0 done, 1 the file cannot be read, 2 a hull screen does not pass or a set is wrong
  std::string error;  // why, when status != 0
  board::BoardState board;
  Replacements warnings;  // every field a validation replaced, in order
  int langue = 1;         // of the store at the end, for the fold messages (board.folds)
};

// The display the windows are laid out on: 1920 x 1080 pixels at 15 twips
// a pixel.  The board's picture Plan1 is then 27448 x 12904 twips.
inline constexpr double kDisplayWidth = 28800;
inline constexpr double kDisplayHeight = 16200;

// Valider is pressed again while it changes something, at most this often.
inline constexpr int kMaxValidations = 3;

PipelineResult prepareHull(HullStore& h, const PipelineOptions& o);

// "bouchain1 Text1(0): typed "7.5", kept 5" lines for stderr.
std::string describe(const Replacement& r);

}  // namespace tolmar::cli

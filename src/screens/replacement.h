// What a validation did to a typed value, for a caller without a window
// (the command line) to report: every field replaced by a bound, refused,
// or silently moved (the snap of the maximum beam to a station).
#pragma once

#include <string>
#include <vector>

namespace tolmar {

struct Replacement {
  std::string screen;   // "bouchain1", "bouchain2", "bouchain3"
  std::string control;  // with its index: "Text1(3)", or "Text0"
  std::string typed;    // the field's text when the validation began
  std::string kept;     // the value the store kept, as the field shows it
  bool marked = true;   // the field turned yellow or orange and the screen stays open
  std::string why;      // for a refused value, what is wrong with the hull it gives
};

using Replacements = std::vector<Replacement>;

// "Text1" and 3 give "Text1(3)".
inline std::string controlName(const char* base, int index) {
  return std::string(base) + "(" + std::to_string(index) + ")";
}

}  // namespace tolmar

// One control of a hull screen as its logic sees it: the text of a field,
// the caption of a label, button, frame or of the screen itself, the
// background colour that tells an accepted value from a replaced one, and
// the states a window layer shows.  A control array is indexed like the
// screen's own, with inclusive bounds: Text1(0..6).
#pragma once

#include <cstdint>
#include <string>

#include "hull/hull_store.h"
#include "hull/store_arrays.h"

namespace tolmar {

inline constexpr std::int32_t kWhite = rgb(255, 255, 255);  // value accepted
inline constexpr std::int32_t kYellow = rgb(255, 255, 0);   // value replaced by a bound
inline constexpr std::int32_t kOrange = rgb(255, 125, 0);   // value refused
inline constexpr std::int32_t kBlack = rgb(0, 0, 0);

struct Field {
  std::string text;
  std::int32_t backColor = kWhite;
  std::int32_t foreColor = kBlack;
  bool enabled = true;
  bool visible = true;
  bool value = false;  // an option button: the chosen one of its group
  std::string caption;

  bool operator==(const Field&) const = default;
};

template <int Lo, int Hi>
using ControlArray = Arr<Field, Lo, Hi>;

// The French and English forms of a caption; langue 1 is English, any
// other value French.
struct Caption {
  const char* fr;
  const char* en;
  const char* of(int langue) const { return langue == 1 ? en : fr; }
};

}  // namespace tolmar

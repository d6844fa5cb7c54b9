// Whether this run rewrites the golden files instead of comparing with
// them: only when TOLMAR_REGENERATE is exactly "1", so that a 0 or an empty
// value left in a shell still compares.
#pragma once

#include <cstdlib>
#include <string_view>

namespace tolmar::test {

inline bool regenerating() {
  const char* v = std::getenv("TOLMAR_REGENERATE");
  return v != nullptr && std::string_view(v) == "1";
}

}  // namespace tolmar::test

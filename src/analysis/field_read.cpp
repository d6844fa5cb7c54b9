#include "analysis/field_read.h"

#include <algorithm>

#include "text/number_reader.h"

namespace tolmar::analysis {

double readField(const std::string& text) {
  return std::clamp(readNumber(text), -kInputLimit, kInputLimit);
}

}  // namespace tolmar::analysis

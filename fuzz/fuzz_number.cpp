// Any bytes as a number text and a picture (split at the first line feed):
// the reader gives a finite value, the text forms read back to themselves,
// and the picture formatter never crashes nor runs away.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "text/data_line.h"
#include "text/number_format.h"
#include "text/number_reader.h"
#include "text/number_text.h"

namespace {

void check(bool ok) {
  if (!ok) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::istringstream in(bytes);
  std::string text = tolmar::readDataLine(in);
  std::string picture = tolmar::readDataLine(in);
  if (picture.size() > 64) picture.resize(64);

  const tolmar::NumberScan s = tolmar::scanNumber(text);
  check(std::isfinite(s.value) && s.length <= text.size());
  check(!s.overflow || std::fabs(s.value) == std::numeric_limits<double>::max());
  const auto i = tolmar::toI16(s.value);
  check(i.inRange || s.value != std::round(s.value) || std::fabs(s.value) > 32767);

  const std::string file = tolmar::hullNumberText(s.value);
  check(tolmar::hullNumberText(tolmar::readNumber(file)) == file);
  const std::string printed = tolmar::printNumberText(s.value);
  check(printed.size() >= 3 && printed.back() == ' ');
  // Digits of the largest double, the picture's literals and 64 places at most.
  check(tolmar::formatNumber(s.value, picture).size() <= 309 + 2 * picture.size() + 2);
  return 0;
}

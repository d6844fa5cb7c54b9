#include "text/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace tolmar {

std::string decimalText(double v, int significant) {
  significant = std::clamp(significant, 1, 17);
  if (std::isnan(v) || v == 0) return "0";
  if (std::isinf(v)) v = std::copysign(std::numeric_limits<double>::max(), v);

  // "d.ddddde+XX" in the C locale's form whatever the process locale is.
  std::array<char, 64> buf{};
  const auto res = std::to_chars(buf.data(), buf.data() + buf.size(), std::fabs(v),
                                 std::chars_format::scientific, significant - 1);
  const std::string sci(buf.data(), res.ptr);
  const auto ePos = sci.find('e');
  std::string digits;
  for (std::size_t i = 0; i < ePos; ++i) {
    if (sci[i] != '.') digits.push_back(sci[i]);
  }
  const int exp = std::atoi(sci.c_str() + ePos + 1);
  while (digits.size() > 1 && digits.back() == '0') digits.pop_back();

  std::string out = v < 0 ? "-" : "";
  if (exp < -4 || exp >= significant) {
    out += digits.substr(0, 1);
    if (digits.size() > 1) out += "." + digits.substr(1);
    out += exp < 0 ? "E-" : "E+";
    const int a = std::abs(exp);
    if (a < 10) out += '0';
    out += std::to_string(a);
  } else if (exp < 0) {
    out += "0." + std::string(static_cast<std::size_t>(-exp - 1), '0') + digits;
  } else {
    const auto intLen = static_cast<std::size_t>(exp) + 1;
    if (digits.size() <= intLen) {
      out += digits + std::string(intLen - digits.size(), '0');
    } else {
      out += digits.substr(0, intLen) + "." + digits.substr(intLen);
    }
  }
  return out;
}

std::string hullNumberText(double v) {
  std::string t = decimalText(v, 15);
  const bool negative = t.front() == '-';
  const std::size_t body = negative ? 1 : 0;
  if (t.compare(body, 2, "0.") == 0) t.erase(body, 1);
  return negative ? t : " " + t;
}

std::string printNumberText(double v, int significant) {
  std::string t = decimalText(v, significant);
  return (t.front() == '-' ? t : " " + t) + " ";
}

}  // namespace tolmar

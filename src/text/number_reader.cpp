#include "text/number_reader.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

namespace tolmar {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t skipDigits(std::string_view s, std::size_t i) {
  while (i < s.size() && isDigit(s[i])) ++i;
  return i;
}

// Rough decimal exponent of a number text that from_chars found out of
// range: positive for an overflow, negative for an underflow.
long roughExponent(std::string_view num) {
  std::size_t i = 0;
  if (i < num.size() && (num[i] == '+' || num[i] == '-')) ++i;
  long intDigits = 0;
  bool seen = false;
  long leadFracZeros = 0;
  for (; i < num.size() && isDigit(num[i]); ++i) {
    if (num[i] != '0') seen = true;
    if (seen) ++intDigits;
  }
  if (i < num.size() && num[i] == '.') {
    for (++i; i < num.size() && isDigit(num[i]) && !seen; ++i) {
      if (num[i] == '0')
        ++leadFracZeros;
      else
        seen = true;
    }
    i = skipDigits(num, i);
  }
  long exp = 0;
  if (i < num.size() && (num[i] == 'e' || num[i] == 'E')) {
    ++i;
    bool neg = false;
    if (i < num.size() && (num[i] == '+' || num[i] == '-')) neg = num[i++] == '-';
    for (; i < num.size() && isDigit(num[i]); ++i) {
      if (exp < 100000000) exp = exp * 10 + (num[i] - '0');
    }
    if (neg) exp = -exp;
  }
  return intDigits > 0 ? exp + intDigits : exp - leadFracZeros;
}

}  // namespace

NumberScan scanNumber(std::string_view s) {
  NumberScan r;
  std::size_t i = 0;
  while (i < s.size() && (s[i] == ' ' || s[i] == '\t')) ++i;
  const std::size_t start = i;
  bool negative = false;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) negative = s[i++] == '-';
  const std::size_t intStart = i;
  i = skipDigits(s, i);
  std::size_t digits = i - intStart;
  if (i < s.size() && s[i] == '.') {
    const std::size_t fracEnd = skipDigits(s, i + 1);
    digits += fracEnd - (i + 1);
    if (digits > 0) i = fracEnd;
  }
  if (digits == 0) return r;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
    const std::size_t expEnd = skipDigits(s, j);
    if (expEnd > j) i = expEnd;
  }
  r.length = i;

  // from_chars takes no leading "+" and is free of the C locale's decimal
  // separator, which a GUI toolkit may have set to a comma.
  std::string_view num = s.substr(start, i - start);
  if (num.front() == '+') num.remove_prefix(1);
  double v = 0;
  const auto res = std::from_chars(num.data(), num.data() + num.size(), v);
  if (res.ec == std::errc::result_out_of_range) {
    if (roughExponent(num) > 0) {
      r.overflow = true;
      v = std::numeric_limits<double>::max();
    } else {
      v = 0;
    }
    if (negative) v = -v;
  } else if (res.ec != std::errc() || !std::isfinite(v)) {
    v = 0;
  }
  r.value = v;
  return r;
}

double readNumber(std::string_view text) { return scanNumber(text).value; }

double roundHalfEven(double x) {
  if (std::isnan(x)) return 0;
  if (!std::isfinite(x)) return x;
  const double lower = std::floor(x);
  const double diff = x - lower;
  if (diff < 0.5) return lower;
  if (diff > 0.5) return lower + 1;
  return std::fmod(lower, 2.0) == 0 ? lower : lower + 1;
}

I16Value toI16(double x) {
  if (std::isnan(x)) return {0, false};
  const double r = roundHalfEven(x);
  if (r < -32768) return {-32768, false};
  if (r > 32767) return {32767, false};
  return {static_cast<std::int16_t>(r), true};
}

}  // namespace tolmar

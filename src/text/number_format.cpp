#include "text/number_format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

#include "text/number_text.h"

namespace tolmar {

namespace {

enum class Tok { Literal, Zero, Hash, Point };

struct Token {
  Tok kind;
  std::string text;  // for literals
};

using Section = std::vector<Token>;

std::vector<Section> parsePicture(std::string_view p) {
  std::vector<Section> sections(1);
  for (std::size_t i = 0; i < p.size(); ++i) {
    const char c = p[i];
    Section& s = sections.back();
    if (c == ';') {
      sections.emplace_back();
    } else if (c == '0') {
      s.push_back({Tok::Zero, {}});
    } else if (c == '#') {
      s.push_back({Tok::Hash, {}});
    } else if (c == '.') {
      s.push_back({Tok::Point, {}});
    } else if (c == '\\' && i + 1 < p.size()) {
      s.push_back({Tok::Literal, std::string(1, p[++i])});
    } else if (c == '"') {
      const auto end = p.find('"', i + 1);
      const auto stop = end == std::string_view::npos ? p.size() : end;
      s.push_back({Tok::Literal, std::string(p.substr(i + 1, stop - i - 1))});
      i = stop;
    } else {
      s.push_back({Tok::Literal, std::string(1, c)});
    }
  }
  return sections;
}

bool hasPlaceholder(const Section& s) {
  return std::any_of(s.begin(), s.end(),
                     [](const Token& t) { return t.kind == Tok::Zero || t.kind == Tok::Hash; });
}

// The decimal digits of a × 10^nFrac rounded half away from zero, from the
// 15 significant digits of a (a >= 0, finite).  "0" for zero.
std::string scaledDigits(double a, int nFrac) {
  if (a == 0) return "0";
  std::array<char, 64> buf{};
  const auto res =
      std::to_chars(buf.data(), buf.data() + buf.size(), a, std::chars_format::scientific, 14);
  const std::string sci(buf.data(), res.ptr);
  const auto ePos = sci.find('e');
  std::string d;
  for (std::size_t i = 0; i < ePos; ++i) {
    if (sci[i] != '.') d.push_back(sci[i]);
  }
  const int keep = std::atoi(sci.c_str() + ePos + 1) + nFrac + 1;
  if (keep <= 0) return keep == 0 && d[0] >= '5' ? "1" : "0";
  const auto k = static_cast<std::size_t>(keep);
  if (k >= d.size()) return d + std::string(k - d.size(), '0');
  const bool up = d[k] >= '5';
  d.resize(k);
  if (up) {
    std::size_t i = k;
    while (i > 0 && d[i - 1] == '9') d[--i] = '0';
    if (i == 0)
      d.insert(d.begin(), '1');
    else
      ++d[i - 1];
  }
  return d;
}

std::string formatSection(double a, const Section& s) {
  if (!hasPlaceholder(s)) {
    std::string out;
    for (const auto& t : s) out += t.kind == Tok::Point ? "." : t.text;
    return out;
  }
  const auto point =
      std::find_if(s.begin(), s.end(), [](const Token& t) { return t.kind == Tok::Point; });
  int nInt = 0, minInt = 0, nFrac = 0, minFrac = 0;
  for (auto it = s.begin(); it != s.end(); ++it) {
    const bool digit = it->kind == Tok::Zero || it->kind == Tok::Hash;
    if (!digit) continue;
    if (it < point) {
      ++nInt;
      if (it->kind == Tok::Zero && minInt == 0)
        minInt = 1;
      else if (minInt > 0)
        ++minInt;
    } else {
      ++nFrac;
      if (it->kind == Tok::Zero) minFrac = nFrac;
    }
  }
  const std::string n = scaledDigits(a, nFrac);
  const auto nf = static_cast<std::size_t>(nFrac);
  std::string intDigits = n.size() > nf ? n.substr(0, n.size() - nf) : "";
  std::string frac = n.size() > nf ? n.substr(n.size() - nf) : std::string(nf - n.size(), '0') + n;
  intDigits.erase(0, std::min(intDigits.find_first_not_of('0'), intDigits.size()));
  if (intDigits.size() < static_cast<std::size_t>(minInt)) {
    intDigits.insert(0, static_cast<std::size_t>(minInt) - intDigits.size(), '0');
  }
  while (frac.size() > static_cast<std::size_t>(minFrac) && frac.back() == '0') frac.pop_back();

  std::string out;
  const int len = static_cast<int>(intDigits.size());
  int intIndex = 0, fracIndex = 0;
  for (auto it = s.begin(); it != s.end(); ++it) {
    switch (it->kind) {
      case Tok::Literal:
        out += it->text;
        break;
      case Tok::Point:
        if (it == point) {
          if (nInt == 0) out += intDigits;
          out += '.';
        }
        break;
      case Tok::Zero:
      case Tok::Hash:
        if (it < point) {
          const int fromRight = nInt - 1 - intIndex;
          if (intIndex == 0 && len > nInt)
            out += intDigits.substr(0, static_cast<std::size_t>(len - nInt));
          if (fromRight < len) out += intDigits[static_cast<std::size_t>(len - 1 - fromRight)];
          ++intIndex;
        } else {
          if (static_cast<std::size_t>(fracIndex) < frac.size())
            out += frac[static_cast<std::size_t>(fracIndex)];
          ++fracIndex;
        }
        break;
    }
  }
  return out;
}

}  // namespace

std::string formatNumber(double v, std::string_view picture) {
  if (std::isnan(v)) v = 0;
  if (std::isinf(v)) v = std::copysign(std::numeric_limits<double>::max(), v);
  if (picture.empty()) return decimalText(v, 15);
  const auto sections = parsePicture(picture);
  if (v == 0 && sections.size() >= 3 && !sections[2].empty()) return formatSection(0, sections[2]);
  if (v < 0 && sections.size() >= 2 && !sections[1].empty()) return formatSection(-v, sections[1]);
  const std::string body = formatSection(std::fabs(v), sections[0]);
  return v < 0 ? "-" + body : body;
}

}  // namespace tolmar

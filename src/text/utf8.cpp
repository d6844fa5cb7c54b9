#include "text/utf8.h"

namespace tolmar {

namespace {

bool continues(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// The byte after the character that starts at i.
std::size_t nextCharacter(std::string_view s, std::size_t i) {
  ++i;
  while (i < s.size() && continues(s[i])) ++i;
  return i;
}

}  // namespace

std::size_t utf8Length(std::string_view s) {
  std::size_t n = 0;
  for (std::size_t i = 0; i < s.size(); i = nextCharacter(s, i)) ++n;
  return n;
}

std::string_view utf8Prefix(std::string_view s, std::size_t n) {
  std::size_t i = 0;
  for (std::size_t chars = 0; chars < n && i < s.size(); ++chars) i = nextCharacter(s, i);
  return s.substr(0, i);
}

std::vector<char32_t> utf8CodePoints(std::string_view s) {
  std::vector<char32_t> out;
  out.reserve(s.size());
  std::size_t i = 0;
  while (i < s.size()) {
    const auto b0 = static_cast<unsigned char>(s[i]);
    int extra = 0;
    char32_t c = 0;
    char32_t minimum = 0;
    if (b0 < 0x80) {
      c = b0;
    } else if ((b0 & 0xE0) == 0xC0) {
      c = b0 & 0x1F, extra = 1, minimum = 0x80;
    } else if ((b0 & 0xF0) == 0xE0) {
      c = b0 & 0x0F, extra = 2, minimum = 0x800;
    } else if ((b0 & 0xF8) == 0xF0) {
      c = b0 & 0x07, extra = 3, minimum = 0x10000;
    } else {
      out.push_back(U'\uFFFD');
      ++i;
      continue;
    }
    bool ok = i + static_cast<std::size_t>(extra) < s.size();
    for (int k = 1; ok && k <= extra; ++k) {
      const auto b = static_cast<unsigned char>(s[i + static_cast<std::size_t>(k)]);
      if ((b & 0xC0) != 0x80)
        ok = false;
      else
        c = (c << 6) | (b & 0x3F);
    }
    if (!ok || c < minimum || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
      out.push_back(U'\uFFFD');
      ++i;
      continue;
    }
    out.push_back(c);
    i += static_cast<std::size_t>(extra) + 1;
  }
  return out;
}

}  // namespace tolmar

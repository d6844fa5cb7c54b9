#include "text/plain_letters.h"

#include <array>
#include <utility>

namespace tolmar {

namespace {

// Each accented letter of the Latin-1 block and the ligatures, with its
// plain form.
constexpr std::array<std::pair<std::string_view, std::string_view>, 62> kPlain{{
    {"à", "a"}, {"á", "a"},  {"â", "a"},  {"ã", "a"}, {"ä", "a"},  {"å", "a"}, {"æ", "ae"},
    {"ç", "c"}, {"è", "e"},  {"é", "e"},  {"ê", "e"}, {"ë", "e"},  {"ì", "i"}, {"í", "i"},
    {"î", "i"}, {"ï", "i"},  {"ñ", "n"},  {"ò", "o"}, {"ó", "o"},  {"ô", "o"}, {"õ", "o"},
    {"ö", "o"}, {"ø", "o"},  {"ù", "u"},  {"ú", "u"}, {"û", "u"},  {"ü", "u"}, {"ý", "y"},
    {"ÿ", "y"}, {"œ", "oe"}, {"ß", "ss"}, {"À", "A"}, {"Á", "A"},  {"Â", "A"}, {"Ã", "A"},
    {"Ä", "A"}, {"Å", "A"},  {"Æ", "AE"}, {"Ç", "C"}, {"È", "E"},  {"É", "E"}, {"Ê", "E"},
    {"Ë", "E"}, {"Ì", "I"},  {"Í", "I"},  {"Î", "I"}, {"Ï", "I"},  {"Ñ", "N"}, {"Ò", "O"},
    {"Ó", "O"}, {"Ô", "O"},  {"Õ", "O"},  {"Ö", "O"}, {"Ø", "O"},  {"Ù", "U"}, {"Ú", "U"},
    {"Û", "U"}, {"Ü", "U"},  {"Ý", "Y"},  {"Ÿ", "Y"}, {"Œ", "OE"}, {"ð", "d"},
}};

}  // namespace

std::string plainLetters(std::string_view s) {
  std::string out;
  out.reserve(s.size());
  std::size_t i = 0;
  while (i < s.size()) {
    bool replaced = false;
    if (static_cast<unsigned char>(s[i]) >= 0xC0) {
      for (const auto& [accented, plain] : kPlain) {
        if (s.substr(i, accented.size()) == accented) {
          out += plain;
          i += accented.size();
          replaced = true;
          break;
        }
      }
    }
    if (!replaced) out += s[i++];
  }
  return out;
}

}  // namespace tolmar

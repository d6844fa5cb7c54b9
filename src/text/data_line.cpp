#include "text/data_line.h"

#include <algorithm>

namespace tolmar {

std::string cleanNumber(std::string& text) {
  std::replace(text.begin(), text.end(), ',', '.');
  return text;
}

std::string readDataLine(std::istream& in) {
  std::string line;
  std::streambuf* buf = in.rdbuf();
  if (!in.good() || buf == nullptr) return line;
  for (;;) {
    const auto c = buf->sbumpc();
    if (c == std::char_traits<char>::eof()) {
      in.setstate(std::ios::eofbit);
      break;
    }
    if (c == '\n') break;
    if (static_cast<unsigned char>(c) >= 32) line.push_back(static_cast<char>(c));
  }
  cleanNumber(line);
  return line;
}

}  // namespace tolmar

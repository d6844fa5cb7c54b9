#include "hull/hull_file_check.h"

#include <fstream>

#include "text/data_line.h"

namespace tolmar {

namespace {

// Enough lines for the header, the tag and the first values of every layout.
constexpr int kLinesLooked = 12;

bool startsWithNumber(const std::string& line) {
  const auto p = line.find_first_not_of(' ');
  if (p == std::string::npos) return false;
  const char c = line[p];
  return (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '+';
}

}  // namespace

std::string notAHullFile(std::istream& in) {
  std::string head(4096, '\0');
  in.read(head.data(), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<std::size_t>(in.gcount()));
  if (head.empty()) return "the file is empty, not a hull file";
  for (const char ch : head) {
    const auto c = static_cast<unsigned char>(ch);
    if (c < 32 && c != '\r' && c != '\n' && c != '\t') return "binary data, not a hull file";
  }
  in.clear();
  in.seekg(0);
  for (int i = 0; i < kLinesLooked && in; ++i) {
    if (startsWithNumber(readDataLine(in))) return {};
  }
  return "no hull values in the first lines, not a hull file";
}

std::string notAHullFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return {};  // the open that follows tells why
  return notAHullFile(in);
}

}  // namespace tolmar

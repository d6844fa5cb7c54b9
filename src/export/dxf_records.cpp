#include "export/dxf_records.h"

#include <array>
#include <cmath>

#include "text/number_format.h"
#include "text/utf8.h"

namespace tolmar {

std::string dxfNumber(double x) {
  if (!std::isfinite(x) || x == 0) x = 0;  // also turns -0.0 into +0.0
  std::string s = formatNumber(x, "0.0000 ");
  for (char& c : s)
    if (c == ',') c = '.';
  return x >= 0 ? " " + s : s;
}

void dxfHeader(TextSink& out, std::string_view comment) {
  out.line("999");
  out.line(toCodePage1252(comment));
}

void dxfSection(TextSink& out) {
  out.line("  0");
  out.line("SECTION");
  out.line("  2");
  out.line("ENTITIES");
}

void dxfPolyline(TextSink& out, i16 layer, i16 colour) {
  dxfPolyline(out, std::to_string(layer), colour);
}

void dxfPolyline(TextSink& out, std::string_view layer, i16 colour) {
  out.line("  0");
  out.line("POLYLINE");
  out.line("  8");
  out.line(layer);
  out.line(" 62");
  out.line("     " + std::to_string(colour));
  out.line(" 66");
  out.line("      1");
  out.line("  6");
  out.line("CONTINUOUS");
  out.line(" 70");
  out.line("      8");  // 8: a 3D polyline
}

void dxfVertex(TextSink& out, i16 layer, i16 colour, double x, double y, double z) {
  dxfVertex(out, std::to_string(layer), colour, x, y, z);
}

void dxfVertex(TextSink& out, std::string_view layer, i16 /*colour*/, double x, double y,
               double z) {
  out.line("  0");
  out.line("VERTEX");
  out.line("  8");
  out.line(layer);
  out.line(" 70");
  out.line("     32");  // 32: a vertex of a 3D polyline
  out.line(" 10");
  out.line(dxfNumber(x));
  out.line(" 20");
  out.line(dxfNumber(y));
  out.line(" 30");
  out.line(dxfNumber(z));
}

void dxfSeqend(TextSink& out) {
  out.line(" 0 ");
  out.line("SEQEND");
}

void dxfEndSec(TextSink& out) {
  out.line("  0");
  out.line("ENDSEC");
}

void dxfEof(TextSink& out) {
  out.line("  0");
  out.line("EOF");
}

std::string toCodePage1252(std::string_view utf8) {
  // Code points of the bytes 0x80..0x9F in Windows-1252; 0 marks the five
  // bytes that code page leaves undefined.
  static constexpr std::array<char32_t, 32> k80 = {
      0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
  std::string out;
  out.reserve(utf8.size());
  for (const char32_t c : utf8CodePoints(utf8)) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
      out.push_back(static_cast<char>(c));
      continue;
    }
    char byte = '?';
    for (std::size_t i = 0; i < k80.size(); ++i)
      if (k80[i] != 0 && k80[i] == c) byte = static_cast<char>(0x80 + i);
    out.push_back(byte);
  }
  return out;
}

}  // namespace tolmar

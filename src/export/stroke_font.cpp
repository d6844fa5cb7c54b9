#include "export/stroke_font.h"

#include <cmath>
#include <vector>

#include "export/dxf_records.h"
#include "hull/geometrie.h"
#include "text/utf8.h"

namespace tolmar {

namespace {

using G = GlyphPoint;

// Each glyph is drawn without lifting the pen: branches go over a stroke
// twice.  The zero is slashed, i and j have no dot.
constexpr G kDigit0[] = {{0, 2}, {8, 14}, {6, 16}, {2, 16}, {0, 14},
                         {0, 2}, {2, 0},  {6, 0},  {8, 2},  {8, 14}};
constexpr G kDigit1[] = {{1, 12}, {4, 16}, {4, 0}};
constexpr G kDigit2[] = {{0, 14}, {2, 16}, {6, 16}, {8, 14}, {8, 10}, {0, 1}, {0, 0}, {8, 0}};
constexpr G kDigit3[] = {{0, 14}, {2, 16}, {6, 16}, {8, 14}, {8, 11}, {6, 9}, {2, 9},
                         {6, 9},  {8, 7},  {8, 2},  {6, 0},  {2, 0},  {0, 2}};
constexpr G kDigit4[] = {{8, 4}, {0, 4}, {6, 16}, {6, 0}};
constexpr G kDigit5[] = {{8, 16}, {2, 16}, {1, 10}, {6, 10}, {8, 8},
                         {8, 2},  {6, 0},  {2, 0},  {0, 2}};
constexpr G kDigit6[] = {{8, 16}, {4, 16}, {0, 12}, {0, 2}, {2, 0},
                         {6, 0},  {8, 2},  {8, 6},  {6, 8}, {0, 8}};
constexpr G kDigit7[] = {{0, 14}, {1, 16}, {8, 16}, {8, 14}, {2, 0}};
constexpr G kDigit8[] = {{0, 2},  {0, 6}, {8, 10}, {8, 14}, {6, 16}, {2, 16}, {0, 14},
                         {0, 10}, {8, 6}, {8, 2},  {6, 0},  {2, 0},  {0, 2}};
constexpr G kDigit9[] = {{0, 0},  {4, 0},  {8, 4},  {8, 14}, {6, 16},
                         {2, 16}, {0, 14}, {0, 10}, {2, 8},  {8, 8}};

constexpr G kA[] = {{0, 8}, {7, 8}, {8, 7}, {8, 0}, {1, 0}, {0, 1}, {0, 3}, {1, 4}, {8, 4}};
constexpr G kB[] = {{0, 16}, {0, 0}, {7, 0}, {8, 1}, {8, 7}, {7, 8}, {1, 8}, {0, 7}};
constexpr G kC[] = {{8, 7}, {7, 8}, {1, 8}, {0, 7}, {0, 1}, {1, 0}, {8, 0}};
constexpr G kD[] = {{8, 16}, {8, 0}, {1, 0}, {0, 1}, {0, 7}, {1, 8}, {7, 8}, {8, 7}};
constexpr G kE[] = {{0, 4}, {8, 4}, {8, 7}, {7, 8}, {1, 8}, {0, 7}, {0, 1}, {1, 0}, {8, 0}};
constexpr G kF[] = {{4, 16}, {1, 16}, {0, 15}, {0, 8}, {4, 8}, {0, 8}, {0, 0}};
constexpr G kG[] = {{8, 2}, {1, 2}, {0, 3}, {0, 7}, {1, 8}, {8, 8}, {8, -2}, {0, -2}};
constexpr G kH[] = {{0, 16}, {0, 0}, {0, 8}, {7, 8}, {8, 7}, {8, 0}};
constexpr G kI[] = {{4, 8}, {4, 0}};
constexpr G kJ[] = {{7, 8}, {8, 8}, {8, 0}, {6, -2}, {2, -2}, {1, -1}};
constexpr G kK[] = {{0, 16}, {0, 0}, {0, 4}, {8, 8}, {4, 6}, {8, 0}};
constexpr G kL[] = {{3, 16}, {3, 1}, {4, 0}, {6, 0}};
constexpr G kM[] = {{0, 0}, {0, 8}, {0, 6}, {5, 8}, {5, 0}, {5, 6}, {10, 8}, {10, 0}};
constexpr G kN[] = {{0, 0}, {0, 8}, {0, 6}, {8, 8}, {8, 0}};
constexpr G kO[] = {{0, 2}, {0, 6}, {2, 8}, {6, 8}, {8, 6}, {8, 2}, {6, 0}, {2, 0}, {0, 2}};
constexpr G kP[] = {{0, 2}, {7, 2}, {8, 3}, {8, 7}, {7, 8}, {0, 8}, {0, -2}};
constexpr G kQ[] = {{9, -2}, {8, -2}, {8, 6}, {6, 8}, {2, 8},
                    {0, 6},  {0, 2},  {2, 0}, {6, 0}, {8, 2}};
constexpr G kR[] = {{0, 0}, {0, 8}, {0, 6}, {6, 8}, {8, 6}};
constexpr G kS[] = {{8, 6}, {6, 8}, {2, 8}, {0, 6}, {7, 3}, {8, 2}, {6, 0}, {2, 0}, {0, 2}};
constexpr G kT[] = {{6, 0}, {2, 0}, {0, 2}, {0, 12}, {0, 8}, {4, 8}};
constexpr G kU[] = {{0, 8}, {0, 1}, {1, 0}, {7, 0}, {8, 1}, {8, 8}};
constexpr G kV[] = {{0, 8}, {4, 0}, {8, 8}};
constexpr G kW[] = {{0, 8}, {3, 0}, {5, 6}, {7, 0}, {10, 8}};
constexpr G kX[] = {{0, 8}, {8, 0}, {4, 4}, {0, 0}, {8, 8}};
constexpr G kY[] = {{0, 8}, {6, 2}, {8, 8}, {6, 2}, {4, -2}, {2, -2}, {0, 0}};
constexpr G kZ[] = {{0, 8}, {8, 8}, {0, 0}, {8, 0}};
constexpr G kMinus[] = {{0, 4}, {8, 4}};
constexpr G kOther[] = {{0, 4}, {8, 4}, {4, 8}, {4, 0}, {0, 4}};

constexpr std::span<const G> kDigits[] = {kDigit0, kDigit1, kDigit2, kDigit3, kDigit4,
                                          kDigit5, kDigit6, kDigit7, kDigit8, kDigit9};
constexpr std::span<const G> kLetters[] = {kA, kB, kC, kD, kE, kF, kG, kH, kI, kJ, kK, kL, kM,
                                           kN, kO, kP, kQ, kR, kS, kT, kU, kV, kW, kX, kY, kZ};

}  // namespace

std::span<const GlyphPoint> strokeGlyph(char32_t c) {
  if (c == U' ') return {};
  if (c >= U'A' && c <= U'Z') c += U'a' - U'A';
  if (c >= U'0' && c <= U'9') return kDigits[c - U'0'];
  if (c >= U'a' && c <= U'z') return kLetters[c - U'a'];
  if (c == U'-') return kMinus;
  return kOther;
}

void dxfText(TextSink& out, std::string_view text, float size, double x, double y, double angle,
             i16 layer, i16 colour) {
  dxfText(out, text, size, x, y, angle, std::string_view(std::to_string(layer)), colour);
}

void dxfText(TextSink& out, std::string_view text, float size, double x, double y, double angle,
             std::string_view layer, i16 colour) {
  const float dx = static_cast<float>(std::cos(angle) * size);
  const float dy = static_cast<float>(std::sin(angle) * size);
  float px = static_cast<float>(x);
  float py = static_cast<float>(y);
  for (const char32_t c : utf8CodePoints(text)) {
    const auto glyph = strokeGlyph(c);
    if (!glyph.empty()) {
      dxfPolyline(out, layer, colour);
      for (const GlyphPoint& g : glyph) {
        double qx = 0, qy = 0;
        rotatePoint(double(g.x) * size / 16.0, double(g.y) * size / 16.0, 0, 0, angle, qx, qy);
        dxfVertex(out, layer, colour, static_cast<float>(qx + px), static_cast<float>(qy + py), 0);
      }
      dxfSeqend(out);
    }
    px += dx;
    py += dy;
  }
}

}  // namespace tolmar

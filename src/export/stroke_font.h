// Text on a drawing as plain geometry: each character one polyline of a
// stroke font on a grid of 16 units to the text height, so that names and
// marks reach a plotter or cutter without a text entity.
#pragma once

#include <span>
#include <string_view>

#include "export/text_sink.h"
#include "hull/hull_store.h"

namespace tolmar {

struct GlyphPoint {
  signed char x, y;  // grid units: base line y = 0, capitals 16, descenders -2
};

// The glyph that draws character c (a code point): upper-case ASCII letters
// draw as their lower-case glyph; characters without a glyph of their own
// get the cross-in-a-diamond mark; a blank has no points.
std::span<const GlyphPoint> strokeGlyph(char32_t c);

// Draws text from (x, y), the left end of the base line of its first
// character, each character `size` high and advancing by `size` along the
// direction `angle` (radians from X).  Pen and vertices are single
// precision; Z is 0.  A blank only advances the pen.
void dxfText(TextSink& out, std::string_view text, float size, double x, double y, double angle,
             i16 layer, i16 colour);
// The same on a layer with a name.
void dxfText(TextSink& out, std::string_view text, float size, double x, double y, double angle,
             std::string_view layer, i16 colour);

}  // namespace tolmar

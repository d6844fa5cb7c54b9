#include "board/recording_surface.h"

namespace tolmar {

namespace {

// Characters, not bytes: a UTF-8 continuation byte adds no width.
int characterCount(std::string_view text) {
  int n = 0;
  for (unsigned char c : text)
    if ((c & 0xC0) != 0x80) ++n;
  return n;
}

}  // namespace

RecordingSurface::RecordingSurface(float widthTwips, float heightTwips) {
  setOuterSize(widthTwips, heightTwips);
}

float RecordingSurface::TextWidth(std::string_view text) const {
  return kCharWidth * static_cast<float>(characterCount(text));
}

float RecordingSurface::TextHeight(std::string_view) const { return kTextHeight; }

}  // namespace tolmar

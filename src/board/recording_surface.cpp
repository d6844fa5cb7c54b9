#include "board/recording_surface.h"

#include "text/utf8.h"

namespace tolmar {

RecordingSurface::RecordingSurface(float widthTwips, float heightTwips) {
  setOuterSize(widthTwips, heightTwips);
}

float RecordingSurface::TextWidth(std::string_view text) const {
  return kCharWidth * static_cast<float>(utf8Length(text));
}

float RecordingSurface::TextHeight(std::string_view) const { return kTextHeight; }

}  // namespace tolmar

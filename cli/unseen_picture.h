// The board's picture Plan1 without a window: the size it has on the
// display that tolmar-cli lays the windows out on, so that a redraw fits
// the views to it as the program does; nothing is painted.
#pragma once

#include <string_view>

#include "board/board_layout.h"
#include "board/drawing_surface.h"
#include "pipeline.h"

namespace tolmar::cli {

class UnseenPicture : public DrawingSurface {
 public:
  UnseenPicture() {
    const board::Rect plan = board::loadLayout(kDisplayWidth, kDisplayHeight).plan1;
    setOuterSize(static_cast<float>(plan.width), static_cast<float>(plan.height));
  }
  float TextWidth(std::string_view) const override { return 0; }
  float TextHeight(std::string_view) const override { return 0; }

 protected:
  void render(const DrawCall&) override {}
};

}  // namespace tolmar::cli

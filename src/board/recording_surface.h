// A drawing surface for tests and benchmarks: it paints nothing and keeps
// every operation with the pen it was made with.  Text metrics follow a
// fixed rule, 100 units a character wide and 200 high, so that positions
// computed from them are known in advance.
#pragma once

#include <string_view>
#include <vector>

#include "board/drawing_surface.h"

namespace tolmar {

class RecordingSurface : public DrawingSurface {
 public:
  static constexpr float kCharWidth = 100;
  static constexpr float kTextHeight = 200;

  RecordingSurface(float widthTwips, float heightTwips);

  float TextWidth(std::string_view text) const override;
  float TextHeight(std::string_view text) const override;

  const std::vector<DrawCall>& calls() const { return calls_; }
  void clear() { calls_.clear(); }

 protected:
  void render(const DrawCall& call) override { calls_.push_back(call); }

 private:
  std::vector<DrawCall> calls_;
};

}  // namespace tolmar

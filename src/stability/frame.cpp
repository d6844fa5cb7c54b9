#include "stability/frame.h"

#include <cmath>

namespace tolmar::stability {

Frame frameAt(double heel, double pitch) {
  const double sh = std::sin(heel), ch = std::cos(heel);
  const double sp = std::sin(pitch), cp = std::cos(pitch);
  return {{-sp, -sh * cp, ch * cp}, {cp, -sp * sh, sp * ch}, {0, ch, sh}};
}

}  // namespace tolmar::stability

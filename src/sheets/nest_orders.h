// The orders in which a nesting pass takes its pieces: by area, by length,
// by width across the grain, by the area of their box, largest first, and
// the area order shaken a little by a fixed seed, so that pieces of nearly
// the same area (a part and its mirrored copy) meet other neighbours.
#pragma once

#include <polyclipping/clipper.hpp>
#include <vector>

namespace tolmar::sheets {

std::vector<std::vector<std::size_t>> nestOrders(const std::vector<ClipperLib::Path>& shapes);

}  // namespace tolmar::sheets

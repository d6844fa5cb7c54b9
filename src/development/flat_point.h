// A point on the flat of a developed plate, metres.
#pragma once

namespace tolmar {

struct FlatPoint {
  double x = 0, y = 0;
  bool operator==(const FlatPoint&) const = default;
};

}  // namespace tolmar

// Hull points (metres) to the paper (twips), through the print scalars of
// the store.  Sums are formed in double and rounded to single precision
// once, as the surface takes them.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

inline float qx(const HullStore& h, double x) {
  return static_cast<float>(h.printScaleX * x + h.printOriginX);
}
inline float qy(const HullStore& h, double y) {
  return static_cast<float>(h.printScaleY * y + h.printOriginY);
}
// The mirror image of qy: the other side of the centre line.
inline float qm(const HullStore& h, double y) {
  return static_cast<float>(h.printOriginY - h.printScaleY * y);
}
inline float qz(const HullStore& h, double z) {
  return static_cast<float>(h.printScaleZ * z + h.printOriginZ);
}

}  // namespace tolmar

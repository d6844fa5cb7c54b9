// The cut of one transverse section of the hull by a level: the polyline
// through point i of lines 0..nChines, both sides of the boat, open above
// the last line.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

struct SectionCut {
  double wlY = 0;      // half breadth of the water; 0 above the last line
  double area = 0;     // immersed area, both sides, m2
  double x = 0;        // X of the water on the section
  double yCentre = 0;  // always 0
  double zCentre = 0;  // height of the centre of the immersed area
  i16 chineOut = -1;   // highest line wholly at or below the water; -1 dry
};

// The highest line in use, held to the store's lines 0..25.
int lastLine(const HullStore& h);

// Point i (0..82) of the section at water height z.  A line exactly at
// the water counts as under water.
SectionCut calcSection(const HullStore& h, int i, double z);

}  // namespace tolmar

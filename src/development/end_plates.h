// The transom and the pram bow unrolled into their own inclined planes from
// the hull's end sections (station rows 0 and 82): row 1 of transomPlate and
// bowPlate is the running slope length along the panel, row 2 the half
// breadth, over section points 0..nChines+9, metres.  They need current
// stations.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

void calcTransomPlate(HullStore& h);

// bowPlate is written for any hull; it means something only when
// hasPramBow() holds, and keeps its last values otherwise for readers that
// skip the test.
void calcBowPlate(HullStore& h);

// The same as values, the store unchanged (points above the last section
// point keep the store's).
EndPlate transomPlateOf(const HullStore& h);
EndPlate bowPlateOf(const HullStore& h);

// The forward end of the first chine has a breadth: above 0.001 m.
bool hasPramBow(const HullStore& h);

// Last section point of the end plates: nChines + 9, held inside the
// table's 0..35 for a store whose nChines is out of its range.
int lastSectionPoint(const HullStore& h);

}  // namespace tolmar

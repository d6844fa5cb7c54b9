// Half breadths of line n (>= 2) at its three control stations, from the
// line below and the inclination of the plank between them: a height step
// dz gives a breadth step tanDeg(90 - plankAngle(n - 1)) dz.  A plank that
// would cross the centre plane ends on it, its height rounded to 0.1 mm.
// Call in this order: deriveYMax reads yAft(n).
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

void deriveYFwd(HullStore& h, int n);
void deriveYAft(HullStore& h, int n);
void deriveYMax(HullStore& h, int n);

}  // namespace tolmar

// The default hull of a new design, and the store side of starting over.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

// A 6 m hull with a pointed stem, five lines above the keel and a raked
// transom, with the mass budget's defaults.  Line points are not computed.
void initDefaultHull(HullStore& h);

// The store effects of a new hull: control values of lines 0..3 and the
// point and edge tables cleared, the default hull, then hullName "Tolmar".
void newHullStore(HullStore& h);

}  // namespace tolmar

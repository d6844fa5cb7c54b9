// The developed plates of the hull in the store as JSON, for tolmar-cli:
//   "plates": bottom (plate 0, points 0..83) and planks 1..nChines-1
//             (points 0..82), each {"plate", "lastPoint", "devXi", "devYi",
//             "devXs", "devYs"};
//   "decks": lines 1..nChines, each {"line", "lastPoint", and the four};
//   "transomPlate", "bowPlate": {"distance": row 1, "halfBreadth": row 2}
//             over section points 0..nChines+9;
//   "pramBow": whether the bow plate is a real panel (yFwd(1) > 0.001); it
//             is computed from station row 82 in either case.
// Metres.  Needs validated lines, iMaxBeam and current stations; the store
// is not changed.
#pragma once

#include <nlohmann/json.hpp>

#include "hull/hull_store.h"

namespace tolmar::cli {

nlohmann::json platesJson(const HullStore& h);

}  // namespace tolmar::cli

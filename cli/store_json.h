// The hull store as JSON, under the store's own names, for tolmar-cli.
#pragma once

#include <nlohmann/json.hpp>

#include "hull/hull_store.h"

namespace tolmar::cli {

// hullName, nChines, iMaxBeam, the shape parameters and whole-degree
// angles; plankAngle, bowTurn, transomTurn, the nine control values and
// planeA, planeB, planeC indexed 0..nChines; lineX, lineY, lineZ as
// nChines + 1 rows of points 0..82; edgeX, edgeY, edgeZ as two rows of
// indices 0..83.  nChines is held to 0..25 for the extents.
nlohmann::json storeJson(const HullStore& h);

}  // namespace tolmar::cli

// The pages of the full-size patterns: the map of the tiles first, then
// each tile of each plate at 1:1 with its head (hull, plate, "cut 2,
// mirrored" where it applies, row and column), the overlap bands with their
// registration crosses, the outline, the station ticks and the lap line as
// the plate files draw them.  The surface's drawing units are twips of 568
// to the centimetre, so that a millimetre of plate is 56.8 twips.
#pragma once

#include <string>

#include "board/drawing_surface.h"
#include "hull/hull_store.h"
#include "printing/pattern_plan.h"
#include "printing/print_host.h"

namespace tolmar {

// The plan for the surface's page.
PatternPlan planPatterns(const DrawingSurface& s, const std::vector<const DevelopedPlate*>& plates,
                         double overlapMm);

// The whole document, from the first map page to EndDoc.  `paper` names the
// paper in the map's head ("A4").
void printPatterns(DrawingSurface& s, const HullStore& h, PrintHost& host, const PatternPlan& plan,
                   const std::string& paper);

// The name of a plate's kind in langue: "plank 3", "bordé 3", "transom" ...
std::string plateTitle(const DevelopedPlate& p, int langue);

// The registration crosses: half the length of an arm, mm.
double crossArmMm(double overlapMm);

}  // namespace tolmar

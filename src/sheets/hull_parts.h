// The panels the boat is built of, as the mass budget counts them: its
// rows with a density above 0.  The bottom, each plank, the floors and the
// decks twice (starboard, then port mirrored); the transom, the pram bow
// and each bulkhead once, across.  Thickness from the thickness screen when
// it gives one, otherwise a default of the kind, marked as assumed.
#pragma once

#include <string>
#include <vector>

#include "hull/hull_store.h"
#include "sheets/sheet_options.h"
#include "sheets/sheet_part.h"

namespace tolmar::sheets {

// Defaults when the thickness screen has not given a thickness, mm.
inline constexpr double kBottomMm = 9, kPlankMm = 6, kTransomMm = 12, kBowMm = 12, kOtherMm = 9;

struct PartsResult {
  std::vector<SheetPart> parts;
  std::string error;  // in the hull's language; empty when all went well
};

// The parts of a validated, drawn hull.  `only` and `skip` of the options
// select by name; a name in `only` that the budget leaves out (the pram
// bow with density 0, a deck) is added, and a name given twice gives an
// extra copy.
PartsResult partsFromHull(const HullStore& h, const SheetOptions& o);

}  // namespace tolmar::sheets

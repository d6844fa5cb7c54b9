// From a hull and the builder's choices to pieces on sheets: the parts,
// their joints (tried three ways when the user has not placed them: for
// each thickness, the way that needs the fewest sheets wins), the nesting
// per thickness, and the check of the result.
#pragma once

#include "hull/hull_store.h"
#include "sheets/sheet_layout.h"
#include "sheets/sheet_options.h"

namespace tolmar::sheets {

// The choices themselves: a message in the language `langue` for the
// first that is wrong (a kerf, ratio or strap of 0 or less, a sheet that
// the margins leave nothing of), empty when all are usable.
std::string checkOptions(const SheetOptions& o, int langue);

SheetPlan planSheets(const HullStore& h, const SheetOptions& o);

// Pieces of given parts, for tests and for parts from elsewhere.
SheetPlan planParts(std::vector<SheetPart> parts, const SheetOptions& o, int langue);

}  // namespace tolmar::sheets

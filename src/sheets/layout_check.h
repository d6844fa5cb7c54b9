// A check of a finished plan, by Clipper alone and whatever placed the
// pieces: every piece inside its sheet less the margin, no two pieces of a
// sheet closer than the kerf, every piece placed exactly once and with its
// own area, one thickness per sheet.
#pragma once

#include <string>
#include <vector>

#include "sheets/sheet_layout.h"

namespace tolmar::sheets {

// What is wrong, one English sentence each; empty for a sound plan.
std::vector<std::string> checkLayout(const SheetPlan& plan);

}  // namespace tolmar::sheets

// The development check as a table of texts, the same for the window and
// the printed page: column heads, one row per plate, the notes under it,
// and a colour per verdict.  French when langue is 0.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "devcheck/plate_check.h"

namespace tolmar::devcheck {

// "Contrôle du développement" / "Development check".
std::string checkTitle(int langue);

std::vector<std::string> checkHeads(int langue);

// The cells of one row, as many as the heads: figures rounded for reading,
// a radius of kStraightRadius or more as "plat"/"flat", an assumed
// thickness followed by "*", a pattern off by more than kTwistedLimit
// marked in the verdict.
std::vector<std::string> checkCells(const PlateCheck& c, int langue);

// The lines under the table: the factor, what "*" means, the table's source.
std::vector<std::string> checkNotes(const CheckReport& r, const CheckOptions& o, int langue);

// Green, orange or red, as RGB integers (red in the low byte).
std::int32_t verdictColour(Verdict v);

}  // namespace tolmar::devcheck

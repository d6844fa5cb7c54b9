// The plan of sheets as JSON: `sheets` (each with width_mm, height_mm,
// thickness_mm and its pieces' outlines on the sheet) and `bom`.
#pragma once

#include <nlohmann/json.hpp>

#include "sheets/sheet_layout.h"

namespace tolmar::cli {

nlohmann::json sheetsJson(const sheets::SheetPlan& plan);

}  // namespace tolmar::cli

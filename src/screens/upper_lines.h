// The rebuild of lines 2..nChines after a planks screen, in the fixed order
// (for n = 2..nChines: fitChinePlane(n), fitLineEnds(n), buildLine(n),
// buildBevel(n - 1); then buildBevel(nChines)), with the checks that let
// the screen refuse a hull whose lines cannot be built.
#pragma once

#include <functional>
#include <string>

#include "hull/hull_store.h"
#include "hull/line_generation.h"

namespace tolmar {

enum class LineStage { plane, points };  // before fitChinePlane(n), before buildLine(n)
using LineProgress = std::function<void(int line, LineStage stage)>;

// Returns 0 when every line was built, otherwise the first line n whose
// plane cannot be fitted, whose plank runs parallel to that plane
// (chineDegenerate), or whose ends, points or bevels come out non-finite.
// The rebuild stops there; the caller restores its GeometryBackup.
// What the command line says of a hull refused at line n.
std::string lineRefusal(int n);

int buildUpperLinesChecked(HullStore& h, const LineProgress& progress = {},
                           const BusyStep& busy = {});

}  // namespace tolmar

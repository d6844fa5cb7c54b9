#include "screens/upper_lines.h"

#include <algorithm>

#include "hull/chine_equations.h"
#include "screens/geometry_backup.h"

namespace tolmar {

namespace {

void report(const LineProgress& progress, int line, LineStage stage) {
  if (progress) progress(line, stage);
}

}  // namespace

std::string lineRefusal(int n) {
  return "line " + std::to_string(n) +
         " has no plane through its points, never meets its end planes or runs beyond any "
         "hull's scale";
}

int buildUpperLinesChecked(HullStore& h, const LineProgress& progress, const BusyStep& busy) {
  const int top = std::clamp<int>(h.nChines, 1, kMaxLine);
  for (int n = 2; n <= top; ++n) {
    report(progress, n, LineStage::plane);
    if (!fitChinePlane(h, n) || chineDegenerate(h, n)) return n;
    fitLineEnds(h, n);
    report(progress, n, LineStage::points);
    buildLine(h, n, busy);
    buildBevel(h, n - 1, busy);
    if (!controlValuesFinite(h, n) || !linePointsFinite(h, n) || !bevelRowFinite(h, n - 1)) {
      return n;
    }
  }
  buildBevel(h, top, busy);
  return bevelRowFinite(h, top) ? 0 : std::max(top, 2);
}

}  // namespace tolmar

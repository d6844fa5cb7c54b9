// The builder's choices for laying panels on sheets.
#pragma once

#include <string>
#include <vector>

namespace tolmar::sheets {

enum class JointKind { scarf, butt, none };

struct JointAt {
  std::string part;    // "p03"
  double xMetres = 0;  // from the part's aft end
};

struct SheetOptions {
  double lengthMm = 2440, widthMm = 1220;  // the grain runs along the length
  double marginMm = 10;                    // kept free along every edge
  double kerfMm = 3;                       // the smallest gap between two pieces
  bool rotate90 = false;                   // pieces may also turn across the grain
  JointKind joint = JointKind::scarf;
  double scarfRatio = 8;                // a scarf's length over the thickness
  double strapWidthMm = 150;            // along the joint's part
  std::vector<JointAt> jointsAt;        // moved by the user
  std::vector<std::string> only, skip;  // part names; `only` may repeat a name for a copy
};

// No joint nearer to a part's end than this.
inline constexpr double kJointEndClearanceMm = 300;

// The common sizes offered besides a typed one.
struct SheetSize {
  double lengthMm, widthMm;
};
inline constexpr SheetSize kSheetSizes[] = {{2440, 1220}, {2500, 1250}, {3050, 1525}};

}  // namespace tolmar::sheets

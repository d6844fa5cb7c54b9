// Where the stored hull cannot be built: a plank whose upper line runs
// under its lower one (negative width), a plank that narrows to nothing
// between its ends, and a plank that crosses a plank further down.  The
// hull screens clamp numbers but accept such shapes; this check reads the
// built lines, section by section, and says where.  It writes nothing.
#pragma once

#include <string>
#include <vector>

#include "hull/hull_store.h"

namespace tolmar {

enum class FoldKind {
  under,   // the plank's upper line runs under its lower line: negative width
  narrow,  // the plank has no width between two stretches where it has some
  across,  // the plank crosses a lower plank (its `line` is that plank's lower line)
};

// One run of neighbouring points where a plank folds.  Planks are numbered
// as everywhere: plank 0 is the bottom, plank n lies on line n.
struct FoldStretch {
  int plank = 0;
  int line = 0;                    // the line the plank folds under (or crosses at)
  int fromPoint = 0, toPoint = 0;  // points 0..82 of the lines, inclusive
  double fromX = 0, toX = 0;       // X of those points on `line`, m
  double depth = 0;                // m, how far the line crosses at worst; 0 for narrow
  FoldKind kind = FoldKind::under;
};

struct FoldReport {
  std::vector<FoldStretch> stretches;  // by plank, then by point

  bool folded() const { return !stretches.empty(); }
  // Every stretch on a line of its own ('\n' between them, none at the end),
  // in French (langue 0) or English (1); empty for a sound hull.
  std::string message(int langue) const;
};

// One stretch as a sentence: "Plank 1 folds under line 1 from X = 3.8 m to
// 5.5 m (up to 23 mm)".
std::string foldSentence(const FoldStretch& s, int langue);

// Widths closer to zero than this (m) count as zero: below a tenth of a
// millimetre nothing can be cut or measured.
inline constexpr double kFoldTolerance = 1e-4;

// Lines 0..nChines, points 0..82, up to the line below the first whose
// plane was never fitted (planeA, planeB and planeC all zero).  Never
// fails; non-finite points are skipped.
FoldReport checkFolds(const HullStore& h);
// Lines 0..min(nChines, lastLine) only: after the bottom screen alone the
// lines above line 1 are not built for the present bottom (lastLine 1).
FoldReport checkFoldsUpTo(const HullStore& h, int lastLine);

}  // namespace tolmar

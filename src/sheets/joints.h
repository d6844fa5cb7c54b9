// Parts longer than a sheet cut into pieces: where the joints go, and the
// pieces and straps they give.  A scarf lets two pieces overlap by its
// length (ratio x thickness), the joint in the middle of it; a butt strap
// needs no overlap and adds a strap, cut from the part's own outline
// around the joint.
#pragma once

#include <string>
#include <vector>

#include "sheets/sheet_layout.h"

namespace tolmar::sheets {

// How the automatic joints share a part: pieces of one length, or as long
// as the sheet allows from the aft end, or from the forward end.
enum class JointStrategy { even, fromAft, fromForward };

// Joint centres along a part of length `length` cut into pieces of at most
// `usable` with overlaps of `overlap`; empty when no joint is needed or
// possible (usable <= overlap).
std::vector<double> autoJoints(double length, double usable, double overlap, JointStrategy s);

struct CutResult {
  std::vector<SheetPart> straps;
  std::vector<Piece> pieces;
  std::vector<Joint> joints;
  std::string error;
};

// Cuts every part (strap parts are numbered after `parts`).  `usable` is
// the sheet's length inside its margins.
CutResult cutParts(const std::vector<SheetPart>& parts, const SheetOptions& o, double usable,
                   JointStrategy s, int langue);
// The same with a way of its own for each part (`perPart` as long as
// `parts`).
CutResult cutParts(const std::vector<SheetPart>& parts, const SheetOptions& o, double usable,
                   const std::vector<JointStrategy>& perPart, int langue);

// The extent across the grain of `p` at X = x (the lowest and highest Y of
// its edges there); false when x misses it.
bool spanAt(const MmPolygon& p, double x, double& y0, double& y1);

}  // namespace tolmar::sheets

// A plan of sheets: the parts, the pieces they are cut into, the joints,
// and every piece placed on a sheet (millimetres, the sheet's corner at
// the origin, X along its length).
#pragma once

#include <string>
#include <vector>

#include "sheets/sheet_options.h"
#include "sheets/sheet_part.h"

namespace tolmar::sheets {

struct Piece {
  int part = 0;  // index into SheetPlan::parts
  int piece = 1, of = 1;
  MmPolygon outline;              // in the part's frame
  std::vector<MmPolyline> marks;  // ticks, maximum beam, joint lines
};

struct Joint {
  int part = 0;
  double atMm = 0;       // from the part's aft end
  double overlapMm = 0;  // a scarf's length; 0 for a butt strap
  JointKind kind = JointKind::scarf;
};

struct PlacedPiece {
  int piece = 0;          // index into SheetPlan::pieces
  double rotation = 0;    // radians, about the part frame's origin, then...
  double dx = 0, dy = 0;  // ...moved by this, mm
  MmPolygon outline;      // on the sheet
  std::vector<MmPolyline> marks;
};

struct Sheet {
  double lengthMm = 0, widthMm = 0, thicknessMm = 0;
  std::vector<PlacedPiece> pieces;
};

struct SheetPlan {
  SheetOptions options;
  std::vector<SheetPart> parts;  // straps at the end
  std::vector<Piece> pieces;
  std::vector<Joint> joints;
  std::vector<Sheet> sheets;
  std::string error;  // in the hull's language: nothing was planned
};

// A point of the part frame as a placement puts it on the sheet.
MmPoint placePoint(const PlacedPiece& p, MmPoint q);

}  // namespace tolmar::sheets

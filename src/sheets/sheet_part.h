// A panel to cut from plywood: its flat outline in millimetres, with the
// marks drawn on it, its thickness and the side of the boat it goes on.
#pragma once

#include <string>
#include <vector>

namespace tolmar::sheets {

struct MmPoint {
  double x = 0, y = 0;
  bool operator==(const MmPoint&) const = default;
};
using MmPolygon = std::vector<MmPoint>;  // closed, the first point not repeated
using MmPolyline = std::vector<MmPoint>;

enum class PartKind { bottom, plank, deck, floor, transom, pramBow, bulkhead, strap };

struct SheetPart {
  // As the plate files name the plates ("p00", "p03", "deck 2", "transom",
  // "bow"), and "floor 1", "bulkhead 1"; a strap "p03 strap 1".
  std::string name;
  PartKind kind = PartKind::plank;
  int side = 0;  // +1 starboard, -1 port (the mirrored copy), 0 one panel across
  // X along the grain, from the aft end (or the left edge) at X = 0.
  MmPolygon outline;
  std::vector<MmPolyline> marks;  // station ticks, the line of maximum beam
  double thicknessMm = 0;
  bool thicknessAssumed = false;  // a default of its kind, not typed
  double densityKgM2 = 0;         // the mass budget's
};

double polygonArea(const MmPolygon& p);  // mm2, positive whatever the turn
struct MmBox {
  double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
  double width() const { return x1 - x0; }
  double height() const { return y1 - y0; }
};
MmBox boundingBox(const MmPolygon& p);

// The texts of a side: "starboard"/"port" or "tribord"/"bâbord"; empty
// for a panel across.
std::string sideName(int side, int langue);

}  // namespace tolmar::sheets

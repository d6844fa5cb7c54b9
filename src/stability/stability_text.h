// The stability window's and printed page's texts in French (langue 0) and
// English (1).
#pragma once

#include <string>
#include <string_view>

namespace tolmar::stability {

enum class Text {
  windowTitle,   // "Stabilité" / "Stability"
  menuEntry,     // "Stabilité…" / "Stability…"
  printEntry,    // "Stabilité" / "Stability"
  displacement,  // frame of the displacement's source
  fromBudget,    // "from the mass budget"
  typed,
  volume,  // "Displacement (m3)"
  density,
  freshWater,
  seaWater,
  lcg,
  kg,
  equipHeights,  // frame of the equipment's heights
  onKeel,        // "empty: on the keel at its X"
  angles,        // "Heel from / to / step (deg)"
  crewMass,
  crewY,
  curveStep,
  compute,
  close,
  print,
  gzTitle,
  curvesTitle,
  heelAxis,
  gzAxis,
  draftAxis,
  gmLine,
  maxGz,
  vanishing,
  deckEdge,
  area30,
  area40,
  crewHeel,
  crewFreeboard,
  cannotFloat,  // "the hull cannot float here"
  capsizes,
  none,         // "not reached"
  heightsNote,  // "Heights above the lowest point of the hull (keel)."
  gzTable,
  curvesTable,
  curvesUnits,  // the units of the table's columns
  gm,
  loading,  // summary head line of the loading
};

std::string_view text(Text t, int langue);

}  // namespace tolmar::stability

// The centre of gravity from the mass budget: each plate at the centre of
// its own area on the hull surface (bottom, planks, transom, pram bow and
// the deck on the sheer from the mesh's tagged triangles; floors and the
// lower deck at the mean height of their line; bulkheads at the centre of
// their section), each equipment row at a height given for it, by default
// on the keel at its X.  Masses and X as the budget computed them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "hull/hull_store.h"
#include "surface/hull_mesh.h"

namespace tolmar::stability {

struct MassItem {
  int row = 0;      // the mass budget's row: 1..8 plates, 13..18 equipment, 21..24 floors and decks
  int plank = -1;   // for rows 1..4: plank n (0 the bottom)
  double mass = 0;  // kg
  double x = 0, z = 0;  // m, hull axes
};

struct MassCentre {
  double mass = 0;  // kg, sum of the items
  double x = 0;     // m
  double z = 0;     // m, hull axes
  std::vector<MassItem> items;
};

inline constexpr int kEquipmentRows = 6;  // rows 13..18

// h: a store on which the mass budget has run (calcMass).  equipZ: the
// height of rows 13..18 in the hull's axes, NaN for the default (on the
// keel at the row's X).
MassCentre massCentre(const HullStore& h, const HullMesh& mesh,
                      const std::array<double, kEquipmentRows>& equipZ);

// Z of the keel (line 0) at X, between the points that straddle it; the
// nearest end outside them.
double keelZAt(const HullStore& h, double x);

}  // namespace tolmar::stability

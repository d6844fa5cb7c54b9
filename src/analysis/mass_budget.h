// The plates of the mass budget measured on the hull lines: side planks by
// their girth along the length, floors and decks by the plan area inside a
// line, transom, pram bow and bulkheads by the slanted strips of one
// section.  Areas are both sides, m2; centres are X in m; masses kg.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

// The small constant added to an area before it divides a moment.
inline constexpr double kAreaGuard = 0.0000001;

struct PlateMeasure {
  double area = 0;  // m2, both sides
  double x = 0;     // centre X, m
};

// Plank n (0 the bottom), between lines n and n + 1, over points 0..82.
PlateMeasure plankMeasure(const HullStore& h, int n);

// Plan area inside line L, both sides; its height plays no part.
PlateMeasure planMeasure(const HullStore& h, int line);

// The section at point P, from the keel to the last line.
PlateMeasure sectionMeasure(const HullStore& h, int point);

// The section a bulkhead asked for at X = x stands on: 1..81, never the
// ends 0 and 82.
int bulkheadPoint(const HullStore& h, double x);

// Density of plank n: panelDensity(n + 1) up to the second side plank,
// panelDensity(4) above.
double plankDensity(const HullStore& h, int n);

// Store side of the chain: plankArea/X/Mass of planks 0..nChines-1,
// floors 1..nFloors, decks 1..nDecks, transom, bow and the bulkheads at
// points p1, p2.
void calcPlanks(HullStore& h);
void calcFloors(HullStore& h, int nFloors);
void calcDecks(HullStore& h, int nDecks);
void calcTransom(HullStore& h);
void calcBow(HullStore& h);
void calcBulkhead(HullStore& h, int j, double askedX);

}  // namespace tolmar

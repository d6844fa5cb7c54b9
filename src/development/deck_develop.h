// Pattern of a deck closing the hull at one line, between the centre line
// and that line: the length follows the line's arc in profile (X, Z), the
// width is the line's half breadth unchanged.  Written into the same arrays
// as a plank: devXi, devYi = 0 (centre line), devXs = devXi, devYs = half
// breadth, points 0..n+2, shifted so that the aft end lies at X = 0; not
// levelled and not shifted in Y.
#pragma once

#include "development/calc_develop.h"
#include "hull/hull_store.h"

namespace tolmar {

// Here the order of the tables matters: x, y, z are X, half breadth and
// height, in that order.
void calcDevelopDeck(HullStore& h, int n, int line, const TableRef& x, const TableRef& y,
                     const TableRef& z);

void calcDevelopDeck(DevEdges& d, int n, int line, const TableRef& x, const TableRef& y,
                     const TableRef& z);

// The form in use: the deck bounded by line k, points 0..82; on edges of
// one's own, the store unchanged.
void developDeck(HullStore& h, int k);
DevEdges deckEdges(const HullStore& h, int k, DevEdges start = {});

}  // namespace tolmar

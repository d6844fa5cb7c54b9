// The mass budget screen `mass1` as logic: its table of fields by row, the
// captions in both languages, and the calcMass chain from the fields to
// the store and back.  Rows: 1..4 planks, 5 transom, 6 pram bow, 7, 8
// bulkheads, 13..18 equipment, 21, 22 floors, 23, 24 decks, 0 totals.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "hull/hull_store.h"
#include "screens/control.h"

namespace tolmar::analysis {

inline constexpr std::int32_t kInputGreen = rgb(192, 255, 192);
inline constexpr std::int32_t kResultPink = rgb(255, 192, 192);
inline constexpr int kLastMassRow = 24;  // row numbers 0..24, not all in use

struct Mass1 {
  Field title;
  // Text1 density, Text2 area, Text3 mass, Text4 centre X, by row.  An
  // index the table has no control at is not visible.
  ControlArray<0, kLastMassRow> Text1, Text2, Text3, Text4;
  Field Frame1, Frame2, Frame3, Frame4;  // group captions
  ControlArray<0, kLastMassRow> Label3;  // row captions
  ControlArray<1, 4> Label2;             // column heads
  Field Label1, Calcul1;
  bool visible = false;

  i16 nFloors = 1, nDecks = 1;

  Mass1();
};

// Rows that exist, in the order of the table on the screen.
inline constexpr std::array<int, 18> kMassTableRows = {1,  2,  3,  4,  5,  6,  7,  8,  21,
                                                       22, 23, 24, 13, 14, 15, 16, 17, 18};

// Once, when the screen is loaded.
void loadMass(Mass1& s, const HullStore& h);

void setMassTexts(Mass1& s, const HullStore& h);

// The chain, in its order; each step is callable alone.
void calcMass(Mass1& s, HullStore& h);
void setMassRows(Mass1& s, const HullStore& h);
void readMassInputs(Mass1& s, HullStore& h);
void calcPlankRows(Mass1& s, HullStore& h);
void calcFloorRows(Mass1& s, HullStore& h);
void calcDeckRows(Mass1& s, HullStore& h);
void calcTransomRow(Mass1& s, HullStore& h);
void calcBowRow(Mass1& s, HullStore& h);
void calcBulkheadRows(Mass1& s, HullStore& h);
void showMassRows(Mass1& s, const HullStore& h);
void sumMassArea(Mass1& s);
void sumMass(Mass1& s, HullStore& h);
void calcCentreMass(Mass1& s, HullStore& h);

// Enter (13) in a field, or a field losing the focus: calcMass.
void massKeyPress(Mass1& s, HullStore& h, int key);
void massFieldLeft(Mass1& s, HullStore& h);

// The screen becomes active: fields of the plate rows blanked, rows set and
// shown, texts, calcMass.
void massActivated(Mass1& s, HullStore& h);

}  // namespace tolmar::analysis

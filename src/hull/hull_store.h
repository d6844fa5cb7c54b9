// The one hull the program works on: fixed-size tables and scalars, zero at
// start, read and written field by field by every screen and calculation.
// Axes: X from the transom towards the stem, Y across (positive half only),
// Z up; metres.  Typed angles are whole degrees (int16).  Bounds are
// inclusive, first index first, as the names below are used everywhere.
#pragma once

#include <cstdint>
#include <string>

#include "hull/store_arrays.h"

namespace tolmar {

using i16 = std::int16_t;

inline constexpr int kMaxLine = 25;    // lines 0..25
inline constexpr int kLastPoint = 82;  // points 0..82 of a line
inline constexpr int kMaxDev = 90;     // developed edges 0..90

using LineArr = Arr<double, 0, kMaxLine>;
using LineI16 = Arr<i16, 0, kMaxLine>;
using PointTable = Grid<double, 0, kMaxLine, 0, kLastPoint>;  // (line, point)
using BevelTable = Grid<double, 0, kMaxLine, 0, kMaxDev>;     // (line, point)
using PointArr = Arr<double, 0, kLastPoint>;
using StationTable = Grid<double, 0, 85, 0, 35>;  // (point, section point)
using DevArr = Arr<double, 0, kMaxDev>;
using EndPlate = Grid<double, 1, 2, 0, 35>;

struct HullStore {
  // Identity and status.
  i16 langue = 0;  // 0 French, 1 English
  std::string hullName;
  std::string dataTag;
  i16 nChines = 0;
  i16 iMaxBeam = 0;
  double stationAtX = 0;
  i16 stationIndex = 0;

  // Parameters of the hull shape.
  LineI16 plankAngle;  // plank n to the horizontal, degrees; (0) is the deadrise
  i16 keelAdvance = 0;
  i16 bowAngle = 0;
  i16 transomAngle = 0;
  LineI16 bowTurn;      // +1 or -1 for the plank above line n
  LineI16 transomTurn;  // +1 or -1
  double powerFwd = 0, powerAft = 0, shapeAft = 0, shapeFwd = 0, stemShape = 0;
  Arr<float, 0, kMaxLine> lineColor;  // RGB integer, red in the low byte

  // Control values of each line and the plane Z = A + B X + C Y it lies in.
  LineArr xAft, yAft, zAft, xMax, yMax, zMax, xFwd, yFwd, zFwd;
  LineArr planeA, planeB, planeC;

  // Sampled lines, (line 0..25, point 0..82).
  PointTable lineX, lineY, lineZ;

  // The two edges of the bottom plate, paired along its rulings; side 0 on
  // the keel, side 1 on the first chine.  edgeX starts at index -1.
  Grid<double, 0, 1, -1, kMaxDev> edgeX;
  Grid<double, 0, 1, 0, kMaxDev> edgeY, edgeZ;

  // Stations, (point 0..85, section point 0..35).
  StationTable stationX, stationY, stationZ;

  // The plate developed last, and the two end plates.
  DevArr devXi, devYi, devXs, devYs;
  EndPlate transomPlate, bowPlate;

  // Thicknesses, bevels and laps.
  LineArr plankThick;
  double transomThick = 0, bowThick = 0;
  BevelTable bevelAngle;    // radians between the plank below and above a line
  BevelTable bevelWidth;    // lap width that the bevel needs
  BevelTable overlapWidth;  // lap width in use
  i16 overlapMode = 0;

  // Hydrostatics, kept between calculations for the board's drawing.
  PointArr wlX, wlY, wlZ, sectArea, sectX, sectY, sectZ;
  double pitch = 0, dispTarget = 0, xDisp = 0, yDisp = 0, zDisp = 0;

  // Mass budget: kg/m2, m2, m, kg.
  Arr<double, 1, 12> panelDensity;
  Arr<double, 1, 2> floorDensity, deckDensity;
  LineArr plankArea, plankX, plankMass;
  Arr<double, 1, 2> floorArea, floorX, floorMass;
  Arr<double, 1, 2> deckArea, deckX, deckMass;
  double transomArea = 0, transomX = 0, transomMass = 0;
  double bowArea = 0, bowX = 0, bowMass = 0;
  Arr<double, 0, 3> bulkArea, bulkX, bulkMass;
  Arr<double, 1, 6> equipMass, equipX;
  double totalMass = 0, xMass = 0;

  // View transform, single precision: board (twips of the picture) and paper.
  float scaleX = 0, scaleY = 0, scaleZ = 0, originX = 0, originY = 0, originZ = 0;
  float bodyAxis = 0;
  float printScaleX = 0, printScaleY = 0, printScaleZ = 0;
  float printOriginX = 0, printOriginY = 0, printOriginZ = 0;

  // The coordinate tables of a plate's two edges for the development:
  // line tables or bottom edges, through one kind of view.
  TableRef lineXRef() const { return lineX.ref(); }
  TableRef lineYRef() const { return lineY.ref(); }
  TableRef lineZRef() const { return lineZ.ref(); }
  TableRef edgeXRef() const { return edgeX.ref(); }
  TableRef edgeYRef() const { return edgeY.ref(); }
  TableRef edgeZRef() const { return edgeZ.ref(); }

  // Field by field, so that a test can tell that an event left the store alone.
  bool operator==(const HullStore&) const = default;
};

// RGB(r, g, b) as the 32-bit colour integer, red in the low byte.
constexpr std::int32_t rgb(int r, int g, int b) { return r | (g << 8) | (b << 16); }

}  // namespace tolmar

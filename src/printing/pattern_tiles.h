// Full-size patterns cut into tiles of paper: how a plate's box at 1:1 is
// laid on the paper (turned a quarter when that takes fewer sheets) and
// into how many rows and columns of tiles, each overlapping the next by a
// band where registration crosses let the tiles be lined up.  Millimetres.
#pragma once

#include <string>

namespace tolmar {

// Free paper kept around a plate's box, so that no line of the outline
// runs along the edge of a tile.
inline constexpr double kPatternBorderMm = 5;

// The overlap a user may ask for: the registration crosses need room.
inline constexpr double kMinOverlapMm = 5;
inline constexpr double kMaxOverlapMm = 50;
inline constexpr double kPatternOverlapMm = 10;  // unless told

struct PlateTiling {
  bool turned = false;  // the plate's X runs down the paper, else across
  // The plate's box with its border, as laid on the paper: u across, v down.
  double posterW = 0, posterH = 0;
  double tileW = 0, tileH = 0;  // the drawing of one tile
  double overlap = 0;
  int cols = 1, rows = 1;

  double stepU() const { return tileW - overlap; }
  double stepV() const { return tileH - overlap; }
  int count() const { return cols * rows; }
  // The tile's window on the poster: [u0, u0 + tileW] x [v0, v0 + tileH].
  double u0(int col) const { return col * stepU(); }
  double v0(int row) const { return row * stepV(); }
  // The extent of all tiles together.
  double gridW() const { return u0(cols - 1) + tileW; }
  double gridH() const { return v0(rows - 1) + tileH; }
};

// A plate whose box is lengthMm along its X and widthMm along its Y, on
// tiles of tileW x tileH mm overlapping by overlapMm: the way with fewer
// tiles, across when both give as many.  The tile must be larger than
// twice the overlap; otherwise one tile of nothing comes back (count 0).
PlateTiling tilePlate(double lengthMm, double widthMm, double tileW, double tileH,
                      double overlapMm);

// Empty when the overlap fits tiles of tileW x tileH, else the reason in
// langue (0 French, 1 English).
std::string overlapError(double overlapMm, double tileW, double tileH, int langue);

}  // namespace tolmar

// The document of full-size patterns: which plates, each laid on tiles of
// the paper at 1:1, the map pages first and then every tile a page.  The
// plan depends only on the plates, the size of the page's drawing area and
// the overlap, so that a page count is known before anything is drawn.
#pragma once

#include <string>
#include <vector>

#include "development/developed_plate.h"
#include "printing/flat_clip.h"
#include "printing/pattern_tiles.h"

namespace tolmar {

// The head of a tile page, above its drawing.
inline constexpr double kPatternHeadMm = 12;

// A plate's flat metres to the poster's millimetres (u across, v down),
// its box moved to the border's corner.
struct PosterMap {
  double xMin = 0, yMin = 0, xMax = 0, yMax = 0;
  bool turned = false;
  double u(const FlatPoint& p) const;
  double v(const FlatPoint& p) const;
};

struct PatternEntry {
  const DevelopedPlate* plate = nullptr;
  PlateTiling tiling;
  PosterMap map;
  // The page of each tile, rows one after the other, counted from 1; 0 for
  // a tile that no line of the plate crosses, which is not printed.
  std::vector<int> pages;
  int printed = 0;  // tiles printed
  // Its small figure on the map: the map page (from 1), the top of its
  // caption (mm from the top of the drawing area) and the figure's scale.
  int mapPage = 1;
  double mapTop = 0, mapScale = 0;
  int page(int row, int col) const {
    return pages[static_cast<std::size_t>(row * tiling.cols + col)];
  }
  // The poster's window of a tile.
  ClipBox window(int row, int col) const {
    return {tiling.u0(col), tiling.v0(row), tiling.u0(col) + tiling.tileW,
            tiling.v0(row) + tiling.tileH};
  }
};

struct PatternPlan {
  std::vector<PatternEntry> entries;
  int mapPages = 0;
  int pages = 0;
  double areaWmm = 0, areaHmm = 0;  // the page's drawing area
};

// The plates chosen by name ("p01", "deck2" or "deck 2", "transom", "bow",
// any case), in the order of `plates`; with no names, every plate but the
// decks.  Empty plates are left out.  Unknown names come back in `unknown`.
std::vector<const DevelopedPlate*> choosePlates(const std::vector<DevelopedPlate>& plates,
                                                const std::vector<std::string>& names,
                                                std::vector<std::string>& unknown);

// Heights on the map page: a plate's caption line and the most its small
// figure may take.
inline constexpr double kMapCaptionMm = 6;
inline constexpr double kMapFigureMm = 40;
inline constexpr double kMapHeadMm = 14;

// The plate's lines on the poster, mm: the outline (with the lap-strake
// material where there is one), the lap line and the station ticks.
enum class PosterLine { outline, lap, tick };
struct PosterSegment {
  double u1, v1, u2, v2;
  PosterLine kind;
};
std::vector<PosterSegment> posterLines(const DevelopedPlate& p, const PosterMap& m);

// The plan on a page whose drawing area is areaW x areaH mm.
PatternPlan planPatterns(const std::vector<const DevelopedPlate*>& plates, double areaWmm,
                         double areaHmm, double overlapMm);

}  // namespace tolmar

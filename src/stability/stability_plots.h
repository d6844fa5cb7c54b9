// The stability figures drawn on the program's DrawingSurface, so that the
// window and the printer show the same: the righting-arm curve with its
// marked angles, the upright hydrostatic curves against draft, the tables
// and the summary lines.  Units of the surface (twips), Y downward.
#pragma once

#include <string>
#include <vector>

#include "board/drawing_surface.h"
#include "stability/stability_run.h"

namespace tolmar::stability {

struct PlotBox {
  float left = 0, top = 0, width = 0, height = 0;
};

void drawGzPlot(DrawingSurface& s, const PlotBox& box, const StabilityResult& r, int langue);

// Each curve scaled to its own range across the width, with its range in
// the legend; the draft upward.
void drawCurvesPlot(DrawingSurface& s, const PlotBox& box, const std::vector<UprightRow>& rows,
                    int langue);

// The loading and the marks of the curve, one line each.
std::vector<std::string> summaryLines(const StabilityResult& r, int langue);

struct Table {
  std::vector<std::string> head;
  std::vector<std::vector<std::string>> rows;
};
Table gzTable(const StabilityResult& r, int langue);
Table curvesTable(const std::vector<UprightRow>& rows, int langue);

// Rows from `first` on, in columns of equal width across `width`, from
// `top`; returns the index of the first row that did not fit above
// `bottom`.
std::size_t drawTable(DrawingSurface& s, const Table& t, std::size_t first, float left, float top,
                      float width, float bottom);

}  // namespace tolmar::stability

// An outline seen as columns across the grain: for each column of X
// (of width `step`, from `start`), the lowest and highest Y of the outline
// over the whole column, rounded outwards.  A column holds all of the
// outline that lies in it (holes and notches filled), so two outlines
// whose column spans never meet cannot meet either.
#pragma once

#include <polyclipping/clipper.hpp>
#include <vector>

namespace tolmar::sheets {

struct ColumnSpan {
  ClipperLib::cInt lo = 0, hi = 0;
};

// Columns start, start + step, ... up to the outline's right end; column
// j covers [start + j step, start + (j + 1) step + reach] (columns that
// overlap by `reach` hold the outline wherever it lies up to `reach`
// further left).  Columns the outline does not reach (when start lies left
// of it) are empty (lo > hi).
std::vector<ColumnSpan> columnProfile(const ClipperLib::Path& p, ClipperLib::cInt start,
                                      ClipperLib::cInt step, ClipperLib::cInt reach = 0);

}  // namespace tolmar::sheets

// The frame of a drawing page: head, scale bar and the axes of its view.
#pragma once

#include "printing/print_job.h"

namespace tolmar {

enum class FrameView { Sheet = 0, Plan = 1, Profile = 2, Sections = 3 };

// Font, the head (hull name, date, page) at (681.6, 200), the scale bar
// under it, and the dash-dot axes of the view with their arrows and
// letters.  Needs pageScale first.
void printFrame(PrintJob& job, FrameView view);
inline void printFrame(PrintJob& job, int view) { printFrame(job, static_cast<FrameView>(view)); }

// The scale bar 180 twips under the current position: a tick and a label
// for each mark that suits printScaleX, and under the ticks a thin bar
// from 0 to each mark, each at its own height.
void ImprimeEchelle(DrawingSurface& s, const HullStore& h);

}  // namespace tolmar

// One print document: the printer's surface, the hull it shows and the
// host that gives the date and the busy pointer.  The page is the
// printer's Width x Height in twips, whole numbers.
#pragma once

#include <cmath>
#include <string>

#include "board/drawing_surface.h"
#include "hull/hull_store.h"
#include "printing/print_host.h"

namespace tolmar {

struct PrintJob {
  DrawingSurface& s;
  HullStore& h;
  PrintHost& host;

  double pageWidth() const { return std::round(s.Width()); }
  double pageHeight() const { return std::round(s.Height()); }
  std::string today() const { return dateText(host.today()); }
  bool french() const { return h.langue == 0; }
};

// The printer's font, set at the start of every document and again by the
// page frame and the station sheet.
inline constexpr const char* kPrinterFont = "Arial";

// Left margin of every drawing page, 1.2 cm of 568 twips.
inline constexpr double kLeftMargin = 681.6;

}  // namespace tolmar

// CmDialog2, the printer dialog whose choice becomes the program's printer,
// and the run of one print document: on that printer, or, with no printer
// installed (or a PDF file chosen in the dialog), into a PDF file that
// replaces its target only once the document is complete.
#pragma once

#include <functional>
#include <memory>

#include "board/drawing_surface.h"
#include "hull/hull_store.h"

class QPrinter;
class QWidget;

namespace tolmar::gui {

class CmDialog1;

inline constexpr const char* kPrintErrorTitle = "Tolmar2008 - Printing";
inline constexpr const char* kPdfTitle = "Tolmar2008 - Print to PDF file";
inline constexpr const char* kPdfFilter = "PDF (*.PDF)|*.PDF";

class CmDialog2 {
 public:
  explicit CmDialog2(QWidget* parent);
  ~CmDialog2();
  CmDialog2(const CmDialog2&) = delete;
  CmDialog2& operator=(const CmDialog2&) = delete;

  // fmenu_PSetup: the platform's printer dialog; an accepted choice is the
  // printer of every later document.  Its "Calibration" tab, in langue,
  // holds the printer's factors and the PDF margin, remembered between
  // runs.  Unattended, nothing is shown.
  bool setup(int langue);

  QPrinter& printer();

  // Documents go to a PDF file: no printer installed, the dialog chose a
  // PDF file, or pdfOnly.
  bool toPdf() const;

  bool pdfOnly = false;  // never a printer (tests, and machines without one)
  void setUnattended(bool on) { unattended_ = on; }

 private:
  QWidget* parent_;
  std::unique_ptr<QPrinter> printer_;
  bool unattended_ = false;
};

enum class PrintOutcome { printed, cancelled, failed };

// One document: `draw` runs the page sequence to its EndDoc on the
// program's printer, or on a PDF whose file is asked in `files` (proposed
// name hullName ".PDF").  A cancelled file dialog prints nothing; a printer
// that refuses, a file that cannot be written or an exception from `draw`
// show the system's text under kPrintErrorTitle and leave any former file
// as it was.  The pages lie inside the printer's margins, or the remembered
// PDF margin, drawn to the remembered calibration.  The busy pointer stands while the pages are
// drawn.
PrintOutcome printDocument(CmDialog1& files, CmDialog2& printers, const HullStore& h,
                           const std::function<void(DrawingSurface&)>& draw);

}  // namespace tolmar::gui

// The print menu of the board: each entry one document on the program's
// printer, or in a PDF file when there is none; and the printer dialog.
#include <QPrinter>

#include "development/developed_plate.h"
#include "printing/panel_offsets_report.h"
#include "printing/pattern_pages.h"
#include "printing/print_host.h"
#include "printing/print_job.h"
#include "printing/print_menu.h"
#include "printing/stability_page.h"
#include "windows/board_commands.h"
#include "windows/command_steps.h"
#include "windows/file_dialog.h"
#include "windows/plate_choice_dialog.h"
#include "windows/printer_dialog.h"

namespace tolmar::gui {

namespace {

// The date of the system and the busy pointer of the board.
class BoardPrintHost : public PrintHost {
 public:
  explicit BoardPrintHost(CmDialog1& files) : files_(files) {}
  void setBusy(bool busy) override { files_.setBusy(busy); }

 private:
  CmDialog1& files_;
};

}  // namespace

bool printEntry(BoardWindows& w, HullStore& h, board::BoardState& b, board::BoardControl c) {
  using C = board::BoardControl;
  if (c == C::fmenu_PSetup) {
    w.printers().setup(h.langue);
    return true;
  }
  BoardPrintHost host(w.files());
  const int step = b.stepIndex;
  std::function<void(PrintJob&)> pages;
  switch (c) {
    case C::fmenu_P_Data:
      pages = [](PrintJob& job) { fmenu_P_Data(job); };
      break;
    case C::fmenu_P_Dessin:
      pages = [step](PrintJob& job) { fmenu_P_Dessin(job, step); };
      break;
    case C::fmenu_P_Develop:
      pages = [step](PrintJob& job) { fmenu_P_Develop(job, step); };
      break;
    case C::fmenu_P_Station:
      pages = [](PrintJob& job) { fmenu_P_Station(job); };
      break;
    case C::fmenu_P_Tout:
      pages = [step](PrintJob& job) { fmenu_P_Tout(job, step); };
      break;
    case C::fmenu_P_Patterns: {
      const std::vector<DevelopedPlate> plates = developAll(h);
      const auto choice =
          askPlateChoice(w.board(), w.unattended(), PlateDocument::patterns, plates, h.langue);
      if (!choice) return true;
      const std::string paper = w.printers().printer().pageLayout().pageSize().name().toStdString();
      pages = [paper, &host, choice](PrintJob& job) {
        const std::vector<DevelopedPlate> plates = developAll(job.h);
        std::vector<std::string> unknown;
        const PatternPlan plan =
            planPatterns(job.s, choosePlates(plates, choice->plates, unknown), choice->valueMm);
        printPatterns(job.s, job.h, host, plan, paper);
      };
      break;
    }
    case C::fmenu_P_Panels: {
      const auto choice = askPlateChoice(w.board(), w.unattended(), PlateDocument::panelOffsets,
                                         developAll(h), h.langue);
      if (!choice) return true;
      pages = [choice](PrintJob& job) { fmenu_P_Panels(job, choice->valueMm, choice->plates); };
      break;
    }
    case C::fmenu_P_Check:
      pages = [](PrintJob& job) { fmenu_P_Check(job); };
      break;
    default:
      return false;
  }
  printDocument(w.files(), w.printers(), h, [&](DrawingSurface& s) {
    PrintJob job{s, h, host};
    pages(job);
  });
  return true;
}

bool printStabilityEntry(BoardWindows& w, HullStore& h) {
  BoardPrintHost host(w.files());
  return printDocument(w.files(), w.printers(), h, [&](DrawingSurface& s) {
           PrintJob job{s, h, host};
           fmenu_P_Stability(job);
         }) == PrintOutcome::printed;
}

}  // namespace tolmar::gui

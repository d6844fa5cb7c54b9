#include "printing/print_menu.h"

#include <algorithm>

#include "development/developed_plate.h"
#include "printing/data_report.h"
#include "printing/end_tables.h"
#include "printing/offset_tables.h"
#include "printing/page_frame.h"
#include "printing/page_scale.h"
#include "printing/printed_plates.h"
#include "printing/printed_views.h"

namespace tolmar {

namespace {

int lines(const HullStore& h) { return std::clamp<int>(h.nChines, 0, kMaxLine); }

// The three pages of the views; with stepIndex >= 1 the planks too.
void drawingPages(PrintJob& job, int stepIndex) {
  const int n = lines(job.h);
  const bool planks = stepIndex >= 1;
  printFrame(job, FrameView::Profile);
  printProfile(job, 0);
  if (planks) printProfile(job, n);
  job.s.NewPage();
  printFrame(job, FrameView::Plan);
  printPlan(job, 0);
  if (planks) printPlan(job, n);
  job.s.NewPage();
  printFrame(job, FrameView::Sections);
  printSections(job, planks ? 1 : 0);
}

}  // namespace

void fmenu_P_Data(PrintJob& job) {
  job.s.FontName = kPrinterFont;
  printData(job);
  job.s.EndDoc();
}

void fmenu_P_Dessin(PrintJob& job, int stepIndex) {
  BusyScope busy(job.host);
  job.s.FontName = kPrinterFont;
  pageScale(job);
  drawingPages(job, stepIndex);
  job.s.EndDoc();
}

void fmenu_P_Develop(PrintJob& job, int stepIndex) {
  BusyScope busy(job.host);
  job.s.FontName = kPrinterFont;
  pageScale(job);
  printFrame(job, FrameView::Sheet);
  printPlate(job, developPlate(job.h, PlateKind::bottom, 0));
  if (stepIndex >= 1) {
    for (int k = 1; k <= lines(job.h) - 1; ++k) {
      job.s.NewPage();
      printFrame(job, FrameView::Sheet);
      printPlate(job, developPlate(job.h, PlateKind::plank, k));
    }
    job.s.NewPage();
    printFrame(job, FrameView::Sheet);
    printEndPlates(job);
  }
  job.s.EndDoc();
}

void fmenu_P_Station(PrintJob& job) {
  pageScale(job);
  ImprimeStation(job, job.h.stationIndex);
  job.s.EndDoc();
}

void fmenu_P_Tout(PrintJob& job, int stepIndex) {
  BusyScope busy(job.host);
  const int n = lines(job.h);
  job.s.FontName = kPrinterFont;
  printData(job);
  job.s.NewPage();
  pageScale(job);
  drawingPages(job, stepIndex);
  const bool planks = stepIndex >= 1;
  for (int i = 0; i <= (planks ? n : 1); ++i) printOffsets(job, i);
  job.s.NewPage();
  const DevelopedPlate bottom = developPlate(job.h, PlateKind::bottom, 0);
  printFrame(job, FrameView::Plan);
  printPlate(job, bottom);
  printPlateTable(job, bottom);
  if (!planks) {
    job.s.EndDoc();
    return;
  }
  for (int k = 1; k <= n - 1; ++k) {
    job.s.NewPage();
    const DevelopedPlate plank = developPlate(job.h, PlateKind::plank, k);
    printFrame(job, FrameView::Plan);
    printPlate(job, plank);
    printPlateTable(job, plank);
  }
  job.s.NewPage();
  printFrame(job, FrameView::Plan);
  printEndPlates(job);
  printEndTables(job);
  job.s.EndDoc();
}

}  // namespace tolmar

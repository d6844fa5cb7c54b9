#include "analysis/analysis_screens.h"

#include "board/water_line.h"
#include "text/number_format.h"

namespace tolmar::analysis {

AnalysisScreens::AnalysisScreens(HullStore& h) : h_(h) {}

void AnalysisScreens::open() {
  if (!loaded_) {
    loadHydro(hydro);
    loadMass(mass, h_);
    loaded_ = true;
  }
  hydro.visible = true;
  activate(ActiveScreen::hydro1);
  mass.visible = true;
  activate(ActiveScreen::mass1);
}

void AnalysisScreens::activate(ActiveScreen s) {
  if (s == active_) return;
  const ActiveScreen was = active_;
  active_ = s;
  if (s == ActiveScreen::hydro1) hydroActivated(hydro, h_);
  if (s == ActiveScreen::mass1) massActivated(mass, h_);
  if (was == ActiveScreen::hydro1) hydroDeactivated(hydro, h_);
  if (was == ActiveScreen::mass1) pushDisplacement();
}

void AnalysisScreens::pushDisplacement() {
  calcMass(mass, h_);
  hydro.Text1(0).text = formatNumber(h_.totalMass / 1000, "0.000");
  selectHydroOption(hydro, h_, 0);
  activate(ActiveScreen::hydro1);
}

void AnalysisScreens::quit(DrawingSurface& plan) {
  mass.visible = false;
  hydro.visible = false;
  active_ = ActiveScreen::other;  // hidden, not left for another screen
  if (showBoard) showBoard();
  drawWaterline(plan, h_);
}

void AnalysisScreens::closeHydro() {
  calcHydro(hydro, h_);
  hydro.visible = false;
  mass.visible = false;
  active_ = ActiveScreen::other;
}

}  // namespace tolmar::analysis

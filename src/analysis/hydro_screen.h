// The hydrostatics screen `hydro1` as logic: its fields and captions in
// both languages, its mode, its events, and calcHydro, which floats the
// hull for a displacement (mode 0) or at a waterline (mode 1) and writes
// the results and the comment line.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "analysis/hydro_solver.h"
#include "hull/hull_store.h"
#include "screens/control.h"

namespace tolmar::analysis {

inline constexpr std::int32_t kPaleCyan = rgb(192, 255, 255);
inline constexpr std::int32_t kDeckWarning = rgb(255, 0, 0);

inline constexpr int kEnterKey = 13;

struct Hydro1 {
  Field title;
  ControlArray<0, 1> Text1;    // displacement m3, waterline height m
  ControlArray<0, 0> Text3;    // pitch, degrees
  ControlArray<0, 0> Label3;   // caption of Text3(0)
  ControlArray<0, 1> Option1;  // mode 0, mode 1
  Field Calcul1, cdQuit;
  ControlArray<0, 1> Label2;  // comment; waterplane area and centre
  ControlArray<0, 2> Label1;  // instructions
  bool visible = false;

  i16 mode = 0;
  i16 immersedChine = -1;
  HydroOutcome last;  // the last calculation's volume, waterplane, passes

  // The window repaints the screen: after each pass of the solver and at
  // the end of calcHydro.  The busy pointer goes on and off around it.
  std::function<void()> repaint;
  std::function<void(bool on)> busyPointer;

  Hydro1();
};

// Once, when the screen is loaded: the comments blanked.
void loadHydro(Hydro1& s);

// Captions from h.langue; the fields keep their texts.
void setHydroTexts(Hydro1& s, const HullStore& h);

// The action of Calcul1, and of most events below.
void calcHydro(Hydro1& s, HullStore& h);

// Choosing Option1(n) (0 or 1): if it was not chosen, its click runs:
// mode := n, then calcHydro.  Another n is ignored.
void selectHydroOption(Hydro1& s, HullStore& h, int n);
void clickHydroOption(Hydro1& s, HullStore& h, int n);

// A key in Text1(n): Enter chooses Option1(n), then calcHydro.
void hydroKeyPress(Hydro1& s, HullStore& h, int n, int key);

// The screen becomes active: texts, a first waterline at a hundredth of
// the length in mode 1 when no mass is known, the pitch shown, calcHydro.
void hydroActivated(Hydro1& s, HullStore& h);
void hydroDeactivated(Hydro1& s, HullStore& h);

// The comment line and the area and centre lines, from the outcome.
void hydroComments(Hydro1& s, const HullStore& h, const HydroOutcome& o);

}  // namespace tolmar::analysis

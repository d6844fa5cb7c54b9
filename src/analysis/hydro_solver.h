// Floating the hull: one integration pass over the 83 sections, the single
// pass at a given waterline (mode 1) and the solver for a displacement
// (mode 0), whose outer loop trims the pitch towards xMass and whose inner
// loop finds the height.  Results go to the store's wl and sect tables.
#pragma once

#include <functional>

#include "hull/hull_store.h"

namespace tolmar {

// Volume m3, waterplane area m2 (both sides) and moments of the volume.
struct HydroSums {
  double V = 0, Aw = 0, Mx = 0, My = 0, Mz = 0;
};

// What a counted pass learns of the planks under water.
struct Immersion {
  i16 immersedChine = -1;   // highest line wholly under water at some section
  bool allImmersed = true;  // every section under its last line
};

// The X at which the pitched level of section i is taken.
enum class LevelRef {
  firstChine,     // lineX(1, i): mode 1 and the solver's first pass
  lastWaterline,  // wlX(i) of the pass before
};

// What a pass writes: the water at each section and the section's
// immersed area and centre, the pitch that the solver trims and the
// centre of the volume.  The store keeps one for the board's drawing; the
// functions on a `const HullStore&` below work on one of their own.
struct HydroState {
  PointArr wlX, wlY, wlZ, sectArea, sectX, sectY, sectZ;
  double pitch = 0, xDisp = 0, yDisp = 0, zDisp = 0;

  static HydroState of(const HullStore& h);
  void storeInto(HullStore& h) const;
};

// Level of section i: tan(pitch) x (reference X) + height.  A pass is
// counted when `counted` is given; it then raises immersedChine and clears
// allImmersed.
HydroSums integratePass(HullStore& h, double height, LevelRef ref, Immersion* counted);
// The same on the lines of `lines`, writing into `st` only.
HydroSums integratePass(const HullStore& lines, HydroState& st, double height, LevelRef ref,
                        Immersion* counted);

struct HydroOutcome {
  HydroSums sums;
  double zWL = 0;  // height of the water at X = 0, last tried
  Immersion immersion;
  int outerPasses = 0;
  int innerPasses = 0;  // counted passes of the solver, all outer passes
};

inline constexpr int kSolverPasses = 30;               // outer and inner limits
inline constexpr double kDispTolerance = 0.0001;       // m3
inline constexpr double kEmptyWaterplane = 0.0000001;  // m2

// Mode 1: one counted pass at the waterline zWL and the store's pitch.
HydroOutcome floatAtWaterline(HullStore& h, double zWL);
HydroOutcome floatAtWaterline(const HullStore& lines, HydroState& st, double zWL);

// Called after each counted pass of the solver with the height tried, so
// that the screen can show it and repaint.
using SolverPassHook = std::function<void(double zWL)>;

// Mode 0: floats h.dispTarget starting from zWL and h.pitch; writes
// h.pitch and the centres.  At most 30 outer passes of one first pass and
// 30 counted passes each.  A hull with no floor for the waterplane (no
// length or no beam) takes no first step: dz = 0.
HydroOutcome floatAtDisplacement(HullStore& h, double zWL, const SolverPassHook& afterPass = {});
// The same for a displacement and a centre of mass of one's own, on the
// lines of `lines`, writing into `st` only (pitch included).
HydroOutcome floatAtDisplacement(const HullStore& lines, HydroState& st, double dispTarget,
                                 double xMass, double zWL, const SolverPassHook& afterPass = {});

// xDisp, yDisp, zDisp from the moments; all 0 for V <= 0.
void storeCentres(HullStore& h, const HydroSums& s);
void storeCentres(HydroState& st, const HydroSums& s);

// Hydrostatics as a value: the pass or the solver from the store's lines,
// the user's hull unchanged.  state holds the seven tables, the pitch and
// the centres; outcome the sums (volume, waterplane, moments), the water
// height, the passes and what is under water (the comment state).
struct HydroResult {
  HydroState state;
  HydroOutcome outcome;
  double volume() const { return outcome.sums.V; }
  double waterplaneArea() const { return outcome.sums.Aw; }
};

// Mode 1 at waterline height zWL (at X = 0) and pitch (radians).
HydroResult hydroAtWaterline(const HullStore& h, double zWL, double pitch);
// Mode 0: the solver for disp (m3) trimming towards xMass (m), from zWL
// and pitch.
HydroResult hydroForDisplacement(const HullStore& h, double disp, double xMass, double zWL,
                                 double pitch, const SolverPassHook& afterPass = {});

}  // namespace tolmar

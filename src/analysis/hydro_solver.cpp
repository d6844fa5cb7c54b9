#include "analysis/hydro_solver.h"

#include <cmath>

#include "analysis/calc_section.h"

namespace tolmar {

namespace {

int sgn(double v) { return (v > 0) - (v < 0); }

}  // namespace

HydroState HydroState::of(const HullStore& h) {
  return HydroState{h.wlX,   h.wlY,   h.wlZ,   h.sectArea, h.sectX, h.sectY,
                    h.sectZ, h.pitch, h.xDisp, h.yDisp,    h.zDisp};
}

void HydroState::storeInto(HullStore& h) const {
  h.wlX = wlX;
  h.wlY = wlY;
  h.wlZ = wlZ;
  h.sectArea = sectArea;
  h.sectX = sectX;
  h.sectY = sectY;
  h.sectZ = sectZ;
  h.pitch = pitch;
  h.xDisp = xDisp;
  h.yDisp = yDisp;
  h.zDisp = zDisp;
}

HydroSums integratePass(HullStore& h, double height, LevelRef ref, Immersion* counted) {
  HydroState st = HydroState::of(h);
  const HydroSums s = integratePass(h, st, height, ref, counted);
  st.storeInto(h);
  return s;
}

HydroSums integratePass(const HullStore& lines, HydroState& h, double height, LevelRef ref,
                        Immersion* counted) {
  const HullStore& g = lines;
  const double slope = std::tan(h.pitch);
  const int top = lastLine(g);
  HydroSums s;
  for (int i = 0; i <= kLastPoint; ++i) {
    const double xRef = ref == LevelRef::firstChine ? g.lineX(1, i) : h.wlX(i);
    h.wlZ(i) = slope * xRef + height;
    const SectionCut c = calcSection(g, i, h.wlZ(i));
    h.wlY(i) = c.wlY;
    h.sectArea(i) = c.area;
    h.sectX(i) = c.x;
    h.sectY(i) = c.yCentre;
    h.sectZ(i) = c.zCentre;
    h.wlX(i) = h.sectX(i);
    if (counted) {
      if (c.chineOut > counted->immersedChine) counted->immersedChine = c.chineOut;
      if (c.chineOut < top) counted->allImmersed = false;
    }
    if (i == 0) continue;
    const double dx = g.lineX(0, i) - g.lineX(0, i - 1);
    const double dV = dx * (h.sectArea(i - 1) + h.sectArea(i)) / 2;
    s.V += dV;
    s.Mx += (h.sectX(i - 1) + h.sectX(i)) * dV / 2;
    s.My += (h.sectY(i - 1) + h.sectY(i)) * dV / 2;
    s.Mz += (h.sectZ(i - 1) + h.sectZ(i)) * dV / 2;
    s.Aw += dx * (h.wlY(i - 1) + h.wlY(i));
  }
  return s;
}

void storeCentres(HullStore& h, const HydroSums& s) {
  HydroState st = HydroState::of(h);
  storeCentres(st, s);
  st.storeInto(h);
}

void storeCentres(HydroState& h, const HydroSums& s) {
  if (s.V > 0) {
    h.xDisp = s.Mx / s.V;
    h.yDisp = s.My / s.V;
    h.zDisp = s.Mz / s.V;
  } else {
    h.xDisp = h.yDisp = h.zDisp = 0;
  }
}

HydroOutcome floatAtWaterline(HullStore& h, double zWL) {
  HydroState st = HydroState::of(h);
  const HydroOutcome out = floatAtWaterline(h, st, zWL);
  st.storeInto(h);
  return out;
}

HydroOutcome floatAtWaterline(const HullStore& h, HydroState& st, double zWL) {
  HydroOutcome out;
  out.zWL = zWL;
  out.immersion = Immersion{};
  out.sums = integratePass(h, st, zWL, LevelRef::firstChine, &out.immersion);
  return out;
}

HydroOutcome floatAtDisplacement(HullStore& h, double zWL, const SolverPassHook& afterPass) {
  HydroState st = HydroState::of(h);
  SolverPassHook hook;
  if (afterPass)
    hook = [&](double z) {
      st.storeInto(h);  // the screen shows the store as it stands after each pass
      afterPass(z);
    };
  const HydroOutcome out = floatAtDisplacement(h, st, h.dispTarget, h.xMass, zWL, hook);
  st.storeInto(h);
  return out;
}

HydroOutcome floatAtDisplacement(const HullStore& g, HydroState& h, double dispTarget, double xMass,
                                 double zWL, const SolverPassHook& afterPass) {
  HydroOutcome out;
  const double length = g.xFwd(1);
  double pitchStep = -0.03;
  HydroSums& s = out.sums;
  for (;;) {
    double zPrev = zWL;
    float relax = 0.85f;
    int inner = 0;
    s = integratePass(g, h, zPrev, LevelRef::firstChine, nullptr);
    const double awFloor = length * 0.2 * g.yMax(1);
    if (awFloor > s.Aw) s.Aw = awFloor;
    double dz = s.Aw > 0 ? (dispTarget - s.V) * 0.3 / s.Aw : 0;
    do {
      zWL = zPrev + dz;
      const double vPrev = s.V, awPrev = s.Aw;
      out.immersion = Immersion{0, true};
      s = integratePass(g, h, zWL, LevelRef::lastWaterline, &out.immersion);
      ++inner;
      ++out.innerPasses;
      if (afterPass) afterPass(zWL);
      if (std::fabs(dispTarget - s.V) < kDispTolerance) break;
      if (s.Aw <= kEmptyWaterplane) {
        out.immersion.immersedChine = static_cast<i16>(zWL < 0 ? -1 : g.nChines);
        break;
      }
      if (sgn(s.V - dispTarget) != sgn(vPrev - dispTarget)) {
        dz *= 0.4;
        s.V = vPrev;
        s.Aw = awPrev;
        relax = static_cast<float>(relax * 0.75);
      } else {
        zPrev = zWL;
        dz = (dispTarget - s.V) / ((awPrev + s.Aw) * 0.5) * relax;
        relax = static_cast<float>(relax * 1.05);
      }
    } while (inner < kSolverPasses);

    storeCentres(h, s);
    const double gap = xMass - h.xDisp;
    const bool steering = xMass > length * 0.1;
    if (steering && std::fabs(gap) > length * 0.002) {
      double step = std::fabs(pitchStep) * sgn(gap);
      if (sgn(step) != sgn(pitchStep)) {
        step *= 0.3;
        pitchStep = step;
      }
      h.pitch += step;
    }
    ++out.outerPasses;
    if (!steering || out.outerPasses >= kSolverPasses ||
        std::fabs(h.xDisp - xMass) <= length * 0.002)
      break;
  }
  out.zWL = zWL;
  return out;
}

HydroResult hydroAtWaterline(const HullStore& h, double zWL, double pitch) {
  HydroResult r;
  r.state = HydroState::of(h);
  r.state.pitch = pitch;
  r.outcome = floatAtWaterline(h, r.state, zWL);
  storeCentres(r.state, r.outcome.sums);
  return r;
}

HydroResult hydroForDisplacement(const HullStore& h, double disp, double xMass, double zWL,
                                 double pitch, const SolverPassHook& afterPass) {
  HydroResult r;
  r.state = HydroState::of(h);
  r.state.pitch = pitch;
  r.outcome = floatAtDisplacement(h, r.state, disp, xMass, zWL, afterPass);
  storeCentres(r.state, r.outcome.sums);
  return r;
}

}  // namespace tolmar

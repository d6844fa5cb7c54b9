#include "analysis/hydro_solver.h"

#include <cmath>

#include "analysis/calc_section.h"

namespace tolmar {

namespace {

int sgn(double v) { return (v > 0) - (v < 0); }

}  // namespace

HydroSums integratePass(HullStore& h, double height, LevelRef ref, Immersion* counted) {
  const double slope = std::tan(h.pitch);
  const int top = lastLine(h);
  HydroSums s;
  for (int i = 0; i <= kLastPoint; ++i) {
    const double xRef = ref == LevelRef::firstChine ? h.lineX(1, i) : h.wlX(i);
    h.wlZ(i) = slope * xRef + height;
    const SectionCut c = calcSection(h, i, h.wlZ(i));
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
    const double dx = h.lineX(0, i) - h.lineX(0, i - 1);
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
  if (s.V > 0) {
    h.xDisp = s.Mx / s.V;
    h.yDisp = s.My / s.V;
    h.zDisp = s.Mz / s.V;
  } else {
    h.xDisp = h.yDisp = h.zDisp = 0;
  }
}

HydroOutcome floatAtWaterline(HullStore& h, double zWL) {
  HydroOutcome out;
  out.zWL = zWL;
  out.immersion = Immersion{};
  out.sums = integratePass(h, zWL, LevelRef::firstChine, &out.immersion);
  return out;
}

HydroOutcome floatAtDisplacement(HullStore& h, double zWL, const SolverPassHook& afterPass) {
  HydroOutcome out;
  const double length = h.xFwd(1);
  double pitchStep = -0.03;
  HydroSums& s = out.sums;
  for (;;) {
    double zPrev = zWL;
    float relax = 0.85f;
    int inner = 0;
    s = integratePass(h, zPrev, LevelRef::firstChine, nullptr);
    const double awFloor = length * 0.2 * h.yMax(1);
    if (awFloor > s.Aw) s.Aw = awFloor;
    double dz = s.Aw > 0 ? (h.dispTarget - s.V) * 0.3 / s.Aw : 0;
    do {
      zWL = zPrev + dz;
      const double vPrev = s.V, awPrev = s.Aw;
      out.immersion = Immersion{0, true};
      s = integratePass(h, zWL, LevelRef::lastWaterline, &out.immersion);
      ++inner;
      ++out.innerPasses;
      if (afterPass) afterPass(zWL);
      if (std::fabs(h.dispTarget - s.V) < kDispTolerance) break;
      if (s.Aw <= kEmptyWaterplane) {
        out.immersion.immersedChine = static_cast<i16>(zWL < 0 ? -1 : h.nChines);
        break;
      }
      if (sgn(s.V - h.dispTarget) != sgn(vPrev - h.dispTarget)) {
        dz *= 0.4;
        s.V = vPrev;
        s.Aw = awPrev;
        relax = static_cast<float>(relax * 0.75);
      } else {
        zPrev = zWL;
        dz = (h.dispTarget - s.V) / ((awPrev + s.Aw) * 0.5) * relax;
        relax = static_cast<float>(relax * 1.05);
      }
    } while (inner < kSolverPasses);

    storeCentres(h, s);
    const double gap = h.xMass - h.xDisp;
    const bool steering = h.xMass > length * 0.1;
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
        std::fabs(h.xDisp - h.xMass) <= length * 0.002)
      break;
  }
  out.zWL = zWL;
  return out;
}

}  // namespace tolmar

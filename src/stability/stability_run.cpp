#include "stability/stability_run.h"

#include <algorithm>
#include <cmath>

#include "analysis/mass_screen.h"
#include "hull/fold_check.h"
#include "stability/mesh_check.h"
#include "surface/hull_mesh.h"
#include "text/number_format.h"

namespace tolmar::stability {

namespace {

std::string num(double v) { return formatNumber(v, "0.000"); }

std::string say(int langue, const std::string& fr, const std::string& en) {
  return langue == 0 ? fr : en;
}

bool finite(const std::optional<double>& v) { return !v || std::isfinite(*v); }

// Checks shared by both sources, then every curve.  r holds the mesh's
// figures and the centre of gravity's sources already.
void compute(const HydroMesh& m, const StabilityOptions& o, int langue, StabilityResult& r) {
  const double volume = r.load.volume;
  if (!std::isfinite(o.density) || o.density < 0.5 || o.density > 2) {
    r.error = say(langue, "La masse volumique de l'eau doit être entre 0,5 et 2 t/m3.",
                  "The water density must lie between 0.5 and 2 t/m3.");
    return;
  }
  if (!(volume > 0) || !std::isfinite(volume)) {
    r.error =
        say(langue, "Le déplacement doit être supérieur à 0.", "The displacement must be above 0.");
    return;
  }
  if (volume >= m.volume) {
    r.error = say(langue,
                  "La coque coule : un déplacement de " + num(volume) +
                      " m3 dépasse son volume sous le livet, " + num(m.volume) + " m3.",
                  "The hull sinks: a displacement of " + num(volume) +
                      " m3 is more than its volume below the sheer, " + num(m.volume) + " m3.");
    return;
  }
  if (!std::isfinite(r.kg) || !std::isfinite(r.lcg)) {
    r.error = say(langue, "Le centre de gravité n'est pas un nombre.",
                  "The centre of gravity is not a number.");
    return;
  }
  if (r.kg > r.sheerTop) {
    r.error = say(langue,
                  "Le centre de gravité (KG = " + num(r.kg) + " m) est au-dessus du livet (" +
                      num(r.sheerTop) + " m au-dessus de la quille).",
                  "The centre of gravity (KG = " + num(r.kg) + " m) lies above the sheer (" +
                      num(r.sheerTop) + " m above the keel).");
    return;
  }
  const std::vector<double> angles = heelAngles(o.fromDeg, o.toDeg, o.stepDeg);
  if (angles.empty() || o.fromDeg < 0 || o.toDeg > 180) {
    r.error = say(langue,
                  "Les angles de gîte vont de 0 à 180 degrés, avec un pas supérieur à 0 (au plus "
                  "3600 angles).",
                  "Heel angles run from 0 to 180 degrees, with a step above 0 (3600 angles at "
                  "most).");
    return;
  }
  if (curveDrafts(m, o.curveStep).empty()) {
    r.error = say(langue,
                  "Le pas des courbes hydrostatiques doit être supérieur à 0 (au plus " +
                      std::to_string(kMaxCurveRows) + " tirants d'eau).",
                  "The step of the hydrostatic curves must be above 0 (" +
                      std::to_string(kMaxCurveRows) + " drafts at most).");
    return;
  }
  r.crewAsked = o.crewKg.has_value();
  if (r.crewAsked) {
    r.crewKg = *o.crewKg;
    r.crewY = o.crewY ? *o.crewY : sheerHalfBeamAt(m, r.lcg);
    if (!std::isfinite(r.crewKg) || r.crewKg < 0 || !std::isfinite(r.crewY) || r.crewY < 0) {
      r.error =
          say(langue, "L'équipage : une masse et une distance au plan axial positives ou nulles.",
              "The crew: a mass and a distance from the centre plane, neither below 0.");
      return;
    }
  }
  r.load.density = o.density;
  r.load.g = {r.lcg, 0, m.low.z + r.kg};
  r.curves = uprightCurves(m, o.curveStep, o.density);
  r.gz = gzCurve(m, r.load, angles);
  r.summary = summarize(m, r.load, r.gz);
  if (r.crewAsked) r.crew = crewOnSide(m, r.load, r.gz, r.crewKg, r.crewY);
}

// The centre of buoyancy upright and level at the volume: where G stands
// when nothing says otherwise, so that the hull floats without trim.
double uprightLcb(const HydroMesh& m, double volume) {
  const auto a = floatVolume(m, frameAt(0, 0), volume, std::numeric_limits<double>::quiet_NaN());
  return a ? a->body.buoyancy.x : m.middle.x;
}

bool optionsFinite(const StabilityOptions& o) {
  return finite(o.volume) && finite(o.lcg) && finite(o.kg) && finite(o.crewKg) && finite(o.crewY) &&
         std::isfinite(o.curveStep) && std::isfinite(o.stepDeg);
}

std::string notNumbers(int langue) {
  return say(langue, "Une des valeurs entrées n'est pas un nombre.",
             "One of the values given is not a number.");
}

}  // namespace

std::unique_ptr<HullStore> withMassBudget(const HullStore& h) {
  auto copy = std::make_unique<HullStore>(h);
  analysis::Mass1 screen;
  analysis::loadMass(screen, *copy);
  analysis::massActivated(screen, *copy);
  return copy;
}

double sheerHalfBeamAt(const HydroMesh& m, double x) {
  std::vector<std::pair<double, double>> edge;  // (x, y) on the starboard side
  for (const Vec3& p : m.deckEdge)
    if (p.y >= 0) edge.emplace_back(p.x, p.y);
  if (edge.empty()) return 0;
  std::sort(edge.begin(), edge.end());
  if (x <= edge.front().first) return edge.front().second;
  if (x >= edge.back().first) return edge.back().second;
  const auto hi = std::lower_bound(edge.begin(), edge.end(), std::make_pair(x, -1.0));
  const auto lo = hi - 1;
  const double t = hi->first > lo->first ? (x - lo->first) / (hi->first - lo->first) : 0;
  return lo->second + t * (hi->second - lo->second);
}

StabilityResult runStability(const HullStore& h, const StabilityOptions& o, int langue) {
  StabilityResult r;
  if (!optionsFinite(o)) {
    r.error = notNumbers(langue);
    return r;
  }
  if (h.nChines < 1) {
    r.error = say(langue, "Définissez d'abord les bordés de la coque.",
                  "Define the planks of the hull first.");
    return r;
  }
  const FoldReport folds = checkFolds(h);
  if (folds.folded()) {
    r.error = folds.message(langue);
    return r;
  }
  const HullMesh mesh = buildHullMesh(h);
  const HydroMesh m = hullHydroMesh(h, mesh);
  if (!(m.volume > 0)) {
    r.error = say(langue, "La coque n'enferme aucun volume.", "The hull encloses no volume.");
    return r;
  }
  r.keelZ = m.low.z;
  r.meshVolume = m.volume;
  r.sheerTop = m.low.z;
  for (const Vec3& p : m.deckEdge) r.sheerTop = std::max(r.sheerTop, p.z);
  r.sheerTop -= m.low.z;

  std::array<double, kEquipmentRows> equipZ;
  for (int j = 0; j < kEquipmentRows; ++j) equipZ[j] = m.low.z + o.equipHeights[j];
  r.budget = massCentre(h, mesh, equipZ);
  const bool haveBudget = h.totalMass > 0 && r.budget->mass > 0;

  const std::string noBudget =
      say(langue, "Le budget de masse ne donne aucune masse : ", "The mass budget gives no mass: ");
  if (o.volume) {
    r.load.volume = *o.volume;
    r.volumeFrom = GSource::typed;
  } else if (haveBudget) {
    r.load.volume = h.totalMass / (1000 * o.density);
    r.volumeFrom = GSource::massBudget;
  } else {
    r.error = noBudget + say(langue, "entrez un déplacement.", "give a displacement.");
    return r;
  }
  if (o.kg) {
    r.kg = *o.kg;
    r.kgFrom = GSource::typed;
  } else if (haveBudget) {
    r.kg = r.budget->z - m.low.z;
    r.kgFrom = GSource::massBudget;
  } else {
    r.error = noBudget + say(langue, "entrez KG.", "give KG.");
    return r;
  }
  if (o.lcg) {
    r.lcg = *o.lcg;
    r.lcgFrom = GSource::typed;
  } else if (haveBudget) {
    r.lcg = h.xMass;
    r.lcgFrom = GSource::massBudget;
  } else {
    r.lcg = uprightLcb(m, r.load.volume);
    r.lcgFrom = GSource::buoyancy;
  }
  compute(m, o, langue, r);
  return r;
}

StabilityResult runStability(const HydroMesh& m, const StabilityOptions& o, int langue) {
  StabilityResult r;
  if (!optionsFinite(o)) {
    r.error = notNumbers(langue);
    return r;
  }
  if (!(m.volume > 0)) {
    r.error = say(langue, "Le maillage n'enferme aucun volume.", "The mesh encloses no volume.");
    return r;
  }
  r.keelZ = m.low.z;
  r.meshVolume = m.volume;
  r.sheerTop = m.high.z - m.low.z;
  if (!o.volume || !o.kg) {
    r.error = say(langue,
                  "Pour un maillage, entrez le déplacement et KG : il n'a pas de budget de masse.",
                  "For a mesh, give the displacement and KG: it has no mass budget.");
    return r;
  }
  r.load.volume = *o.volume;
  r.kg = *o.kg;
  r.lcg = o.lcg ? *o.lcg : uprightLcb(m, r.load.volume);
  r.lcgFrom = o.lcg ? GSource::typed : GSource::buoyancy;
  compute(m, o, langue, r);
  return r;
}

}  // namespace tolmar::stability

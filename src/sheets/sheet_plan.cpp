#include "sheets/sheet_plan.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <thread>

#include "sheets/clipper_geometry.h"
#include "sheets/hull_parts.h"
#include "sheets/joints.h"
#include "sheets/layout_check.h"
#include "sheets/nesting.h"
#include "sheets/size_text.h"

namespace tolmar::sheets {

namespace {

bool positive(double v) { return std::isfinite(v) && v > 0; }

// Pieces that no allowed turn brings inside the sheet: the first one's
// message, or empty.
std::string tooWide(const SheetPlan& plan, double U, double W, int langue) {
  const bool fr = langue == 0;
  for (const Piece& p : plan.pieces) {
    const MmBox b = boundingBox(p.outline);
    const bool along = b.width() <= U + 0.005 && b.height() <= W + 0.005;
    const bool across = plan.options.rotate90 && b.height() <= U + 0.005 && b.width() <= W + 0.005;
    if (along || across) continue;
    const std::string& name = plan.parts[p.part].name;
    if (b.height() > W && !(plan.options.rotate90 && b.height() <= U))
      return name + (fr ? " demande une largeur de " : " needs a width of ") + mmText(b.height()) +
             (fr ? " ; la feuille donne " : "; the sheet gives ") + mmText(W) +
             (fr ? " entre ses marges." : " inside its margins.");
    return name + (fr ? " demande une longueur de " : " needs a length of ") + mmText(b.width()) +
           (fr ? " ; la feuille donne " : "; the sheet gives ") + mmText(U) +
           (fr ? " entre ses marges." : " inside its margins.");
  }
  return {};
}

const auto units = [](double v) {
  return static_cast<ClipperLib::cInt>(std::llround(v * kUnitsPerMm));
};

// The pieces of `plan` of each thickness, in the plan's order.
std::map<double, std::vector<int>> byThickness(const SheetPlan& plan) {
  std::map<double, std::vector<int>> out;
  for (int i = 0; i < static_cast<int>(plan.pieces.size()); ++i)
    out[plan.parts[plan.pieces[i].part].thicknessMm].push_back(i);
  return out;
}

NestRequest request(const SheetPlan& plan, const std::vector<int>& ids) {
  const SheetOptions& o = plan.options;
  NestRequest r;
  for (int i : ids) r.shapes.push_back(toPath(plan.pieces[i].outline));
  r.x0 = r.y0 = units(o.marginMm);
  r.x1 = units(o.lengthMm - o.marginMm);
  r.y1 = units(o.widthMm - o.marginMm);
  r.gap = units(o.kerfMm);
  r.rotate90 = o.rotate90;
  return r;
}

// The pieces `ids`, all of `thickness`, on new sheets of `plan` as `placed`
// has them.
void addSheets(SheetPlan& plan, double thickness, const std::vector<int>& ids,
               const std::vector<NestPlace>& placed) {
  const SheetOptions& o = plan.options;
  const std::size_t first = plan.sheets.size();
  for (std::size_t k = 0; k < ids.size(); ++k) {
    const NestPlace& np = placed[k];
    if (np.bin < 0) continue;  // the check reports it
    while (plan.sheets.size() <= first + np.bin)
      plan.sheets.push_back({o.lengthMm, o.widthMm, thickness, {}});
    PlacedPiece pp;
    pp.piece = ids[k];
    pp.rotation = np.rotation;
    pp.dx = np.dx / kUnitsPerMm;
    pp.dy = np.dy / kUnitsPerMm;
    const Piece& piece = plan.pieces[ids[k]];
    for (const MmPoint& q : piece.outline) pp.outline.push_back(placePoint(pp, q));
    for (const MmPolyline& m : piece.marks) {
      MmPolyline pm;
      for (const MmPoint& q : m) pm.push_back(placePoint(pp, q));
      pp.marks.push_back(std::move(pm));
    }
    plan.sheets[first + np.bin].pieces.push_back(std::move(pp));
  }
}

// The tries at other ways of placing one part's joints, each part once:
// at most about this over the number of pieces of the thickness (a quick
// nesting costs about the square of that number).
constexpr std::size_t kJointWork = 600;

// A part (both its sides) at a time, another way for its joints is kept
// where a quick nesting of the parts of `thickness` needs fewer sheets or
// leaves more of the last free than `nest` (the quick nesting of the cut
// by `perPart`): a part's end pieces change shape with its joints, and
// may then fit where the others leave room.
void chooseWaysPerPart(const std::vector<SheetPart>& parts, const SheetOptions& o, double usable,
                       const std::vector<JointStrategy>& ways,
                       const std::function<SheetPlan(const std::vector<JointStrategy>&)>& cutWith,
                       double thickness, int threads, std::vector<JointStrategy>& perPart,
                       NestResult& nest) {
  std::vector<std::string> names;
  for (const SheetPart& p : parts)
    if (p.thicknessMm == thickness && boundingBox(p.outline).width() > usable - 0.1 &&
        std::find(names.begin(), names.end(), p.name) == names.end() &&
        std::none_of(o.jointsAt.begin(), o.jointsAt.end(),
                     [&](const JointAt& j) { return j.part == p.name; }))
      names.push_back(p.name);
  const std::size_t n = std::max<std::size_t>(nest.places.size(), 1);
  std::size_t tries = std::clamp<std::size_t>(kJointWork / n, 4, 60);
  for (const std::string& name : names)
    for (JointStrategy st : ways) {
      if (!tries) return;
      std::vector<JointStrategy> trial = perPart;
      bool other = false;
      for (std::size_t i = 0; i < parts.size(); ++i)
        if (parts[i].name == name && parts[i].thicknessMm == thickness)
          other |= trial[i] != st, trial[i] = st;
      if (!other) continue;
      --tries;
      const SheetPlan plan = cutWith(trial);
      NestResult r = nestBest(request(plan, byThickness(plan).at(thickness)), threads, true);
      if (!r.betterThan(nest)) continue;
      perPart = std::move(trial);
      nest = std::move(r);
    }
}

int threadCount() {
  const unsigned n = std::thread::hardware_concurrency();
  return static_cast<int>(std::clamp(n, 1u, 8u));
}

}  // namespace

MmPoint placePoint(const PlacedPiece& p, MmPoint q) {
  const double c = std::cos(p.rotation), s = std::sin(p.rotation);
  return {c * q.x - s * q.y + p.dx, s * q.x + c * q.y + p.dy};
}

std::string checkOptions(const SheetOptions& o, int langue) {
  const bool fr = langue == 0;
  if (!positive(o.lengthMm) || !positive(o.widthMm))
    return fr ? "La taille de la feuille doit être positive." : "The sheet size must be positive.";
  if (!(std::isfinite(o.marginMm) && o.marginMm >= 0))
    return fr ? "La marge ne peut pas être négative." : "The margin cannot be negative.";
  if (!positive(o.kerfMm))
    return fr ? "Le trait de scie doit être supérieur à 0." : "The kerf must be above 0.";
  if (o.joint == JointKind::scarf && !positive(o.scarfRatio))
    return fr ? "La pente du joint en biseau doit être supérieure à 0."
              : "The scarf ratio must be above 0.";
  if (o.joint == JointKind::butt && !positive(o.strapWidthMm))
    return fr ? "La largeur du couvre-joint doit être supérieure à 0."
              : "The butt strap width must be above 0.";
  if (o.lengthMm <= 2 * o.marginMm || o.widthMm <= 2 * o.marginMm)
    return fr ? "Les marges ne laissent rien de la feuille."
              : "The margins leave nothing of the sheet.";
  for (const JointAt& j : o.jointsAt)
    if (!std::isfinite(j.xMetres))
      return fr ? "Position de joint illisible." : "A joint position is not a number.";
  return {};
}

SheetPlan planParts(std::vector<SheetPart> parts, const SheetOptions& o, int langue) {
  SheetPlan failed;
  failed.options = o;
  failed.error = checkOptions(o, langue);
  if (!failed.error.empty()) return failed;
  const double U = o.lengthMm - 2 * o.marginMm, W = o.widthMm - 2 * o.marginMm;
  bool needsJoint = false;
  for (const SheetPart& p : parts) needsJoint |= boundingBox(p.outline).width() > U;
  // The parts cut with the joints of each part placed its own way.
  auto cutWith = [&](const std::vector<JointStrategy>& perPart) {
    SheetPlan plan;
    plan.options = o;
    plan.parts = parts;
    // A tenth of a millimetre to spare for the rounding of the outlines.
    CutResult cut = cutParts(parts, o, U - 0.1, perPart, langue);
    if (!cut.error.empty()) {
      plan.error = cut.error;
      return plan;
    }
    for (SheetPart& s : cut.straps) plan.parts.push_back(std::move(s));
    plan.pieces = std::move(cut.pieces);
    plan.joints = std::move(cut.joints);
    plan.error = tooWide(plan, U, W, langue);
    return plan;
  };
  // Each way of placing the joints cuts the parts; the parts of one
  // thickness share their sheets with no other, so each thickness keeps
  // the way that needs the fewest sheets for it in a quick nesting, then
  // each part its own way (chooseWaysPerPart), and the pieces are nested
  // in full at last.
  std::vector<JointStrategy> ways = {JointStrategy::even};
  if (needsJoint) ways = {JointStrategy::even, JointStrategy::fromAft, JointStrategy::fromForward};
  std::vector<JointStrategy> cutWays;
  std::vector<SheetPlan> cuts;
  for (JointStrategy st : ways) {
    SheetPlan plan = cutWith(std::vector<JointStrategy>(parts.size(), st));
    if (!plan.error.empty()) {
      if (failed.error.empty()) failed = std::move(plan);
      continue;
    }
    cuts.push_back(std::move(plan));
    cutWays.push_back(st);
  }
  if (cuts.empty()) return failed;
  const int threads = threadCount();
  std::map<double, std::pair<std::size_t, NestResult>> best;  // by thickness: the cut, its nest
  for (std::size_t c = 0; c < cuts.size(); ++c)
    for (const auto& [thickness, ids] : byThickness(cuts[c])) {
      NestResult r = nestBest(request(cuts[c], ids), threads, true);
      auto it = best.find(thickness);
      if (it == best.end() || r.betterThan(it->second.second)) best[thickness] = {c, std::move(r)};
    }
  std::vector<JointStrategy> perPart(parts.size());
  for (std::size_t i = 0; i < parts.size(); ++i)
    perPart[i] = cutWays[best.at(parts[i].thicknessMm).first];
  if (cutWays.size() > 1)
    for (auto& [thickness, nest] : best)
      chooseWaysPerPart(parts, o, U, cutWays, cutWith, thickness, threads, perPart, nest.second);
  SheetPlan plan = cutWith(perPart);
  for (const auto& [thickness, ids] : byThickness(plan))
    addSheets(plan, thickness, ids, nestBest(request(plan, ids), threads).places);
  const auto bad = checkLayout(plan);
  if (!bad.empty()) plan.error = "The layout failed its check: " + bad.front();
  return plan;
}

SheetPlan planSheets(const HullStore& h, const SheetOptions& o) {
  SheetPlan plan;
  plan.options = o;
  plan.error = checkOptions(o, h.langue);
  if (!plan.error.empty()) return plan;
  PartsResult parts = partsFromHull(h, o);
  if (!parts.error.empty()) {
    plan.error = parts.error;
    return plan;
  }
  return planParts(std::move(parts.parts), o, h.langue);
}

}  // namespace tolmar::sheets

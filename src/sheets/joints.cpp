#include "sheets/joints.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

#include "sheets/clipper_geometry.h"
#include "sheets/size_text.h"

namespace tolmar::sheets {

std::vector<double> autoJoints(double L, double U, double s, JointStrategy st) {
  if (!(L > U) || !(U > s)) return {};
  const int k = static_cast<int>(std::ceil((L - s) / (U - s) - 1e-9));
  std::vector<double> c;
  if (st == JointStrategy::even) {
    const double P = (L + (k - 1) * s) / k;
    for (int i = 0; i + 1 < k; ++i) c.push_back(i * (P - s) + P - s / 2);
  } else {
    for (int i = 0; i + 1 < k; ++i) c.push_back((i + 1) * (U - s) + s / 2);
    // The last joint is kept clear of the far end; the pieces before it
    // only get shorter.
    for (int i = k - 2, n = 1; i >= 0; --i, ++n)
      c[i] = std::min(c[i], L - n * kJointEndClearanceMm - (n - 1) * s);
    if (st == JointStrategy::fromForward) {
      for (double& x : c) x = L - x;
      std::reverse(c.begin(), c.end());
    }
  }
  return c;
}

bool spanAt(const MmPolygon& p, double x, double& y0, double& y1) {
  bool hit = false;
  y0 = std::numeric_limits<double>::max();
  y1 = std::numeric_limits<double>::lowest();
  for (std::size_t i = 0, n = p.size(); i < n; ++i) {
    const MmPoint& a = p[i];
    const MmPoint& b = p[(i + 1) % n];
    if ((a.x - x) * (b.x - x) > 0 || a.x == b.x) continue;
    const double y = a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x);
    y0 = std::min(y0, y);
    y1 = std::max(y1, y);
    hit = true;
  }
  return hit;
}

CutResult cutParts(const std::vector<SheetPart>& parts, const SheetOptions& o, double U,
                   JointStrategy st, int langue) {
  return cutParts(parts, o, U, std::vector<JointStrategy>(parts.size(), st), langue);
}

CutResult cutParts(const std::vector<SheetPart>& parts, const SheetOptions& o, double U,
                   const std::vector<JointStrategy>& perPart, int langue) {
  CutResult r;
  const bool fr = langue == 0;
  for (int pi = 0; pi < static_cast<int>(parts.size()); ++pi) {
    const SheetPart& part = parts[pi];
    const MmBox box = boundingBox(part.outline);
    const double L = box.width();
    const double s = o.joint == JointKind::scarf ? o.scarfRatio * part.thicknessMm : 0;
    std::vector<double> at;
    bool asked = false;
    for (const JointAt& j : o.jointsAt)
      if (j.part == part.name) {
        asked = true;
        at.push_back(j.xMetres * 1000);
      }
    std::sort(at.begin(), at.end());
    if (asked) {
      for (double x : at) {
        if (!(x > 0 && x < L)) {
          r.error = (fr ? "Le joint de " : "The joint of ") + part.name + (fr ? " à " : " at ") +
                    metresText(x) +
                    (fr ? " est hors du panneau, long de " : " is outside the part, ") +
                    metresText(L) + (fr ? "." : " long.");
          return r;
        }
        if (x < kJointEndClearanceMm || x > L - kJointEndClearanceMm) {
          r.error = (fr ? "Le joint de " : "The joint of ") + part.name + (fr ? " à " : " at ") +
                    metresText(x) +
                    (fr ? " est à moins de 300 mm d'une extrémité."
                        : " is within 300 mm of an end of the part.");
          return r;
        }
      }
      if (o.joint == JointKind::none && !at.empty()) {
        r.error = fr ? "Un joint est placé mais le type de joint est « aucun »."
                     : "A joint is placed but the joint is \"none\".";
        return r;
      }
    } else if (L > U) {
      if (o.joint == JointKind::none) {
        r.error = part.name + (fr ? " est long de " : " is ") + mmText(L) +
                  (fr ? " ; la feuille permet " : " long; the sheet takes ") + mmText(U) +
                  (fr ? ". Choisissez un joint." : ". Pick a joint.");
        return r;
      }
      at = autoJoints(L, U, s, perPart[pi]);
      if (at.empty()) {
        r.error = (fr ? "Le joint en biseau de " : "The scarf of ") + part.name + " (" + mmText(s) +
                  (fr ? ") est plus long que la feuille." : ") is longer than the sheet.");
        return r;
      }
      for (double x : at)
        if (x < kJointEndClearanceMm || x > L - kJointEndClearanceMm) {
          r.error = part.name + (fr ? " : pas de place pour un joint à 300 mm des extrémités."
                                    : ": no room for a joint 300 mm clear of its ends.");
          return r;
        }
    }
    // Piece i spans the part from the joint behind it to the one ahead of
    // it, each widened by half the scarf.
    const int k = static_cast<int>(at.size()) + 1;
    for (int i = 0; i < k; ++i) {
      const double a = i == 0 ? box.x0 - 1 : at[i - 1] - s / 2;
      const double b = i + 1 == k ? box.x1 + 1 : at[i] + s / 2;
      const double pieceLength = std::min(b, box.x1) - std::max(a, box.x0);
      if (pieceLength > U + 1e-6 && k > 1) {
        r.error = (fr ? "La pièce " : "Piece ") + std::to_string(i + 1) + (fr ? " de " : " of ") +
                  part.name + (fr ? " est longue de " : " is ") + mmText(pieceLength) +
                  (fr ? " ; la feuille permet " : " long; the sheet takes ") + mmText(U) + ".";
        return r;
      }
      const auto cut = clipBand(part.outline, a, b);
      if (cut.empty()) continue;
      Piece p;
      p.part = pi;
      p.piece = i + 1;
      p.of = k;
      p.outline = cut.front();
      const double lo = i == 0 ? box.x0 - 1 : at[i - 1], hi = i + 1 == k ? box.x1 + 1 : at[i];
      for (const MmPolyline& m : part.marks)
        if (!m.empty() && m.back().x > lo && m.back().x <= hi) p.marks.push_back(m);
      // Where the scarf's taper starts, or where the strap's edge lies.
      auto across = [&](double x) {
        double y0, y1;
        if (spanAt(p.outline, x, y0, y1)) p.marks.push_back({{x, y0}, {x, y1}});
      };
      const double half = o.joint == JointKind::scarf ? s / 2 : o.strapWidthMm / 2;
      if (i > 0) across(at[i - 1] + half);
      if (i + 1 < k) across(at[i] - half);
      r.pieces.push_back(std::move(p));
    }
    for (std::size_t j = 0; j < at.size(); ++j) {
      r.joints.push_back({pi, at[j], s, o.joint});
      if (o.joint != JointKind::butt) continue;
      const auto strap =
          clipBand(part.outline, at[j] - o.strapWidthMm / 2, at[j] + o.strapWidthMm / 2);
      if (strap.empty()) continue;
      SheetPart sp;
      sp.name = part.name + (fr ? " couvre-joint " : " strap ") + std::to_string(j + 1);
      sp.kind = PartKind::strap;
      sp.side = part.side;
      sp.outline = strap.front();
      sp.thicknessMm = part.thicknessMm;
      sp.thicknessAssumed = part.thicknessAssumed;
      sp.densityKgM2 = part.densityKgM2;
      r.straps.push_back(std::move(sp));
    }
  }
  const int first = static_cast<int>(parts.size());
  for (int j = 0; j < static_cast<int>(r.straps.size()); ++j) {
    Piece p;
    p.part = first + j;
    p.outline = r.straps[j].outline;
    r.pieces.push_back(std::move(p));
  }
  return r;
}

}  // namespace tolmar::sheets

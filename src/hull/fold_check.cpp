// The fold check, section by section.  At a station every line has the same
// X, and line n + 1 lies on the plank from line n at its inclination: the
// plank's width there is the step between the two points along that
// inclination, and it is negative where the upper line has passed under the
// lower one; the bottom is measured along its deadrise.  Two lines are
// compared only where they have the same X: at the ends (points 0 and 82)
// and where a line stands clamped at its end, the points are not a section
// and tell nothing about a fold.
#include "hull/fold_check.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "hull/angle_constants.h"
#include "text/number_format.h"

namespace tolmar {

namespace {

constexpr int kPoints = kLastPoint + 1;

enum class Width : unsigned char { some, none, negative, unknown };

struct Pt {
  double x = 0, y = 0, z = 0;
  bool ok = false;  // finite
};

// What one plank does at every point, and the worst crossing there.
struct PlankRow {
  std::array<Width, kPoints> width{};
  std::array<double, kPoints> w{};    // signed width, m
  std::array<int, kPoints> across{};  // lowest plank crossed, -1 none
  std::array<double, kPoints> acrossDepth{};
};

// Both points finite and at one X (within a micrometre).
bool sameSection(const Pt& a, const Pt& b) { return a.ok && b.ok && std::abs(a.x - b.x) <= 1e-6; }

// A plank's chord in one section: its lower point and unit direction, or
// no direction when the two points are too close to give one.
struct Chord {
  Pt a;
  double uy = 0, uz = 0;
  bool line = false;
};

Chord chord(const Pt& a, const Pt& b) {
  const double dy = b.y - a.y, dz = b.z - a.z;
  const double len = std::hypot(dy, dz);
  if (!(len > kFoldTolerance)) return {a, 0, 0, false};
  return {a, dy / len, dz / len, true};
}

// Signed distance of c from the chord's line: positive on its left, which
// is inside the hull for a plank going up from keel to sheer.
double side(const Chord& k, const Pt& c) { return k.uy * (c.z - k.a.z) - k.uz * (c.y - k.a.y); }

bool opposite(double s, double t) {
  return (s > kFoldTolerance && t < -kFoldTolerance) || (s < -kFoldTolerance && t > kFoldTolerance);
}

// Does plank j (c -> d) cross plank i (a -> b) properly?  depth: how far the
// end of plank j that lies outside plank i stands off it.
bool crosses(const Chord& i, const Pt& b, const Chord& j, const Pt& d, double& depth) {
  if (!i.line || !j.line) return false;
  const double sc = side(i, j.a), sd = side(i, d);
  if (!opposite(sc, sd) || !opposite(side(j, i.a), side(j, b))) return false;
  depth = std::max(-sc, -sd);
  return true;
}

void addRuns(const HullStore& h, int plank, const PlankRow& row, FoldReport& r) {
  auto bad = [&](int p) { return row.width[p] == Width::none || row.width[p] == Width::negative; };
  for (int p = 0; p < kPoints;) {
    if (!bad(p)) {
      ++p;
      continue;
    }
    const int from = p;
    double depth = 0;
    bool negative = false;
    while (p < kPoints && bad(p)) {
      if (row.width[p] == Width::negative) {
        negative = true;
        depth = std::max(depth, -row.w[p]);
      }
      ++p;
    }
    const int to = p - 1;
    // A plank may taper to nothing where it ends: only a narrowing with
    // width on both sides is a fault.
    if (!negative && (from == 0 || to == kLastPoint || row.width[from - 1] != Width::some ||
                      row.width[to + 1] != Width::some))
      continue;
    r.stretches.push_back({plank, plank, from, to, h.lineX(plank, from), h.lineX(plank, to),
                           negative ? depth : 0.0, negative ? FoldKind::under : FoldKind::narrow});
  }
  for (int p = 0; p < kPoints;) {
    if (row.across[p] < 0) {
      ++p;
      continue;
    }
    const int from = p;
    int line = row.across[p];
    double depth = 0;
    while (p < kPoints && row.across[p] >= 0) {
      line = std::min(line, row.across[p]);
      depth = std::max(depth, row.acrossDepth[p]);
      ++p;
    }
    const int to = p - 1;
    r.stretches.push_back(
        {plank, line, from, to, h.lineX(line, from), h.lineX(line, to), depth, FoldKind::across});
  }
}

// A hull file saved before its planks were ever validated holds the planes
// of lines 2.. as zero; the lines that the opening builds from them are no
// design of the user's.
bool planeFitted(const HullStore& h, int n) {
  return h.planeA(n) != 0 || h.planeB(n) != 0 || h.planeC(n) != 0;
}

std::string metres(double x) { return formatNumber(x, "0.0"); }

std::string millimetres(double d) {
  return formatNumber(d * 1000, d >= 0.001 ? "0" : "0.0") + " mm";
}

}  // namespace

FoldReport checkFolds(const HullStore& h) { return checkFoldsUpTo(h, kMaxLine); }

FoldReport checkFoldsUpTo(const HullStore& h, int lastLine) {
  FoldReport r;
  int top = std::min({static_cast<int>(h.nChines), lastLine, kMaxLine});
  for (int n = 2; n <= top; ++n) {
    if (!planeFitted(h, n)) {
      top = n - 1;
      break;
    }
  }
  if (top < 1) return r;

  std::array<double, kMaxLine + 1> cosA{}, sinA{};
  for (int k = 0; k < top; ++k) {
    const double a = h.plankAngle(k) * kPi / 180;
    cosA[k] = std::cos(a);
    sinA[k] = std::sin(a);
  }

  std::vector<PlankRow> rows(static_cast<std::size_t>(top));
  std::array<Pt, kMaxLine + 1> pt{};
  std::array<Chord, kMaxLine> chords{};
  for (int p = 0; p < kPoints; ++p) {
    for (int n = 0; n <= top; ++n) {
      const double y = h.lineY(n, p), z = h.lineZ(n, p);
      const double x = h.lineX(n, p);
      pt[n] = {x, y, z, std::isfinite(x) && std::isfinite(y) && std::isfinite(z)};
    }
    for (int k = 0; k < top; ++k) {
      PlankRow& row = rows[k];
      row.across[p] = -1;
      row.w[p] = 0;
      row.width[p] = Width::unknown;
      if (!sameSection(pt[k], pt[k + 1])) continue;
      const double w = (pt[k + 1].y - pt[k].y) * cosA[k] + (pt[k + 1].z - pt[k].z) * sinA[k];
      row.w[p] = w;
      row.width[p] = w > kFoldTolerance    ? Width::some
                     : w < -kFoldTolerance ? Width::negative
                                           : Width::none;
    }
    for (int k = 0; k < top; ++k) chords[k] = chord(pt[k], pt[k + 1]);
    // Plank j across plank i, only where every plank from i up to j - 1
    // has width: where one of them folds, a crossing above it is the same
    // fold seen again.
    for (int i = 0; i + 2 < top; ++i) {
      for (int j = i + 2; j < top; ++j) {
        if (rows[j - 1].width[p] != Width::some) break;
        if (rows[i].width[p] != Width::some || !sameSection(pt[i], pt[j + 1])) break;
        double depth = 0;
        if (!crosses(chords[i], pt[i + 1], chords[j], pt[j + 1], depth)) continue;
        PlankRow& row = rows[j];
        if (row.across[p] < 0 || i < row.across[p]) row.across[p] = i;
        row.acrossDepth[p] = std::max(row.acrossDepth[p], depth);
      }
    }
  }
  for (int k = 0; k < top; ++k) addRuns(h, k, rows[k], r);
  std::stable_sort(r.stretches.begin(), r.stretches.end(),
                   [](const FoldStretch& a, const FoldStretch& b) {
                     return a.plank != b.plank ? a.plank < b.plank : a.fromPoint < b.fromPoint;
                   });
  return r;
}

std::string foldSentence(const FoldStretch& s, int langue) {
  const bool fr = langue == 0;
  const std::string a = metres(s.fromX), b = metres(s.toX);
  std::string where;
  if (a == b)
    where = (fr ? "à X = " : "at X = ") + a + " m";
  else
    where = (fr ? "de X = " : "from X = ") + a + (fr ? " m à " : " m to ") + b + " m";
  const std::string depth =
      fr ? " (jusqu'à " + millimetres(s.depth) + ")" : " (up to " + millimetres(s.depth) + ")";

  std::string who;
  if (s.plank == 0)
    who = fr ? "Le fond" : "The bottom";
  else
    who = (fr ? "Le bordé " : "Plank ") + std::to_string(s.plank);
  switch (s.kind) {
    case FoldKind::under: {
      std::string line;
      if (s.line == 0)
        line = fr ? "la quille" : "the keel";
      else
        line = (fr ? "le bouchain " : "line ") + std::to_string(s.line);
      return who + (fr ? " se replie sous " : " folds under ") + line + " " + where + depth;
    }
    case FoldKind::narrow:
      return who + (fr ? " n'a aucune largeur " : " has no width ") + where;
    case FoldKind::across: {
      std::string other;
      if (s.line == 0)
        other = fr ? "le fond" : "the bottom";
      else
        other = (fr ? "le bordé " : "plank ") + std::to_string(s.line);
      return who + (fr ? " traverse " : " folds across ") + other + " " + where + depth;
    }
  }
  return who;
}

std::string FoldReport::message(int langue) const {
  std::string text;
  for (const FoldStretch& s : stretches) {
    if (!text.empty()) text += '\n';
    text += foldSentence(s, langue);
  }
  return text;
}

}  // namespace tolmar

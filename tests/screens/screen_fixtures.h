// Stores and checks shared by the hull screen tests.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "hull/default_hull.h"
#include "hull/hull_store.h"
#include "screens/bouchain1.h"
#include "screens/replacement.h"

namespace tolmar::testing {

inline HullStore defaultStore(int langue = 0) {
  HullStore h;
  initDefaultHull(h);
  h.langue = static_cast<i16>(langue);
  return h;
}

// The default hull after a validation of bouchain1 that changed nothing.
inline HullStore bottomValidated() {
  HullStore h = defaultStore();
  Bouchain1 s;
  s.activate(h);
  s.validerBottom(h);
  return h;
}

// Every number a validation or rebuild may write is finite.
inline bool storeFinite(const HullStore& h) {
  auto ok = [](double v) { return std::isfinite(v); };
  for (double v : {h.powerFwd, h.powerAft, h.shapeAft, h.shapeFwd, h.stemShape}) {
    if (!ok(v)) return false;
  }
  for (int n = 0; n <= kMaxLine; ++n) {
    for (const LineArr* a : {&h.xAft, &h.yAft, &h.zAft, &h.xMax, &h.yMax, &h.zMax, &h.xFwd, &h.yFwd,
                             &h.zFwd, &h.planeA, &h.planeB, &h.planeC}) {
      if (!ok((*a)(n))) return false;
    }
    for (int p = 0; p <= kLastPoint; ++p) {
      if (!ok(h.lineX(n, p)) || !ok(h.lineY(n, p)) || !ok(h.lineZ(n, p)) ||
          !ok(h.bevelAngle(n, p))) {
        return false;
      }
    }
  }
  for (int s = 0; s <= 1; ++s) {
    for (int i = 0; i <= 83; ++i) {
      if (!ok(h.edgeX(s, i)) || !ok(h.edgeY(s, i)) || !ok(h.edgeZ(s, i))) return false;
    }
  }
  return true;
}

// Texts no field should crash on.
inline const std::vector<std::string>& badTexts() {
  static const std::vector<std::string> texts = {
      "",
      "abc",
      "1,5",
      "1e999",
      "-1e999",
      "-0",
      "1234567890123456789012345678901234567890",
      "   ",
      "+.",
      "--5",
      "5e",
      "nan",
      "inf",
      "0x1p3",
      "1e-400",
      "7,,2",
      "-",
      "1e308",
      "-40000",
      "99999",
      ".",
  };
  return texts;
}

inline const Replacement* findReplacement(const Replacements& r, const std::string& control) {
  for (const Replacement& x : r) {
    if (x.control == control) return &x;
  }
  return nullptr;
}

}  // namespace tolmar::testing

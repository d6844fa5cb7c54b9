// Validated hulls for the development tests and benchmark, built as a user
// builds them: the default hull through the bottom screen and the planks
// screen, a pram bow with four lines, and 21 lines of automatic planking,
// each with its stations.  Header-only so that bench/ can share it.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "hull/default_hull.h"
#include "hull/hull_store.h"
#include "hull/stations.h"
#include "screens/bouchain1.h"
#include "screens/bouchain2.h"
#include "screens/bouchain3.h"

namespace tolmar::fixture {

inline void require(bool ok, const char* what) {
  if (ok) return;
  std::string msg = "fixture: validation refused: ";
  msg.append(what);
  throw std::runtime_error(msg);
}

inline void validateBottom(HullStore& h) {
  Bouchain1 s;
  s.activate(h);
  require(s.validerBottom(h), "bottom");
}

inline void validatePlanks(HullStore& h) {
  Bouchain2 s;
  s.activate(h);
  require(s.validerPlanks(h), "planks");
}

// Automatic planking with stemShape 0: `planks` side planks, inclinations
// from `first` to `last` degrees, sheer heights aft, mid, forward.
inline void autoPlanks(HullStore& h, int planks, int first, int last, double zAft, double zMax,
                       double zFwd) {
  Bouchain3 s;
  s.activate(h);
  s.Text0.text = std::to_string(planks);
  s.Text1(0).text = std::to_string(first);
  s.Text2(0).text = std::to_string(last);
  s.Text2(1).text = std::to_string(zFwd);
  s.Text2(2).text = std::to_string(zMax);
  s.Text2(3).text = std::to_string(zAft);
  s.Text4.text.assign(1, '0');  // not = "0": GCC 12 warns falsely (-Wrestrict)
  require(s.validerAuto(h), "automatic planking");
}

// The default hull's bottom with 20 planks from 20 to 115 degrees and a stem
// shape of 0.6: the first chine folds under the second.
inline std::unique_ptr<HullStore> foldedHull() {
  auto h = std::make_unique<HullStore>();
  initDefaultHull(*h);
  validateBottom(*h);
  Bouchain3 s;
  s.activate(*h);
  s.Text0.text = "20";
  s.Text1(0).text = "20";
  s.Text2(0).text = "115";
  s.Text2(1).text = "1.2";
  s.Text2(2).text = "0.95";
  s.Text2(3).text = "1.0";
  s.Text4.text = "0.6";
  require(s.validerAuto(*h), "automatic planking");
  return h;
}

// The default hull, bottom and planks validated, stations built.
inline std::unique_ptr<HullStore> defaultHull() {
  auto h = std::make_unique<HullStore>();
  initDefaultHull(*h);
  validateBottom(*h);
  validatePlanks(*h);
  buildAllStations(*h);
  return h;
}

// A pram bow (yFwd(1) > 0) with four lines.
inline std::unique_ptr<HullStore> pramBowHull() {
  auto h = std::make_unique<HullStore>();
  initDefaultHull(*h);
  h->yFwd(1) = 0.3;
  h->nChines = 4;
  validateBottom(*h);
  validatePlanks(*h);
  buildAllStations(*h);
  return h;
}

// Two lines: the bottom and one side plank.
inline std::unique_ptr<HullStore> twoLineHull() {
  auto h = std::make_unique<HullStore>();
  initDefaultHull(*h);
  h->nChines = 2;
  validateBottom(*h);
  validatePlanks(*h);
  buildAllStations(*h);
  return h;
}

// 21 lines: 20 side planks from 45 to 102 degrees by 3.
inline std::unique_ptr<HullStore> manyLineHull() {
  auto h = std::make_unique<HullStore>();
  initDefaultHull(*h);
  validateBottom(*h);
  autoPlanks(*h, 20, 45, 102, 1.1, 1.05, 1.25);
  buildAllStations(*h);
  return h;
}

}  // namespace tolmar::fixture

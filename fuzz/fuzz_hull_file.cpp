// Any bytes as a hull file: the reader must neither crash nor leave a count
// or a value the store cannot hold, and what it read must survive a write
// and a second read byte for byte.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>

#include "hull/hull_file.h"

namespace {

void check(bool ok) {
  if (!ok) std::abort();
}

bool finiteLines(const tolmar::HullStore& h) {
  for (int n = 0; n <= tolmar::kMaxLine; ++n) {
    for (const tolmar::LineArr* a : {&h.xAft, &h.yAft, &h.zAft, &h.xMax, &h.yMax, &h.zMax, &h.xFwd,
                                     &h.yFwd, &h.zFwd, &h.planeA, &h.planeB, &h.planeC}) {
      if (!std::isfinite((*a)(n))) return false;
    }
  }
  return std::isfinite(h.powerFwd) && std::isfinite(h.powerAft) && std::isfinite(h.shapeAft) &&
         std::isfinite(h.shapeFwd) && std::isfinite(h.stemShape);
}

// The fields the reader touches, back to zero: cheaper than a new store of
// a quarter megabyte for every input.
void clearRead(tolmar::HullStore& h) {
  h.dataTag.clear();
  h.nChines = h.keelAdvance = h.bowAngle = h.transomAngle = 0;
  h.powerFwd = h.powerAft = h.shapeAft = h.shapeFwd = h.stemShape = 0;
  for (tolmar::LineI16* a : {&h.plankAngle, &h.bowTurn, &h.transomTurn}) a->fill(0);
  for (tolmar::LineArr* a : {&h.xAft, &h.yAft, &h.zAft, &h.xMax, &h.yMax, &h.zMax, &h.xFwd, &h.yFwd,
                             &h.zFwd, &h.planeA, &h.planeB, &h.planeC}) {
    a->fill(0);
  }
}

std::string written(const tolmar::HullStore& h) {
  std::ostringstream out;
  tolmar::writeHullFile(out, h);
  return out.str();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const bool noShapeFwd = size % 2 == 1;
  static const auto h = std::make_unique<tolmar::HullStore>();
  static const auto again = std::make_unique<tolmar::HullStore>();
  clearRead(*h);
  clearRead(*again);
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  const tolmar::FileResult r = tolmar::readHullFile(in, noShapeFwd, *h);
  check(h->nChines >= 0 && h->nChines <= tolmar::kMaxLine);
  check(finiteLines(*h));
  if (!r.ok) {
    check(!r.message.empty());
    return 0;
  }
  const std::string first = written(*h);
  std::istringstream in2(first);
  check(tolmar::readHullFile(in2, false, *again).ok);
  check(written(*again) == first);
  return 0;
}

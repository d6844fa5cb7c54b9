#include "plates_json.h"

#include <algorithm>

#include "development/developed_plate.h"
#include "development/end_plates.h"

namespace tolmar::cli {

namespace {

nlohmann::json devEdges(const DevelopedPlate& p) {
  nlohmann::json xi = nlohmann::json::array(), yi = nlohmann::json::array(),
                 xs = nlohmann::json::array(), ys = nlohmann::json::array();
  for (std::size_t i = 0; i < p.lower.size(); ++i) {
    xi.push_back(p.lower[i].x);
    yi.push_back(p.lower[i].y);
    xs.push_back(p.upper[i].x);
    ys.push_back(p.upper[i].y);
  }
  return {{"lastPoint", static_cast<int>(p.lower.size()) - 1},
          {"devXi", xi},
          {"devYi", yi},
          {"devXs", xs},
          {"devYs", ys}};
}

nlohmann::json endPlate(const HullStore& h, const EndPlate& p) {
  nlohmann::json dist = nlohmann::json::array(), half = nlohmann::json::array();
  for (int j = 0; j <= lastSectionPoint(h); ++j) {
    dist.push_back(p(1, j));
    half.push_back(p(2, j));
  }
  return {{"distance", dist}, {"halfBreadth", half}};
}

}  // namespace

nlohmann::json platesJson(const HullStore& h) {
  nlohmann::json plates = nlohmann::json::array();
  nlohmann::json decks = nlohmann::json::array();
  for (const DevelopedPlate& p : developAll(h)) {
    if (p.kind == PlateKind::bottom || p.kind == PlateKind::plank) {
      auto plate = devEdges(p);
      plate["plate"] = p.index;
      plates.push_back(plate);
    } else if (p.kind == PlateKind::deck) {
      auto deck = devEdges(p);
      deck["line"] = p.index;
      decks.push_back(deck);
    }
  }
  // The bow plate of any hull, as the plate file computes it; it means
  // something only with a pram bow.
  return {{"plates", plates},
          {"decks", decks},
          {"transomPlate", endPlate(h, transomPlateOf(h))},
          {"bowPlate", endPlate(h, bowPlateOf(h))},
          {"pramBow", hasPramBow(h)}};
}

}  // namespace tolmar::cli

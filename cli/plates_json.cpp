#include "plates_json.h"

#include <algorithm>

#include "development/calc_develop.h"
#include "development/deck_develop.h"
#include "development/end_plates.h"

namespace tolmar::cli {

namespace {

nlohmann::json devEdges(const HullStore& h, int last) {
  nlohmann::json xi = nlohmann::json::array(), yi = nlohmann::json::array(),
                 xs = nlohmann::json::array(), ys = nlohmann::json::array();
  for (int i = 0; i <= last; ++i) {
    xi.push_back(h.devXi(i));
    yi.push_back(h.devYi(i));
    xs.push_back(h.devXs(i));
    ys.push_back(h.devYs(i));
  }
  return {{"lastPoint", last}, {"devXi", xi}, {"devYi", yi}, {"devXs", xs}, {"devYs", ys}};
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

nlohmann::json platesJson(HullStore& h) {
  // Lines beyond the tables cannot be developed: held to 1..25.
  const int top = std::clamp<int>(h.nChines, 1, kMaxLine);

  nlohmann::json plates = nlohmann::json::array();
  developBottom(h);
  auto bottom = devEdges(h, kBottomLastPoint);
  bottom["plate"] = 0;
  plates.push_back(bottom);
  for (int k = 1; k <= top - 1; ++k) {
    developPlank(h, k);
    auto plank = devEdges(h, kPlankLastPoint);
    plank["plate"] = k;
    plates.push_back(plank);
  }

  nlohmann::json decks = nlohmann::json::array();
  for (int k = 1; k <= top; ++k) {
    developDeck(h, k);
    auto deck = devEdges(h, kPlankLastPoint);
    deck["line"] = k;
    decks.push_back(deck);
  }

  calcTransomPlate(h);
  calcBowPlate(h);
  return {{"plates", plates},
          {"decks", decks},
          {"transomPlate", endPlate(h, h.transomPlate)},
          {"bowPlate", endPlate(h, h.bowPlate)},
          {"pramBow", hasPramBow(h)}};
}

}  // namespace tolmar::cli

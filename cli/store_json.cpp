#include "store_json.h"

#include <algorithm>

namespace tolmar::cli {

namespace {

template <typename A>
nlohmann::json perLine(const A& a, int last) {
  nlohmann::json j = nlohmann::json::array();
  for (int n = 0; n <= last; ++n) j.push_back(a(n));
  return j;
}

template <typename G>
nlohmann::json rows(const G& g, int lastRow, int lastCol) {
  nlohmann::json j = nlohmann::json::array();
  for (int r = 0; r <= lastRow; ++r) {
    nlohmann::json row = nlohmann::json::array();
    for (int c = 0; c <= lastCol; ++c) row.push_back(g(r, c));
    j.push_back(std::move(row));
  }
  return j;
}

}  // namespace

nlohmann::json storeJson(const HullStore& h) {
  const int last = std::clamp<int>(h.nChines, 0, kMaxLine);
  nlohmann::json j;
  j["hullName"] = h.hullName;
  j["nChines"] = h.nChines;
  j["iMaxBeam"] = h.iMaxBeam;
  j["powerFwd"] = h.powerFwd;
  j["powerAft"] = h.powerAft;
  j["shapeAft"] = h.shapeAft;
  j["shapeFwd"] = h.shapeFwd;
  j["stemShape"] = h.stemShape;
  j["keelAdvance"] = h.keelAdvance;
  j["bowAngle"] = h.bowAngle;
  j["transomAngle"] = h.transomAngle;
  j["plankAngle"] = perLine(h.plankAngle, last);
  j["bowTurn"] = perLine(h.bowTurn, last);
  j["transomTurn"] = perLine(h.transomTurn, last);
  const std::pair<const char*, const LineArr*> values[] = {
      {"xAft", &h.xAft}, {"yAft", &h.yAft},     {"zAft", &h.zAft},     {"xMax", &h.xMax},
      {"yMax", &h.yMax}, {"zMax", &h.zMax},     {"xFwd", &h.xFwd},     {"yFwd", &h.yFwd},
      {"zFwd", &h.zFwd}, {"planeA", &h.planeA}, {"planeB", &h.planeB}, {"planeC", &h.planeC}};
  for (const auto& [name, arr] : values) j[name] = perLine(*arr, last);
  j["lineX"] = rows(h.lineX, last, kLastPoint);
  j["lineY"] = rows(h.lineY, last, kLastPoint);
  j["lineZ"] = rows(h.lineZ, last, kLastPoint);
  j["edgeX"] = rows(h.edgeX, 1, 83);
  j["edgeY"] = rows(h.edgeY, 1, 83);
  j["edgeZ"] = rows(h.edgeZ, 1, 83);
  return j;
}

}  // namespace tolmar::cli

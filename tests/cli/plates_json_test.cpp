// The JSON of the developed plates: one entry per plate and deck, each edge
// over exactly the points the plate uses, the same numbers as the
// development itself, and no null (a NaN or infinity) anywhere.
#include "plates_json.h"

#include <gtest/gtest.h>

#include <functional>

#include "../development/hull_fixture.h"
#include "development/calc_develop.h"
#include "development/end_plates.h"

namespace tolmar {
namespace {

bool hasNull(const nlohmann::json& j) {
  if (j.is_null()) return true;
  if (j.is_structured())
    for (const auto& v : j)
      if (hasNull(v)) return true;
  return false;
}

void expectEdges(const nlohmann::json& p, int last) {
  EXPECT_EQ(p["lastPoint"], last);
  for (const char* key : {"devXi", "devYi", "devXs", "devYs"})
    EXPECT_EQ(p[key].size(), static_cast<size_t>(last + 1)) << key;
}

TEST(PlatesJson, PramBowHullWithFourLines) {
  auto h = fixture::pramBowHull();
  const HullStore before = *h;
  const auto j = cli::platesJson(*h);
  EXPECT_EQ(*h, before);  // the store is not changed
  EXPECT_FALSE(hasNull(j));

  ASSERT_EQ(j["plates"].size(), 4u);  // bottom and planks 1..3
  expectEdges(j["plates"][0], 83);
  for (int k = 1; k <= 3; ++k) {
    EXPECT_EQ(j["plates"][k]["plate"], k);
    expectEdges(j["plates"][k], 82);
  }
  ASSERT_EQ(j["decks"].size(), 4u);
  EXPECT_EQ(j["decks"][0]["line"], 1);
  expectEdges(j["decks"][3], 82);

  EXPECT_EQ(j["transomPlate"]["distance"].size(), 14u);
  EXPECT_EQ(j["bowPlate"]["halfBreadth"].size(), 14u);
  EXPECT_TRUE(j["pramBow"]);

  // The screens' own development and end plate, in the store.
  developPlank(*h, 2);
  calcBowPlate(*h);
  EXPECT_EQ(j["plates"][2]["devYs"][40].get<double>(), h->devYs(40));
  EXPECT_EQ(j["bowPlate"]["halfBreadth"][10].get<double>(), h->bowPlate(2, 10));
}

TEST(PlatesJson, DefaultHullIsAPointedStem) {
  auto h = fixture::defaultHull();
  const auto j = cli::platesJson(*h);
  EXPECT_FALSE(hasNull(j));
  EXPECT_EQ(j["plates"].size(), 5u);
  EXPECT_EQ(j["decks"].size(), 5u);
  EXPECT_FALSE(j["pramBow"]);
  // A dump is reproducible to the byte.
  EXPECT_EQ(j.dump(), cli::platesJson(*h).dump());
}

}  // namespace
}  // namespace tolmar

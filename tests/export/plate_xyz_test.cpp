// The XYZ files of the developed plates and the number forms of the XYZ
// files.
#include <gtest/gtest.h>

#include <filesystem>

#include "development/calc_develop.h"
#include "development/end_plates.h"
#include "export/preset_host.h"
#include "export/xyz_files.h"
#include "export_fixtures.h"
#include "golden_file.h"

namespace tolmar {
namespace {

namespace fs = std::filesystem;

class PlateXyz : public testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::path(testing::TempDir()) / ("plate_xyz_" + std::to_string(::getpid()));
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }

  std::vector<std::string> names() const {
    std::vector<std::string> n;
    for (const auto& e : fs::directory_iterator(dir_)) n.push_back(e.path().filename());
    std::sort(n.begin(), n.end());
    return n;
  }
  std::string file(const std::string& name) const {
    return test::readBytes((dir_ / name).string());
  }

  fs::path dir_;
};

TEST_F(PlateXyz, FullRunOnTheDefaultHull) {
  HullStore h = test::defaultHull();
  auto host = PresetHost::toFolder(dir_.string());
  EXPECT_TRUE(saveDevelopedXyz(host, h, 1));
  // Five planks, five decks, the transom; a pointed stem has no bow plate.
  EXPECT_EQ(names(), (std::vector<std::string>{"Tolmar_D1.XYZ", "Tolmar_D2.XYZ", "Tolmar_D3.XYZ",
                                               "Tolmar_D4.XYZ", "Tolmar_D5.XYZ", "Tolmar_P0.XYZ",
                                               "Tolmar_P1.XYZ", "Tolmar_P2.XYZ", "Tolmar_P3.XYZ",
                                               "Tolmar_P4.XYZ", "Tolmar_TR.XYZ"}));
  test::expectGolden("Tolmar_P0.XYZ", file("Tolmar_P0.XYZ"));
  test::expectGolden("Tolmar_P2.XYZ", file("Tolmar_P2.XYZ"));
  test::expectGolden("Tolmar_D5.XYZ", file("Tolmar_D5.XYZ"));
  test::expectGolden("Tolmar_TR.XYZ", file("Tolmar_TR.XYZ"));
  EXPECT_EQ(h.hullName, "Tolmar");    // plate files leave the name alone
  EXPECT_EQ(host.cancelFocused, 10);  // planks and decks, not the transom
  EXPECT_EQ(*host.requests[0].title, "Tolmar2008 - Save developed plank as XYZ file");
  EXPECT_EQ(host.requests[0].filter, "Plank (*_P*.XYZ)|*.XYZ");
  EXPECT_EQ(host.requests[5].filter, "Deck (*_P*.XYZ)|*.XYZ");
  EXPECT_EQ(host.requests[10].filter, "Transom (*_TR.XYZ)|*.XYZ");
}

TEST_F(PlateXyz, PramBowAddsTheBowFile) {
  HullStore h = test::defaultHull(1, true);
  ASSERT_GT(h.yFwd(1), 0.0001);
  auto host = PresetHost::toFolder(dir_.string());
  EXPECT_TRUE(saveDevelopedXyz(host, h, 1));
  EXPECT_EQ(names().size(), 12U);
  test::expectGolden("Tolmar_BOW.XYZ", file("Tolmar_BOW.XYZ"));
  EXPECT_EQ(host.requests.back().filter, "Bow (*_BOW.XYZ)|*.XYZ");
}

TEST_F(PlateXyz, BottomOnlyWritesTwoFiles) {
  HullStore h = test::defaultHull();
  auto host = PresetHost::toFolder(dir_.string());
  EXPECT_TRUE(saveDevelopedXyz(host, h, 0));
  EXPECT_EQ(names(), (std::vector<std::string>{"Tolmar_D1.XYZ", "Tolmar_P0.XYZ"}));
}

TEST_F(PlateXyz, CancelOrFailureGoesOnWithTheNextFile) {
  HullStore h = test::defaultHull();
  auto host = PresetHost::toFolder((dir_ / "missing").string());
  EXPECT_FALSE(saveDevelopedXyz(host, h, 1));
  EXPECT_EQ(host.requests.size(), 11U);
  ASSERT_EQ(host.errors.size(), 11U);
  EXPECT_EQ(host.errors[0].substr(0, 42), "Tolmar2008 - Saving Development Plank_XYZ:");
  EXPECT_EQ(host.errors[10].substr(0, 32), "Tolmar2008 - Saving transom XYZ:");
  EXPECT_TRUE(names().empty());
  auto none = PresetHost::cancelling();
  EXPECT_TRUE(saveDevelopedXyz(none, h, 1));
  EXPECT_EQ(none.requests.size(), 11U);
  EXPECT_TRUE(none.errors.empty());
}

TEST(XyzNames, StemOfFifteenAndNoLeadingZero) {
  HullStore h;
  h.hullName = "ABCDEFGHIJKLMNOPQ";
  EXPECT_EQ(plankXyzFile(h, 12).defaultName, "ABCDEFGHIJKLMNO_P12.XYZ");
  EXPECT_EQ(deckXyzFile(h, 3).defaultName, "ABCDEFGHIJKLMNO_D3.XYZ");
  EXPECT_EQ(transomXyzFile(h).defaultName, "ABCDEFGHIJKLMNO_TR.XYZ");
  EXPECT_EQ(linesXyzFile(h).defaultName, "ABCDEFGHIJKLMNOPQ.XYZ");
}

TEST(XyzNumbers, SignSectionsOfTheLinesFile) {
  HullStore h;
  h.langue = 1;
  h.nChines = 1;
  h.lineX(0, 0) = -0.3;
  h.lineY(0, 0) = 0.0;
  h.lineZ(0, 0) = -0.0001;  // rounds to zero but keeps the negative section
  h.lineX(0, 1) = 1.25;
  h.lineY(0, 1) = -0.0;  // a negative zero is zero
  h.lineZ(0, 1) = 12.3456;
  StringSink out;
  writeLinesXyz(out, h);
  const std::string& t = out.text();
  EXPECT_NE(t.find("\r\n -0.300 \t +0.000 \t -0.000 \r\n +1.250 \t +0.000 \t +12.346 \r\n"),
            std::string::npos);
  EXPECT_NE(t.find("LINE \t Chine 1\r\n"), std::string::npos);
  EXPECT_EQ(t.substr(t.size() - 5), "EOF\r\n");
}

TEST(XyzNumbers, PlateAndPanelForms) {
  HullStore h;
  h.hullName = "B";
  h.nChines = 2;
  DevelopedPlate p;
  p.index = 3;
  p.lower.assign(83, FlatPoint{});
  p.upper.assign(83, FlatPoint{});
  p.lower[0] = {1.25, 0};
  h.transomPlate(2, 0) = 0.5;
  h.transomPlate(1, 11) = 1.0;
  StringSink plank, transom;
  writePlankXyz(plank, h, p);
  writeTransomXyz(transom, h);
  EXPECT_NE(plank.text().find("B_P3.XYZ\t created with Tolmar2008\r\nPlank \t3\r\n"),
            std::string::npos);
  EXPECT_NE(plank.text().find("\r\n 00 \t 1.250 \t 0.000 \r\n 01 \t"), std::string::npos);
  EXPECT_NE(transom.text().find(" CL \t 0.500 \t 1.000 \r\n\r\nEOF \r\n"), std::string::npos);
  EXPECT_NE(transom.text().find("point \t   Y \t    Z \r\n 00 \t"), std::string::npos);
}

}  // namespace
}  // namespace tolmar

#include "hull/hull_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "hull/default_hull.h"
#include "regenerate.h"

namespace tolmar {
namespace {

namespace fs = std::filesystem;

std::unique_ptr<HullStore> newStore() { return std::make_unique<HullStore>(); }

std::string slurp(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string written(const HullStore& h) {
  std::ostringstream out;
  writeHullFile(out, h);
  return out.str();
}

FileResult readText(const std::string& text, HullStore& h, bool noShapeFwd = false) {
  std::istringstream in(text);
  return readHullFile(in, noShapeFwd, h);
}

// A folder of its own for each process: other builds may run these tests at once.
fs::path tempDir(const char* name) {
  const fs::path dir =
      fs::temp_directory_path() / (std::string(name) + "_" + std::to_string(getpid()));
  fs::remove_all(dir);
  fs::create_directories(dir);
  return dir;
}

fs::path data(const char* name) { return fs::path(TOLMAR_TEST_DATA) / "hull" / name; }

// A hull unlike the default: other flags, count, signs and exponents.
void otherHull(HullStore& h) {
  h.hullName = "Dory";
  h.nChines = 3;
  h.powerFwd = 1.0 / 3;
  h.powerAft = -2.75;
  h.shapeAft = 1e-5;
  h.shapeFwd = 0.1;
  h.stemShape = 123456789012345;
  h.keelAdvance = -7;
  h.bowAngle = 0;
  h.transomAngle = 32767;
  const i16 bow[] = {1, 1, -1, 1}, transom[] = {1, 1, 1, -1};
  for (int n = 0; n <= 3; ++n) {
    h.bowTurn(n) = bow[n];
    h.transomTurn(n) = transom[n];
    h.plankAngle(n) = static_cast<i16>(10 + 30 * n);
    h.xFwd(n) = 4.2 + n / 7.0;
    h.yFwd(n) = n * 0.05;
    h.zFwd(n) = -0.3 + n * 0.2;
    h.xMax(n) = 2.1;
    h.yMax(n) = 0.6 + n * 0.01;
    h.zMax(n) = n * 0.15;
    h.xAft(n) = n * 1e-7;
    h.yAft(n) = 0.5;
    h.zAft(n) = 0.1 * n;
    h.planeA(n) = 1.5e20;
    h.planeB(n) = -0.000123;
    h.planeC(n) = 2.0 / 3;
  }
}

// Values of line n in the hand-written fixtures.
struct FixtureLine {
  int angle;
  double v[12];  // xFwd yFwd zFwd xMax yMax zMax xAft yAft zAft planeA planeB planeC
};
FixtureLine fixtureLine(int n) {
  const int angles[] = {12, 45, 70, 85, 90};
  return {angles[n],
          {6 + n * 0.01, 0.1 * n, 0.3 + 0.2 * n, 3, 0.95 + 0.05 * n, 0.1 * n, 0.02 * n,
           0.7 + 0.05 * n, 0.15 + 0.2 * n, 0.01 * n, -0.001 * n, 0.5 * n}};
}
void expectFixtureLine(const HullStore& h, int n, int from) {
  const FixtureLine f = fixtureLine(from);
  const double got[] = {h.xFwd(n), h.yFwd(n), h.zFwd(n), h.xMax(n),   h.yMax(n),   h.zMax(n),
                        h.xAft(n), h.yAft(n), h.zAft(n), h.planeA(n), h.planeB(n), h.planeC(n)};
  for (int k = 0; k < 12; ++k) EXPECT_NEAR(got[k], f.v[k], 1e-12) << "line " << n << " value " << k;
}

TEST(HullFileWriter, DefaultHullMatchesGoldenFile) {
  auto h = newStore();
  initDefaultHull(*h);
  EXPECT_EQ(makeDataTag(*h), "&NNNNNRRRC05");
  const std::string text = written(*h);
  const fs::path golden = fs::path(TOLMAR_GOLDEN) / "default_hull.D50";
  if (tolmar::test::regenerating()) std::ofstream(golden, std::ios::binary) << text;
  EXPECT_EQ(text, slurp(golden));
  EXPECT_EQ(text.substr(0, 39), "TOLMAR2005 - Tolmar2008\r\n&NNNNNRRRC05\r\n");
  EXPECT_NE(text.find("\r\nLINE  0\r\n 12\r\n 6\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\n 40\r\n 15\r\n-25\r\nLINE  0\r\n"), std::string::npos);
  EXPECT_EQ(text.substr(text.size() - 6), "EOF \r\n");
}

TEST(HullFileWriter, TagLetters) {
  auto h = newStore();
  h->nChines = 2;
  h->bowTurn(2) = 1;
  h->transomTurn(2) = 0;  // anything but +1 is "R"
  EXPECT_EQ(makeDataTag(*h), "&NRC02");
  h->nChines = 0;
  EXPECT_EQ(makeDataTag(*h), "&C00");
  h->nChines = 12;
  EXPECT_EQ(makeDataTag(*h).substr(makeDataTag(*h).size() - 3), "C12");
}

TEST(HullFileRoundTrip, FileToStoreToFileIsByteForByte) {
  for (const bool other : {false, true}) {
    auto a = newStore();
    if (other)
      otherHull(*a);
    else
      initDefaultHull(*a);
    const std::string first = written(*a);
    auto b = newStore();
    b->hullName = a->hullName;
    ASSERT_TRUE(readText(first, *b).ok);
    EXPECT_EQ(written(*b), first);
    EXPECT_EQ(b->nChines, a->nChines);
    for (int n = 2; n <= a->nChines; ++n) {
      EXPECT_EQ(b->bowTurn(n), a->bowTurn(n)) << n;
      EXPECT_EQ(b->transomTurn(n), a->transomTurn(n)) << n;
      EXPECT_EQ(b->plankAngle(n), a->plankAngle(n)) << n;
      EXPECT_NEAR(b->planeC(n), a->planeC(n), 1e-14) << n;
    }
    EXPECT_EQ(b->dataTag, makeDataTag(*a).substr(1));
  }
}

TEST(HullFileRoundTrip, SaveAndOpenRebuildTheSameLines) {
  auto a = newStore();
  initDefaultHull(*a);
  const fs::path dir = tempDir("hull_file_open");
  ASSERT_TRUE(saveHullFile(dir / "Dory.v2.D50", *a).ok);
  EXPECT_EQ(a->dataTag, "&NNNNNRRRC05");
  EXPECT_EQ(slurp(dir / "Dory.v2.D50"), written(*a));

  a->lineX.fill(0);
  buildBottomLines(*a);
  buildBottomEdges(*a);
  for (int n = 2; n <= a->nChines; ++n) buildLine(*a, n);

  auto b = newStore();
  b->lineX.fill(99);
  int busyCalls = 0;
  ASSERT_TRUE(openHullFile(dir / "Dory.v2.D50", *b, [&](int) { ++busyCalls; }).ok);
  EXPECT_EQ(b->hullName, "Dory");
  EXPECT_EQ(busyCalls, 4);
  for (int n = 0; n <= 5; ++n) {
    for (int p = 0; p <= kLastPoint; ++p) {
      EXPECT_NEAR(b->lineX(n, p), a->lineX(n, p), 1e-9);
      EXPECT_NEAR(b->lineZ(n, p), a->lineZ(n, p), 1e-9);
    }
  }
  EXPECT_EQ(b->lineX(6, 0), 0);  // cleared above nChines
  for (int i = 0; i <= 83; ++i) EXPECT_NEAR(b->edgeY(1, i), a->edgeY(1, i), 1e-9);
  fs::remove_all(dir);
}

TEST(HullFileOldLayouts, NoVersionWordTakesLineOneForTheTag) {
  auto h = newStore();
  std::ifstream in(data("old_no_version.D50"), std::ios::binary);
  ASSERT_TRUE(readHullFile(in, false, *h).ok);
  EXPECT_EQ(h->nChines, 3);
  EXPECT_EQ(h->powerFwd, 2.5);
  EXPECT_EQ(h->shapeFwd, 0.5);
  EXPECT_EQ(h->transomAngle, -25);
  EXPECT_EQ(h->bowTurn(2), 1);
  EXPECT_EQ(h->transomTurn(2), 1);
  EXPECT_EQ(h->bowTurn(3), -1);
  EXPECT_EQ(h->transomTurn(3), 1);
  for (int n = 0; n <= 3; ++n) {
    EXPECT_EQ(h->plankAngle(n), fixtureLine(n).angle);
    expectFixtureLine(*h, n, n);
  }
  EXPECT_EQ(h->stemShape, 0.8);
}

TEST(HullFileOldLayouts, NoAmpersandAndEarlyEndMakeUpTheLastBlock) {
  auto h = newStore();
  h->bowTurn(4) = -1;
  h->transomTurn(3) = -1;
  std::ifstream in(data("old_no_amp_short.D50"), std::ios::binary);
  ASSERT_TRUE(readHullFile(in, false, *h).ok);
  EXPECT_EQ(h->nChines, 4);  // "C" at the first position is no count
  for (int n : {2, 3}) {
    EXPECT_EQ(h->bowTurn(n), 1);
    EXPECT_EQ(h->transomTurn(n), 1);
  }
  EXPECT_EQ(h->bowTurn(4), -1);  // the others unchanged
  EXPECT_EQ(h->plankAngle(2), 70);
  EXPECT_EQ(h->plankAngle(3), 70);  // plankAngle(2) copied up twice
  EXPECT_EQ(h->plankAngle(4), 70);
  expectFixtureLine(*h, 3, 3);
  expectFixtureLine(*h, 4, 3);
  EXPECT_EQ(h->stemShape, 0);
}

TEST(HullFileOldLayouts, OldestD51WithoutLineLinesOrShapeFwd) {
  auto h = newStore();
  h->shapeFwd = 9;
  h->stemShape = 9;
  std::ifstream in(data("old_oldest.D51"), std::ios::binary);
  ASSERT_TRUE(readHullFile(in, true, *h).ok);
  EXPECT_EQ(h->nChines, 4);
  EXPECT_EQ(h->powerFwd, 2.5);  // "2,5"
  EXPECT_EQ(h->powerAft, 2.1);
  EXPECT_EQ(h->shapeAft, 1);
  EXPECT_EQ(h->shapeFwd, 0);
  EXPECT_EQ(h->keelAdvance, 40);
  EXPECT_EQ(h->transomAngle, -25);
  for (int n = 0; n <= 4; ++n) {
    EXPECT_EQ(h->plankAngle(n), fixtureLine(n).angle);
    expectFixtureLine(*h, n, n);
  }
  EXPECT_EQ(h->stemShape, 0);
}

TEST(HullFileOldLayouts, D51IsToldByTheLastTwoCharactersOfThePath) {
  EXPECT_TRUE(isOldLayoutPath("/boats/Old.D51"));
  EXPECT_TRUE(isOldLayoutPath("old.d51"));
  EXPECT_TRUE(isOldLayoutPath("hull51"));
  EXPECT_FALSE(isOldLayoutPath("Old.D50"));
  EXPECT_FALSE(isOldLayoutPath("Old.D51 "));
  EXPECT_FALSE(isOldLayoutPath("1"));

  // Through the open action: the copy named .d51 has no shapeFwd line.
  const fs::path dir = tempDir("hull_file_d51");
  fs::copy_file(data("old_oldest.D51"), dir / "oldest.d51");
  auto h = newStore();
  ASSERT_TRUE(openHullFile(dir / "oldest.d51", *h).ok);
  EXPECT_EQ(h->hullName, "oldest");
  EXPECT_EQ(h->keelAdvance, 40);
  EXPECT_NE(h->lineX(4, 40), 0);
  fs::remove_all(dir);
}

const char* const kHead = "Boat - Tolmar2008\r\n";

std::string block(int n, const char* angle = " 45") {
  std::string s = "LINE  " + std::to_string(n) + "\r\n" + angle + "\r\n";
  for (int k = 0; k < 12; ++k) s += " " + std::to_string(n + k) + "\r\n";
  return s;
}

TEST(HullFileTag, CountAndFlagsFromTheTag) {
  auto h = newStore();
  const std::string values = " 1\r\n 2\r\n 3\r\n 4\r\n 5\r\n 6\r\n 7\r\n";
  ASSERT_TRUE(readText(std::string(kHead) + "&NRC02\r\n" + values + block(0) + block(1) + block(2) +
                           " 1.5\r\nEOF \r\n",
                       *h)
                  .ok);
  EXPECT_EQ(h->nChines, 2);
  EXPECT_EQ(h->bowTurn(2), 1);
  EXPECT_EQ(h->transomTurn(2), -1);
  EXPECT_EQ(h->dataTag, "NRC02");
  EXPECT_EQ(h->stemShape, 1.5);
  EXPECT_EQ(h->xFwd(2), 2);
  EXPECT_EQ(h->planeC(2), 13);

  auto e = newStore();  // a tag that ends right after "C": count 0, one block
  ASSERT_TRUE(
      readText(std::string(kHead) + "&C\r\n" + values + block(0) + " 2\r\nEOF \r\n", *e).ok);
  EXPECT_EQ(e->nChines, 0);
  EXPECT_EQ(e->stemShape, 2);

  auto s = newStore();  // short flags: missing letters are not "N"
  ASSERT_TRUE(readText("&NC03\r\n", *s).ok);
  EXPECT_EQ(s->nChines, 3);
  EXPECT_EQ(s->bowTurn(2), 1);
  EXPECT_EQ(s->transomTurn(2), -1);  // the "C"
  EXPECT_EQ(s->bowTurn(3), -1);
}

TEST(HullFileTag, UnknownVersionWordPutsTheTagWherePowerFwdIsDue) {
  auto h = newStore();
  ASSERT_TRUE(readText("Boat - Tolmar2010\r\n&NNC02\r\n 2.5\r\n", *h).ok);
  EXPECT_EQ(h->nChines, 4);
  EXPECT_EQ(h->powerFwd, 0);
  EXPECT_EQ(h->powerAft, 2.5);
}

TEST(HullFileValues, CommasTextAndWordsInsideLines) {
  auto h = newStore();
  const std::string text =
      std::string(kHead) + "&NNC02\r\n 1,5\r\nabc\r\n 3x\r\n 4\r\n 5\r\n 6\r\n 7\r\n" +
      "--LINE--\r\n 12\r\n" + block(0).substr(14) + block(1) + block(2) + " 1.25 EOF\r\n";
  ASSERT_TRUE(readText(text, *h).ok);
  EXPECT_EQ(h->powerFwd, 1.5);
  EXPECT_EQ(h->powerAft, 0);
  EXPECT_EQ(h->shapeAft, 3);
  EXPECT_EQ(h->plankAngle(0), 12);
  EXPECT_EQ(h->xFwd(0), 0);
  EXPECT_EQ(h->planeC(1), 12);
  EXPECT_EQ(h->stemShape, 0);  // "EOF" inside the line
}

TEST(HullFileValues, WholeDegreesRoundHalfToEven) {
  auto h = newStore();
  ASSERT_TRUE(readText("&C00\r\n 0\r\n 0\r\n 0\r\n 0\r\n 12.5\r\n 13.5\r\n-2.5\r\n", *h).ok);
  EXPECT_EQ(h->keelAdvance, 12);
  EXPECT_EQ(h->bowAngle, 14);
  EXPECT_EQ(h->transomAngle, -2);
}

TEST(HullFileValues, TruncatedFilesReadZeros) {
  auto a = newStore();
  initDefaultHull(*a);
  const std::string full = written(*a);
  for (std::size_t cut :
       {std::size_t{0}, std::size_t{10}, std::size_t{40}, full.size() / 2, full.size() - 8}) {
    auto h = newStore();
    h->stemShape = 5;
    h->powerFwd = 5;
    const FileResult r = readText(full.substr(0, cut), *h);
    ASSERT_TRUE(r.ok) << cut;
    EXPECT_EQ(h->nChines, cut < 30 ? 4 : 5) << cut;
    EXPECT_EQ(h->stemShape, 0) << cut;
  }
  auto h = newStore();
  ASSERT_TRUE(readText(full.substr(0, full.size() / 2), *h).ok);
  EXPECT_EQ(h->zFwd(5), 0);
  EXPECT_EQ(h->powerFwd, 2.5);
}

TEST(HullFileRefusals, CountAboveTwentyFiveStopsAtLine26) {
  std::string text = std::string(kHead) + "&C26\r\n 1\r\n 2\r\n 3\r\n 4\r\n 5\r\n 6\r\n 7\r\n";
  for (int n = 0; n <= 26; ++n) text += block(n);
  auto h = newStore();
  const FileResult r = readText(text, *h);
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.message, "Subscript out of range");
  EXPECT_EQ(h->nChines, 25);
  EXPECT_EQ(h->planeC(25), 36);
  EXPECT_EQ(h->stemShape, 0);

  auto n25 = newStore();
  text = std::string(kHead) + "&C25\r\n 1\r\n 2\r\n 3\r\n 4\r\n 5\r\n 6\r\n 7\r\n";
  for (int n = 0; n <= 25; ++n) text += block(n);
  EXPECT_TRUE(readText(text + " 3\r\nEOF \r\n", *n25).ok);
  EXPECT_EQ(n25->nChines, 25);
  EXPECT_EQ(n25->stemShape, 3);
}

TEST(HullFileRefusals, NegativeCountAndSixteenBitOverflow) {
  auto h = newStore();
  h->nChines = 5;
  FileResult r = readText("&C-1\r\n", *h);
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.message, "Subscript out of range");
  EXPECT_EQ(h->nChines, 5);

  h->keelAdvance = 33;
  r = readText("&C02\r\n 1\r\n 2\r\n 3\r\n 4\r\n 40000\r\n", *h);
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.message, "Overflow");
  EXPECT_EQ(h->keelAdvance, 33);
  EXPECT_EQ(h->powerFwd, 1);

  r = readText("&C00\r\n 1e999\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n" + block(0, "-32769"), *h);
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(h->powerFwd, std::numeric_limits<double>::max());
}

TEST(HullFileOpen, SystemErrorsComeBackAsText) {
  auto h = newStore();
  FileResult r = openHullFile("/nonexistent/dir/Boat.D50", *h);
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.message, "No such file or directory");
  r = openHullFile(TOLMAR_TEST_DATA, *h);
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.message, "Is a directory");
}

TEST(HullFileSave, AFailedSaveLeavesTheFolderAsItWas) {
  const fs::path dir = tempDir("hull_file_save");
  fs::create_directories(dir / "Taken.D50");
  auto h = newStore();
  initDefaultHull(*h);
  FileResult r = saveHullFile(dir / "Taken.D50", *h);
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.message, "Is a directory");
  r = saveHullFile(dir / "missing" / "Boat.D50", *h);
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.message, "No such file or directory");
  EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 1);

  std::ofstream(dir / "Old.D50") << "old contents";
  ASSERT_TRUE(saveHullFile(dir / "Old.D50", *h).ok);
  EXPECT_EQ(slurp(dir / "Old.D50"), written(*h));
  EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 2);
  fs::remove_all(dir);
}

TEST(HullFileNames, HullNameAndSavePath) {
  EXPECT_EQ(hullNameFromFileName("Dory.D50"), "Dory");
  EXPECT_EQ(hullNameFromFileName("Dory.v2.D50"), "Dory");
  EXPECT_EQ(hullNameFromFileName("Dory"), "Dory");
  EXPECT_EQ(hullNameFromFileName(".D50"), ".D50");
  EXPECT_EQ(hullNameFromFileName(".a.D50"), ".a.D50");
  EXPECT_EQ(hullNameFromFileName("D.x"), "D");
  EXPECT_EQ(hullSavePath("/b/Dory.v2.txt"), fs::path("/b/Dory.D50"));
  EXPECT_EQ(hullSavePath("/b/Dory"), fs::path("/b/Dory.D50"));
  EXPECT_EQ(hullSavePath("Dory.d50"), fs::path("Dory.D50"));
  EXPECT_EQ(hullSavePath("/b.c/.hidden"), fs::path("/b.c/.D50"));
}

}  // namespace
}  // namespace tolmar

// tolmar-cli draw end to end: the default hull as PNG and SVG, the size
// option, and the command line and file errors.  Skipped in a build
// without the Qt drawing library, where the command does not exist.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;

fs::path scratch() {
  const fs::path d = fs::temp_directory_path() / ("tolmar_draw_" + std::to_string(getpid()));
  fs::create_directories(d);
  return d;
}

int cli(const std::string& args) {
  const std::string cmd = "'" + std::string(TOLMAR_CLI) + "' " + args + " >/dev/null 2>&1";
  const int st = std::system(cmd.c_str());
  return WIFEXITED(st) ? WEXITSTATUS(st) : -1;
}

bool haveDraw() { return cli("draw --help") == 0; }

std::string slurp(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

// Width and height from a PNG's IHDR chunk.
std::pair<int, int> pngSize(const std::string& png) {
  auto be32 = [&](std::size_t at) {
    return (static_cast<unsigned char>(png[at]) << 24) |
           (static_cast<unsigned char>(png[at + 1]) << 16) |
           (static_cast<unsigned char>(png[at + 2]) << 8) | static_cast<unsigned char>(png[at + 3]);
  };
  if (png.size() < 24 || png.compare(1, 3, "PNG") != 0) return {0, 0};
  return {be32(16), be32(20)};
}

TEST(CliDraw, DefaultHullAsPngAndSvg) {
  if (!haveDraw()) GTEST_SKIP() << "built without the Qt drawing library";
  const fs::path d = scratch();
  const fs::path hull = d / "TOLMAR2005.D50";
  ASSERT_EQ(cli("new '" + hull.string() + "'"), 0);
  ASSERT_EQ(cli("draw '" + hull.string() + "' '" + (d / "a.png").string() + "'"), 0);
  EXPECT_EQ(pngSize(slurp(d / "a.png")), std::make_pair(1600, 1000));
  ASSERT_EQ(cli("draw '" + hull.string() + "' '" + (d / "b.PNG").string() +
                "' --size 640x400 --station 2,5"),
            0);
  EXPECT_EQ(pngSize(slurp(d / "b.PNG")), std::make_pair(640, 400));
  ASSERT_EQ(cli("draw '" + hull.string() + "' '" + (d / "c.svg").string() + "' --size 800x500"), 0);
  const std::string svg = slurp(d / "c.svg");
  EXPECT_NE(svg.find("<svg"), std::string::npos);
  EXPECT_NE(svg.find("TOLMAR2005"), std::string::npos);
  // The overlays add to the same picture: the plates of Develop, and the
  // water line left by the hydrostatics.
  const std::string plain = slurp(d / "a.png");
  ASSERT_EQ(cli("draw '" + hull.string() + "' '" + (d / "dev.png").string() + "' --develop"), 0);
  ASSERT_EQ(cli("draw '" + hull.string() + "' '" + (d / "wl.png").string() + "' --hydro-disp 0.5"),
            0);
  ASSERT_EQ(cli("draw '" + hull.string() + "' '" + (d / "zwl.png").string() + "' --hydro-zwl 0.1"),
            0);
  for (const char* name : {"dev.png", "wl.png", "zwl.png"}) {
    EXPECT_EQ(pngSize(slurp(d / name)), std::make_pair(1600, 1000)) << name;
    EXPECT_NE(slurp(d / name), plain) << name;
  }
  fs::remove_all(d);
}

TEST(CliDraw, BadCommandLinesAndFiles) {
  if (!haveDraw()) GTEST_SKIP() << "built without the Qt drawing library";
  const fs::path d = scratch();
  const fs::path hull = d / "H.D50";
  ASSERT_EQ(cli("new '" + hull.string() + "'"), 0);
  const std::string h = "'" + hull.string() + "' ";
  EXPECT_EQ(cli("draw " + h), 2);
  EXPECT_EQ(cli("draw " + h + "'" + (d / "x.gif").string() + "'"), 2);
  EXPECT_EQ(cli("draw " + h + "'" + (d / "x.png").string() + "' --size 10"), 2);
  EXPECT_EQ(cli("draw " + h + "'" + (d / "x.png").string() + "' --size 0x10"), 2);
  EXPECT_EQ(cli("draw " + h + "'" + (d / "x.png").string() + "' --station"), 2);
  EXPECT_EQ(cli("draw " + h + "'" + (d / "x.png").string() + "' --frob"), 2);
  EXPECT_EQ(cli("draw " + h + "'" + (d / "x.png").string() + "' --hydro-zwl 0.1 --hydro-disp 1"),
            2);
  EXPECT_EQ(cli("draw " + h + "'" + (d / "x.png").string() + "' --set nonsense"), 2);
  EXPECT_EQ(cli("draw '" + (d / "none.D50").string() + "' '" + (d / "x.png").string() + "'"), 1);
  EXPECT_EQ(cli("draw " + h + "'" + (d / "no" / "dir" / "x.png").string() + "'"), 1);
  EXPECT_FALSE(fs::exists(d / "x.png"));
  fs::remove_all(d);
}

}  // namespace

// tolmar-cli print HULL patterns, read back by poppler: the tiles of a plate
// put together by their registration crosses give the plate's outline as
// the development gives it; the page counts on A4, A3 and Letter are the
// plan's; bad options print nothing.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <deque>
#include <filesystem>
#include <map>
#include <regex>

#include "cli_run.h"
#include "development/developed_plate.h"
#include "development/hull_fixture.h"
#include "pdf_probe.h"
#include "printing/paper_setup.h"
#include "printing/pattern_plan.h"

namespace {

namespace fs = std::filesystem;
using namespace tolmar::testing;

class PrintPatterns : public ::testing::Test {
 protected:
  void SetUp() override {
    if (runCli("print --help").status != 0) GTEST_SKIP() << "built without the Qt drawing library";
    if (!popplerReady()) GTEST_SKIP() << "poppler, python3 or pdf_measure.py missing";
    dir_ = fs::temp_directory_path() / ("tolmar_patterns_" + std::to_string(getpid()));
    fs::create_directories(dir_);
    hull_ = dir_ / "BOAT.D50";
    fs::copy_file(fs::path(TOLMAR_GOLDEN) / "default_hull.D50", hull_);
  }
  void TearDown() override {
    if (!dir_.empty()) fs::remove_all(dir_);
  }
  CliRun patterns(const fs::path& pdf, const std::string& more = "") {
    return runCli("print " + quoted(hull_) + " patterns " + quoted(pdf) + " " + more);
  }
  fs::path dir_, hull_;
};

struct Pt {
  double x, y;
};

double distToSegment(Pt p, Pt a, Pt b) {
  const double dx = b.x - a.x, dy = b.y - a.y, l2 = dx * dx + dy * dy;
  double t = l2 > 0 ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / l2 : 0;
  t = std::clamp(t, 0.0, 1.0);
  return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

struct TilePage {
  std::vector<Pt> crosses;  // centres, page mm
  std::vector<Segment> outline;
};

// The crosses: a thin horizontal and a thin vertical arm of 8 mm (a 10 mm
// overlap) sharing their middle.
std::vector<Pt> crossesOf(const std::vector<Segment>& segs) {
  std::vector<Pt> r;
  for (const Segment& h : segs) {
    if (!h.horizontal || std::fabs(h.lengthMm - 8) > 0.01) continue;
    const Pt mh{(h.x0 + h.x1) / 2, (h.y0 + h.y1) / 2};
    for (const Segment& v : segs)
      if (v.vertical && std::fabs(v.lengthMm - 8) <= 0.01 &&
          std::hypot((v.x0 + v.x1) / 2 - mh.x, (v.y0 + v.y1) / 2 - mh.y) < 0.01)
        r.push_back(mh);
  }
  return r;
}

// Where tile b lies in the frame of its neighbour a: the crosses of the
// band they share, a's on its far side and b's on its near side, must all
// give one offset.
bool offsetBetween(const TilePage& a, const TilePage& b, bool across, Pt& d) {
  auto key = [&](const Pt& p) { return across ? p.x : p.y; };
  auto side = [&](const std::vector<Pt>& cs, bool far) {
    double best = far ? -1e9 : 1e9;
    for (const Pt& p : cs) best = far ? std::max(best, key(p)) : std::min(best, key(p));
    std::vector<Pt> r;
    for (const Pt& p : cs)
      if (std::fabs(key(p) - best) < 1) r.push_back(p);
    std::sort(r.begin(), r.end(), [&](Pt p, Pt q) { return across ? p.y < q.y : p.x < q.x; });
    return r;
  };
  const auto ca = side(a.crosses, true), cb = side(b.crosses, false);
  if (ca.size() != 2 || cb.size() != 2) return false;
  d = {ca[0].x - cb[0].x, ca[0].y - cb[0].y};
  return std::hypot(ca[1].x - cb[1].x - d.x, ca[1].y - cb[1].y - d.y) < 0.01;
}

TEST_F(PrintPatterns, TilesJoinedByTheirCrossesGiveTheOutline) {
  const fs::path pdf = dir_ / "transom.pdf";
  ASSERT_EQ(patterns(pdf, "--plates transom --paper A3").status, 0);
  const int n = pdfPages(pdf);
  ASSERT_GT(n, 2);
  std::map<std::pair<int, int>, TilePage> tiles;
  const std::regex rc("row (\\d+) of \\d+, column (\\d+) of \\d+");
  for (int p = 2; p <= n; ++p) {
    std::smatch m;
    const std::string text = pageText(pdf, p);
    ASSERT_TRUE(std::regex_search(text, m, rc)) << text;
    const auto segs = segments(pdf, p);
    TilePage t;
    t.crosses = crossesOf(segs);
    for (const Segment& s : segs)
      if (s.widthPt > 0.12 && s.widthPt < 0.3) t.outline.push_back(s);  // 3 dots of 1/1200 inch
    tiles[{std::stoi(m[1]), std::stoi(m[2])}] = t;
  }
  ASSERT_GE(tiles.size(), 4u);
  // Each tile placed in the first one's frame through a neighbour.
  std::map<std::pair<int, int>, Pt> at;
  std::deque<std::pair<int, int>> todo{tiles.begin()->first};
  at[todo.front()] = {0, 0};
  while (!todo.empty()) {
    const auto k = todo.front();
    todo.pop_front();
    for (const auto& [dr, dc] : {std::pair{0, 1}, {1, 0}, {0, -1}, {-1, 0}}) {
      const std::pair<int, int> nb{k.first + dr, k.second + dc};
      if (!tiles.count(nb) || at.count(nb)) continue;
      Pt d{};
      const bool forward = dr + dc > 0;
      const bool ok = forward ? offsetBetween(tiles[k], tiles[nb], dc != 0, d)
                              : offsetBetween(tiles[nb], tiles[k], dc != 0, d);
      ASSERT_TRUE(ok) << "crosses of " << k.first << "," << k.second << " and " << nb.first << ","
                      << nb.second << " do not line up";
      const Pt o = at[k];
      at[nb] = forward ? Pt{o.x + d.x, o.y + d.y} : Pt{o.x - d.x, o.y - d.y};
      todo.push_back(nb);
    }
  }
  ASSERT_EQ(at.size(), tiles.size()) << "every printed tile joins the others";
  std::vector<std::pair<Pt, Pt>> joined;
  for (const auto& [k, t] : tiles)
    for (const Segment& s : t.outline)
      joined.push_back({{s.x0 + at[k].x, s.y0 + at[k].y}, {s.x1 + at[k].x, s.y1 + at[k].y}});
  ASSERT_FALSE(joined.empty());

  // The development's outline, in mm with Y down, as it lies along the
  // paper or turned a quarter; moved onto the joined one by their boxes.
  const auto hull = tolmar::fixture::defaultHull();
  const auto plates = tolmar::developAll(*hull);
  const auto transom =
      std::find_if(plates.begin(), plates.end(), [](const auto& p) { return p.name == "transom"; });
  ASSERT_NE(transom, plates.end());
  const auto outline = transom->outline(true);
  double best = 1e9, bestCover = 1e9;
  for (bool turned : {false, true}) {
    std::vector<Pt> o;
    for (const auto& q : outline)
      o.push_back(turned ? Pt{1000 * q.y, 1000 * q.x} : Pt{1000 * q.x, -1000 * q.y});
    Pt lo{1e9, 1e9}, jl{1e9, 1e9};
    for (const Pt& p : o) lo = {std::min(lo.x, p.x), std::min(lo.y, p.y)};
    for (const auto& [a, b] : joined) jl = {std::min({jl.x, a.x, b.x}), std::min({jl.y, a.y, b.y})};
    for (Pt& p : o) p = {p.x - lo.x + jl.x, p.y - lo.y + jl.y};
    double worst = 0, cover = 0;
    for (const auto& [a, b] : joined)
      for (const Pt& e : {a, b}) {
        double d = 1e9;
        for (std::size_t i = 0; i < o.size(); ++i)
          d = std::min(d, distToSegment(e, o[i], o[(i + 1) % o.size()]));
        worst = std::max(worst, d);
      }
    for (const Pt& v : o) {
      double d = 1e9;
      for (const auto& [a, b] : joined) d = std::min(d, distToSegment(v, a, b));
      cover = std::max(cover, d);
    }
    if (worst < best) {
      best = worst;
      bestCover = cover;
    }
  }
  EXPECT_LT(best, 0.1) << "a printed line off the plate's outline, mm";
  EXPECT_LT(bestCover, 0.1) << "a corner of the outline missing from the tiles, mm";
}

// The page count of each paper is the plan's for the part of the sheet
// inside the 5 mm margins (15 pt) and the bands of the calibration bars.
TEST_F(PrintPatterns, PageCountsByPaper) {
  const auto hull = tolmar::fixture::defaultHull();
  const auto plates = tolmar::developAll(*hull);
  std::vector<std::string> none;
  const auto chosen = tolmar::choosePlates(plates, {}, none);
  struct Paper {
    const char* name;
    double wPt, hPt;
  };
  std::map<std::string, int> counts;
  for (const Paper& p :
       {Paper{"A4", 595, 842}, Paper{"A3", 842, 1191}, Paper{"Letter", 612, 792}}) {
    SCOPED_TRACE(p.name);
    const fs::path pdf = dir_ / (std::string(p.name) + ".pdf");
    ASSERT_EQ(patterns(pdf, std::string("--paper ") + p.name).status, 0);
    const tolmar::CalibrationLayout area =
        tolmar::calibrationLayout((p.wPt - 30) * kMmPerPt, (p.hPt - 30) * kMmPerPt);
    const tolmar::PatternPlan plan = tolmar::planPatterns(chosen, area.drawW, area.drawH, 10);
    counts[p.name] = pdfPages(pdf);
    EXPECT_EQ(counts[p.name], plan.pages);
    EXPECT_EQ(plan.mapPages, 1);
  }
  EXPECT_LT(counts["A3"], counts["A4"]);
  const fs::path wide = dir_ / "wide.pdf";
  ASSERT_EQ(patterns(wide, "--overlap-mm 30").status, 0);
  EXPECT_GT(pdfPages(wide), counts["A4"]) << "wider bands, more tiles";
}

TEST_F(PrintPatterns, MapAndTilesInFrench) {
  const fs::path pdf = dir_ / "fr.pdf";
  ASSERT_EQ(patterns(pdf, "--lang fr --plates p01,transom").status, 0);
  const std::string map = pageText(pdf, 1);
  EXPECT_NE(map.find("Gabarits grandeur nature"), std::string::npos) << map;
  EXPECT_NE(map.find("bordé 1"), std::string::npos);
  EXPECT_NE(map.find("à couper 2 fois, en miroir"), std::string::npos);
  EXPECT_NE(map.find("tableau"), std::string::npos);
  const std::string tile = pageText(pdf, 2);
  EXPECT_NE(tile.find("rangée 1 sur"), std::string::npos) << tile;
  EXPECT_NE(tile.find("barre d'étalonnage 200 mm"), std::string::npos) << tile;
}

TEST_F(PrintPatterns, BadOptionsPrintNothing) {
  const fs::path pdf = dir_ / "bad.pdf";
  for (const std::string more :
       {"--overlap-mm 0", "--overlap-mm 4", "--overlap-mm 51", "--overlap-mm -3", "--overlap-mm x",
        "--plates p99", "--plates ,", "--margin-mm 100"}) {
    SCOPED_TRACE(more);
    const CliRun r = patterns(pdf, more);
    EXPECT_EQ(r.status, 2) << r.err;
    EXPECT_FALSE(r.err.empty());
    EXPECT_FALSE(fs::exists(pdf));
  }
  EXPECT_NE(patterns(pdf, "--plates p99").err.find("p01"), std::string::npos)
      << "the plates that exist are named";
  const CliRun r = patterns(dir_ / "no" / "dir.pdf");
  EXPECT_EQ(r.status, 1);
  EXPECT_FALSE(fs::exists(dir_ / "no"));
}

}  // namespace

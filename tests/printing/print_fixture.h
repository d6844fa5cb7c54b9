// Print documents recorded on an A4 page: the hulls of the development
// tests, a fixed date, and helpers that cut the recorded operations into
// pages and lay a page's texts out on a grid of characters.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "board/recording_surface.h"
#include "development/hull_fixture.h"
#include "printing/print_job.h"
#include "regenerate.h"
#include "text/utf8.h"

namespace tolmar::printtest {

using namespace std::chrono_literals;

inline constexpr float kA4Width = 11906, kA4Height = 16838;

// Counts the busy brackets it is given.
class TestHost : public FixedDateHost {
 public:
  TestHost() : FixedDateHost(2025y / 6 / 15) {}
  void setBusy(bool busy) override { busyCalls.push_back(busy); }
  std::vector<bool> busyCalls;
};

struct Printout {
  explicit Printout(std::unique_ptr<HullStore> hull, float w = kA4Width, float ht = kA4Height)
      : h(std::move(hull)), s(w, ht), job{s, *h, host} {}
  std::unique_ptr<HullStore> h;
  RecordingSurface s;
  TestHost host;
  PrintJob job;
};

using Page = std::vector<DrawCall>;

// The operations between NewPage calls; EndDoc and NewPage themselves are
// left out.
inline std::vector<Page> pages(const std::vector<DrawCall>& calls) {
  std::vector<Page> out(1);
  for (const DrawCall& c : calls) {
    if (c.op == DrawOp::NewPage) {
      out.emplace_back();
    } else if (c.op != DrawOp::EndDoc) {
      out.back().push_back(c);
    }
  }
  return out;
}

inline std::vector<std::string> printed(const Page& page) {
  std::vector<std::string> t;
  for (const DrawCall& c : page)
    if (c.op == DrawOp::Print) t.push_back(c.text);
  return t;
}

inline bool hasText(const Page& page, const std::string& part) {
  for (const std::string& t : printed(page))
    if (t.find(part) != std::string::npos) return true;
  return false;
}

inline int count(const Page& page, DrawOp op) {
  int n = 0;
  for (const DrawCall& c : page) n += c.op == op;
  return n;
}

// The texts of a page on a grid of the recording surface's characters:
// 100 units a column, 200 a row, rows from the top of the page.  A column
// holds one character, whatever its length in UTF-8.
inline std::string textGrid(const Page& page) {
  std::map<long, std::vector<std::string>> rows;
  long last = 0;
  for (const DrawCall& c : page) {
    if (c.op != DrawOp::Print) continue;
    const long row = std::lround(c.y1 / RecordingSurface::kTextHeight);
    auto col = static_cast<std::size_t>(std::lround(c.x1 / RecordingSurface::kCharWidth));
    std::vector<std::string>& line = rows[row];
    for (std::size_t i = 0; i < c.text.size(); ++col) {
      const std::size_t len = utf8Prefix(std::string_view(c.text).substr(i), 1).size();
      if (line.size() <= col) line.resize(col + 1, " ");
      line[col] = c.text.substr(i, len);
      i += len;
    }
    last = std::max(last, row);
  }
  std::string out;
  for (long r = 0; r <= last; ++r) {
    for (const std::string& ch : rows[r]) out += ch;
    out += "\n";
  }
  return out;
}

// Byte-for-byte comparison with tests/golden/printing/NAME, rewritten when
// TOLMAR_REGENERATE=1 is set.
inline void expectGolden(const std::string& name, const std::string& actual) {
  const std::string path = std::string(TOLMAR_GOLDEN) + "/printing/" + name;
  if (tolmar::test::regenerating()) {
    std::ofstream(path, std::ios::binary) << actual;
    return;
  }
  std::ifstream in(path, std::ios::binary);
  ASSERT_TRUE(in.good()) << "missing golden file " << path << " (TOLMAR_REGENERATE=1 writes it)";
  std::ostringstream expected;
  expected << in.rdbuf();
  EXPECT_EQ(expected.str(), actual) << "golden file " << name;
}

inline bool allFinite(const std::vector<DrawCall>& calls) {
  for (const DrawCall& c : calls)
    if (!std::isfinite(c.x1) || !std::isfinite(c.y1) || !std::isfinite(c.x2) ||
        !std::isfinite(c.y2))
      return false;
  return true;
}

}  // namespace tolmar::printtest

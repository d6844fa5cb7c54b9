#include "printing/pattern_plan.h"

#include <algorithm>
#include <cctype>
#include <limits>

namespace tolmar {

namespace {

std::string key(const std::string& name) {
  std::string k;
  for (char c : name)
    if (!std::isspace(static_cast<unsigned char>(c)))
      k += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return k;
}

PosterMap posterMap(const DevelopedPlate& p, bool turned) {
  PosterMap m;
  m.turned = turned;
  m.xMin = m.yMin = std::numeric_limits<double>::infinity();
  m.xMax = m.yMax = -std::numeric_limits<double>::infinity();
  for (const FlatPoint& q : p.outline(true)) {
    m.xMin = std::min(m.xMin, q.x);
    m.yMin = std::min(m.yMin, q.y);
    m.xMax = std::max(m.xMax, q.x);
    m.yMax = std::max(m.yMax, q.y);
  }
  if (!(m.xMin <= m.xMax)) m.xMin = m.xMax = m.yMin = m.yMax = 0;
  return m;
}

// A tile is printed when a line of the plate crosses its window.
bool crossed(const ClipBox& w, const std::vector<PosterSegment>& lines) {
  for (PosterSegment s : lines)
    if (clipToBox(s.u1, s.v1, s.u2, s.v2, w)) return true;
  return false;
}

}  // namespace

std::vector<PosterSegment> posterLines(const DevelopedPlate& p, const PosterMap& m) {
  std::vector<PosterSegment> r;
  auto add = [&](const FlatPoint& a, const FlatPoint& b, PosterLine kind) {
    r.push_back({m.u(a), m.v(a), m.u(b), m.v(b), kind});
  };
  const bool lap = !p.cutLower.empty() && !p.cutUpper.empty();
  const std::vector<FlatPoint> o = p.outline(lap);
  for (std::size_t i = 0; o.size() > 1 && i < o.size(); ++i)
    add(o[i], o[(i + 1) % o.size()], PosterLine::outline);
  if (lap)
    for (std::size_t i = 1; i < p.lower.size(); ++i)
      add(p.lower[i - 1], p.lower[i], PosterLine::lap);
  // Station ticks as the plate files draw them: 5 mm aslant and 10 mm
  // square into the plate.
  for (int i : p.lowerTicks) {
    if (i < 0 || i >= static_cast<int>(p.lower.size())) continue;
    const FlatPoint q = p.lower[static_cast<std::size_t>(i)];
    add({q.x - 0.005, q.y + 0.005}, q, PosterLine::tick);
    add(q, {q.x, q.y + 0.01}, PosterLine::tick);
  }
  for (int i : p.upperTicks) {
    if (i < 0 || i >= static_cast<int>(p.upper.size())) continue;
    const FlatPoint q = p.upper[static_cast<std::size_t>(i)];
    add({q.x - 0.005, q.y - 0.005}, q, PosterLine::tick);
    add(q, {q.x, q.y - 0.01}, PosterLine::tick);
  }
  return r;
}

double PosterMap::u(const FlatPoint& p) const {
  return kPatternBorderMm + 1000 * (turned ? p.y - yMin : p.x - xMin);
}

double PosterMap::v(const FlatPoint& p) const {
  return kPatternBorderMm + 1000 * (turned ? p.x - xMin : yMax - p.y);
}

std::vector<const DevelopedPlate*> choosePlates(const std::vector<DevelopedPlate>& plates,
                                                const std::vector<std::string>& names,
                                                std::vector<std::string>& unknown) {
  std::vector<const DevelopedPlate*> r;
  if (names.empty()) {
    for (const DevelopedPlate& p : plates)
      if (p.kind != PlateKind::deck && !p.empty()) r.push_back(&p);
    return r;
  }
  std::vector<bool> wanted(plates.size(), false);
  for (const std::string& n : names) {
    bool found = false;
    for (std::size_t i = 0; i < plates.size(); ++i)
      if (key(plates[i].name) == key(n)) wanted[i] = found = true;
    if (!found) unknown.push_back(n);
  }
  for (std::size_t i = 0; i < plates.size(); ++i)
    if (wanted[i] && !plates[i].empty()) r.push_back(&plates[i]);
  return r;
}

PatternPlan planPatterns(const std::vector<const DevelopedPlate*>& plates, double areaWmm,
                         double areaHmm, double overlapMm) {
  PatternPlan plan;
  plan.areaWmm = areaWmm;
  plan.areaHmm = areaHmm;
  const double tileH = areaHmm - kPatternHeadMm;
  for (const DevelopedPlate* p : plates) {
    PatternEntry e;
    e.plate = p;
    const PosterMap flat = posterMap(*p, false);
    e.tiling = tilePlate(1000 * (flat.xMax - flat.xMin), 1000 * (flat.yMax - flat.yMin), areaWmm,
                         tileH, overlapMm);
    if (e.tiling.count() == 0) continue;
    e.map = posterMap(*p, e.tiling.turned);
    plan.entries.push_back(e);
  }
  // The map pages: the plates' blocks one under the other.
  double y = kMapHeadMm;
  plan.mapPages = plan.entries.empty() ? 0 : 1;
  for (PatternEntry& e : plan.entries) {
    // The map shows every plate along the page, its X across.
    const double across = e.tiling.turned ? e.tiling.gridH() : e.tiling.gridW();
    const double down = e.tiling.turned ? e.tiling.gridW() : e.tiling.gridH();
    e.mapScale = std::min(areaWmm / across, kMapFigureMm / down);
    const double block = kMapCaptionMm + down * e.mapScale + 4;
    if (y + block > areaHmm && y > kMapHeadMm) {
      ++plan.mapPages;
      y = kMapHeadMm;
    }
    e.mapPage = plan.mapPages;
    e.mapTop = y;
    y += block;
  }
  int page = plan.mapPages + 1;
  for (PatternEntry& e : plan.entries) {
    const std::vector<PosterSegment> lines = posterLines(*e.plate, e.map);
    e.pages.assign(static_cast<std::size_t>(e.tiling.count()), 0);
    for (int r = 0; r < e.tiling.rows; ++r)
      for (int c = 0; c < e.tiling.cols; ++c)
        if (crossed(e.window(r, c), lines)) {
          e.pages[static_cast<std::size_t>(r * e.tiling.cols + c)] = page++;
          ++e.printed;
        }
  }
  plan.pages = page - 1;
  return plan;
}

}  // namespace tolmar

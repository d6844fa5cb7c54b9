#include "analysis/pair_placement.h"

#include <algorithm>

namespace tolmar::analysis {

namespace {

bool inside(const ScreenBox& b, double w, double h) {
  return b.left >= 0 && b.top >= 0 && b.right() <= w && b.bottom() <= h;
}

bool overlap(const ScreenBox& a, const ScreenBox& b) {
  return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

// Centred across `span`, or at 0 when wider than it.
double centred(double span, double width) { return std::max(0.0, (span - width) / 2); }

// A top at `margin` from the start of `span`, moved up to stay inside it.
double nearStart(double span, double height) {
  return std::max(0.0, std::min(kScreenMargin, span - height));
}

// A top with the bottom `margin` above the end of `span`, kept at or below
// `from` and inside the span where the height allows.
double nearEnd(double span, double height, double from) {
  return std::max(from, std::min(span - height - kScreenMargin, span - height));
}

}  // namespace

PairPlacement placePair(double W, double H, double hw, double hh, double mw, double mh) {
  PairPlacement p;
  p.hydro = {centred(W, hw), kScreenMargin, hw, hh};
  p.mass = {(W - mw) / 2, H - mh - kScreenMargin, mw, mh};
  if (inside(p.hydro, W, H) && inside(p.mass, W, H) && !overlap(p.hydro, p.mass)) return p;

  p.hydro.top = nearStart(H, hh);
  if (hh + mh <= H) {  // one above the other, both centred
    p.hydro.top = std::min(p.hydro.top, H - hh - mh);
    p.mass = {centred(W, mw), nearEnd(H, mh, p.hydro.bottom()), mw, mh};
    return p;
  }
  if (hw + mw <= W) {  // side by side, the pair centred, hydro1 on the left
    p.hydro.left = (W - hw - mw) / 2;
    const double height = std::min(mh, H);
    p.mass = {p.hydro.right(), nearEnd(H, height, 0), mw, height};
    return p;
  }
  // Neither way: mass1 under hydro1, as tall as the room left allows;
  // hydro1 rises into its margin when that room is too short.
  p.hydro.top = std::max(0.0, std::min(p.hydro.top, H - hh - kMinMassHeight));
  const double height = std::min(mh, std::max(kMinMassHeight, H - p.hydro.bottom()));
  p.mass = {centred(W, mw), std::max(0.0, H - height), mw, height};
  return p;
}

}  // namespace tolmar::analysis

// What a window beside the board computes from needs computing again only
// when the hull changed: a redraw after a zoom or a pan, Developer, a
// station drawn or the water line found change the store without changing
// the hull.  HullWatch tells the two apart.
#pragma once

#include <memory>

#include "hull/hull_store.h"

namespace tolmar::gui {

class HullWatch {
 public:
  // Watches `h`, which must outlive the watch; the hull as it is now counts
  // as seen.
  explicit HullWatch(const HullStore& h);
  ~HullWatch();
  HullWatch(const HullWatch&) = delete;
  HullWatch& operator=(const HullWatch&) = delete;

  // True when the hull differs from the one seen last, which it then
  // becomes.
  bool changed();

 private:
  const HullStore& h_;
  std::unique_ptr<HullStore> seen_;
};

// The store without what the board's drawing, Developer (the plates it
// developed last), the station, the hydrostatics and the language leave in
// it: the hull itself.
HullStore hullShape(const HullStore& h);

}  // namespace tolmar::gui

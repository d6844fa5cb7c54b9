// One DXF polyline at a time: the POLYLINE record on construction, a VERTEX
// for each point, SEQEND on end() or at the end of the scope.
#pragma once

#include "export/dxf_records.h"

namespace tolmar {

class PolylineOut {
 public:
  PolylineOut(TextSink& out, i16 layer, i16 colour) : out_(out), layer_(layer), colour_(colour) {
    dxfPolyline(out_, layer_, colour_);
  }
  ~PolylineOut() { end(); }
  PolylineOut(const PolylineOut&) = delete;
  PolylineOut& operator=(const PolylineOut&) = delete;

  void vertex(double x, double y, double z = 0) { dxfVertex(out_, layer_, colour_, x, y, z); }
  void end() {
    if (open_) dxfSeqend(out_);
    open_ = false;
  }

 private:
  TextSink& out_;
  i16 layer_, colour_;
  bool open_ = true;
};

// nChines held to the lines the tables have room for, so that a store
// holding a count out of range still gives finite loops and valid indices.
inline int lastLineOf(const HullStore& h) {
  return h.nChines < 0 ? 0 : (h.nChines > kMaxLine ? kMaxLine : h.nChines);
}

}  // namespace tolmar

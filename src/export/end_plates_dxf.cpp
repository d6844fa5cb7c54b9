#include "export/end_plates_dxf.h"

#include "development/end_plates.h"
#include "export/polyline_out.h"
#include "export/stroke_font.h"
#include "text/number_format.h"
#include "text/number_text.h"

namespace tolmar {

namespace {

float nameSize(const HullStore& h) { return static_cast<float>(h.xFwd(1) / 150 + 0.002); }

// k: the section point whose running distance places the name.
void panelDXF(TextSink& out, const HullStore& h, const EndPlate& t, const char* name, int k,
              i16 layer, i16 colour, double x0, double y0) {
  const int m = lastSectionPoint(h);
  const float size = nameSize(h);
  dxfText(out, name, size, x0 - t(2, 5), y0 + size / 2 + t(1, k), 0, layer, 7);
  PolylineOut p(out, layer, colour);
  for (int j = 0; j <= m; ++j) p.vertex(x0 + t(2, j), y0 + t(1, j));
  p.vertex(x0 + t(2, 0), y0 + t(1, m));
  for (int j = m; j >= 0; --j) p.vertex(x0 - t(2, j), y0 + t(1, j));
}

}  // namespace

void TableauDXF(TextSink& out, const HullStore& h, i16 layer, i16 colour, double x0, double y0) {
  panelDXF(out, h, h.transomPlate, "transom", 5, layer, colour, x0, y0);
}

void MarotteDXF(TextSink& out, const HullStore& h, i16 layer, i16 colour, double x0, double y0) {
  panelDXF(out, h, h.bowPlate, "bow", 10, layer, colour, x0, y0);
}

void StationDXF(TextSink& out, const HullStore& h, i16 layer, i16 colour, int s, double x0,
                double y0) {
  s = s < 0 ? 0 : (s > 85 ? 85 : s);
  const int m = lastSectionPoint(h);
  const float size = nameSize(h);
  dxfText(out, "st" + formatNumber(s, "00"), size, x0 - h.stationY(s, 4),
          y0 + size / 2 + h.stationZ(s, 4), 0, layer, 7);
  PolylineOut p(out, layer, colour);
  for (int j = 0; j <= m; ++j)
    p.vertex(x0 + h.stationY(s, j), y0 + h.stationZ(s, j), h.stationX(s, j));
  p.vertex(x0 + h.stationY(s, 0), y0 + h.stationZ(s, m), h.stationX(s, m));
  for (int j = m; j >= 0; --j)
    p.vertex(x0 - h.stationY(s, j), y0 + h.stationZ(s, j), h.stationX(s, j));
}

void writeStationFile(TextSink& out, const HullStore& h, int s) {
  dxfHeader(out, "station " + hullNumberText(s));
  dxfSection(out);
  StationDXF(out, h, 14, 6, s, 0, 0);
  dxfEndSec(out);
  dxfEof(out);
}

ExportFile stationDxfFile(const HullStore& h, int s) {
  ExportFile f;
  f.title = "Tolmar2008 - Save current station as DXF file";
  f.filter = "Station (*.DXF)|*.DXF";
  f.defaultName = nameStem(h.hullName) + "_STAT_" + formatNumber(s, "00") + ".DXF";
  f.errorTitle = "Tolmar2008 - Saving current station DXF";
  return f;
}

ExportOutcome stationFileDXF(ExportHost& host, HullStore& h, int s) {
  return runExport(host, h, stationDxfFile(h, s),
                   [&](TextSink& out) { writeStationFile(out, h, s); });
}

}  // namespace tolmar

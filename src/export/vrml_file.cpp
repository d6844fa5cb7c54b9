#include "export/vrml_file.h"

#include "export/dxf_records.h"
#include "export/polyline_out.h"

namespace tolmar {

namespace {

std::string n3(double a, double b, double c) { return dxfNumber(a) + dxfNumber(b) + dxfNumber(c); }

// A whole number with a blank for its sign: " 12", "-1".
std::string idx(int i) { return i < 0 ? std::to_string(i) : " " + std::to_string(i); }

const char* plateColour(int k) {
  switch (k) {
    case 0:
      return "1 0 0";
    case 1:
      return "0 1 0";
    case 2:
      return "0 0 1";
    default:
      return ".9 .9 .7";
  }
}

void shape(TextSink& out, const HullStore& h, int k) {
  const std::string pad(12, ' ');
  out.line("      Shape { # hull ");
  out.line("        geometry IndexedFaceSet { ");
  out.line("          coordIndex [ ");
  // 166 rungs of two vertices: rungs 0..82 on the side of positive VRML Z,
  // 83..165 back along the negative side; two triangles between rungs.
  for (int r = 0; r <= 164; ++r) {
    const int a = 2 * r;
    out.line(pad + idx(a) + "," + idx(a + 1) + "," + idx(a + 2) + ", -1, ");
    out.line(pad + idx(a + 1) + "," + idx(a + 3) + "," + idx(a + 2) + ", -1, ");
  }
  out.line(pad + idx(330) + "," + idx(331) + "," + idx(1) + "," + idx(0) + " ] ");
  out.line("          coord Coordinate { ");
  out.line("            point [ ");
  for (int i = 0; i <= kLastPoint; ++i) {
    out.line(pad + n3(h.lineX(k, i), h.lineZ(k, i), h.lineY(k, i)) + ", ");
    out.line(pad + n3(h.lineX(k + 1, i), h.lineZ(k + 1, i), h.lineY(k + 1, i)) + ", ");
  }
  for (int i = kLastPoint; i >= 0; --i) {
    out.line(pad + n3(h.lineX(k, i), h.lineZ(k, i), -h.lineY(k, i)) + ", ");
    out.line(pad + n3(h.lineX(k + 1, i), h.lineZ(k + 1, i), -h.lineY(k + 1, i)) + ", ");
  }
  out.line("            ] ");
  out.line("          } ");
  out.line("          solid  FALSE ");
  out.line("          creaseAngle .5 ");
  out.line("        } ");
  out.line("        appearance Appearance { ");
  out.line(std::string("          material Material { diffuseColor  ") + plateColour(k) + " } ");
  out.line("        } ");
  out.line("      }  # end shape hull ");
}

}  // namespace

void writeVrml(TextSink& out, const HullStore& h) {
  const double P = h.lineX(3, 80);
  const double Q = h.lineZ(3, 80);
  out.line("#VRML V2.0 utf8 ");
  out.line("# Tolmar2008");
  out.line("Transform {   # begin bateau");
  out.line("  children [ ");
  out.line("    NavigationInfo { headlight FALSE } ");
  out.line("    DirectionalLight { direction  -.5 -.5 -1  intensity .5 } ");
  out.line("    DirectionalLight { direction  .5 -.2  1   intensity .4 } ");
  out.line("    DirectionalLight { direction  0  1  0   intensity .2 } ");
  out.line("    Viewpoint { position " + n3(P * 0.5, Q, P));
  out.line("                description \"Side\" ");
  out.line("    } ");
  out.line("    Viewpoint { orientation 0 1 0 1.5707 ");
  out.line("                position " + n3(P * 1.6, Q, 0));
  out.line("                description \"Face\" ");
  out.line("    } ");
  out.line("    Viewpoint { orientation  1 0 0 -.7 ");
  out.line("                 position " + n3(P * 0.5, P * 0.8, P * 0.8));
  out.line("                description \"Top\" ");
  out.line("    } ");
  out.line("    Viewpoint { orientation 0 1 0 -.6 ");
  out.line("                position " + n3(P * -0.2, Q, P * 0.8));
  out.line("                description \"Quarter\" ");
  out.line("    } ");
  out.line("    Viewpoint { orientation -.5 1 0 .5 ");
  out.line("                position " + n3(P * 1.1, 2 * h.lineZ(4, 80), P * 0.9));
  out.line("                description \"Isometric\" ");
  out.line("    } ");
  out.line("");
  out.line("    Transform {  # boat hull ");
  out.line("    children [ ");
  const int n = lastLineOf(h);
  for (int k = 0; k <= n - 1; ++k) shape(out, h, k);
  out.line("    ] # end children ");
  out.line("    } # end boat hull ");
  out.line(" ");
  out.line("  ]  # end children ");
  out.line("}    # end transform bateau ");
}

ExportFile vrmlFile(const HullStore& h) {
  ExportFile f;
  f.filter = "VRML (*.WRL)|*.WRL";
  f.defaultName = h.hullName + ".WRL";
  f.initialFolder = "Tolmar2000";
  f.errorTitle = "Tolmar2008 - Saving Hull VRML";
  f.hullNameFollows = true;
  return f;
}

ExportOutcome saveVrml(ExportHost& host, HullStore& h) {
  return runExport(host, h, vrmlFile(h), [&](TextSink& out) { writeVrml(out, h); });
}

}  // namespace tolmar

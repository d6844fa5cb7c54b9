// tolmar-cli export: one export file of a hull, written where the command
// line says, as the desktop program writes it through its save dialog.
#include <cstdio>
#include <memory>

#include "command.h"
#include "export/preset_host.h"
#include "export_session.h"

namespace tolmar::cli {
namespace {

int run(const Args& args) {
  ExportArgs a;
  if (!parseExportArgs(args, a)) return 2;
  if (a.positional.size() != 3) {
    std::fprintf(stderr, "usage: tolmar-cli export HULL.D50 KIND OUT [options]\n");
    return 2;
  }
  auto h = std::make_unique<HullStore>();
  PipelineResult r;
  if (const int status = prepareForExport(*h, a, r); status != 0) return status;
  auto host = PresetHost::toPath(a.positional[2]);
  host.printErrors = true;
  return runExportKind(host, *h, r, a, a.positional[1]);
}

Register reg({"export",
              "HULL.D50 KIND OUT [--lang fr|en] [--auto] [--overlap B,LB,S,LS,T,W] [--at X]",
              "  Opens a hull file, validates its screens and redraws the board as the\n"
              "  program does, then writes one export file to OUT.  KIND: dxf2d, dxf3d,\n"
              "  xyz, vrml (the hull name then follows OUT, as in the program), plates-dxf,\n"
              "  decks-dxf (overlap1 answered as strip planking, or lap strake with\n"
              "  --overlap: bottom thickness, its lap, side thickness, their lap, transom\n"
              "  and bow thickness, in mm), station-dxf (the station at --at X metres, by\n"
              "  default the board's, at the maximum beam), plank-xyz:N, deck-xyz:N,\n"
              "  transom-xyz, bow-xyz.  --lang picks the words of the xyz file (en by\n"
              "  default).  Status 1: the hull or OUT cannot be read or written, with the\n"
              "  export's error title on stderr; 2: a wrong command line or hull.",
              &run});

}  // namespace
}  // namespace tolmar::cli

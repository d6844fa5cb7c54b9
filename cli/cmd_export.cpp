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
              "HULL.D50 KIND OUT [--lang fr|en] [--auto] [--set SCREEN.CONTROL=VALUE]...\n"
              "            [--overlap strip|lap|cancel] [--station X]",
              "  Opens a hull file, validates its screens and redraws the board as the\n"
              "  program does, then writes one export file to OUT.  KIND: lines2d, lines3d,\n"
              "  lines-xyz, vrml (the hull name then follows OUT, as in the program),\n"
              "  plates-dxf, decks-dxf (overlap1 left by --overlap: strip planking, the\n"
              "  default, lap strake, or cancel, which writes nothing; its fields typed\n"
              "  with --set overlap1.Text1(0)=6, in mm: Text1(0..1) bottom thickness and\n"
              "  lap, Text2(0..1) side planks, Text3(1..2) transom and bow thickness),\n"
              "  station-dxf (the station typed as --station X metres, by default the\n"
              "  board's, at the maximum beam), plank-xyz:N, deck-xyz:N, transom-xyz,\n"
              "  bow-xyz.  --set types into bouchain1/2/3 as for dump.  --lang picks the\n"
              "  words of the files (en by default).  Status 1: the hull or OUT cannot be\n"
              "  read or written, with the export's error title on stderr; 2: a wrong\n"
              "  command line or a hull the screens refuse.",
              &run, &exportKinds});

}  // namespace
}  // namespace tolmar::cli

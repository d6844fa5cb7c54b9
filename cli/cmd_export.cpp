// tolmar-cli export: one export file of a hull, written where the command
// line says, as the desktop program writes it through its save dialog.
#include <cstdio>
#include <memory>

#include "command.h"
#include "export/preset_host.h"
#include "export_session.h"
#include "hull/fold_check.h"
#include "mesh_export/mesh_files.h"

namespace tolmar::cli {
namespace {

// --mm and --scale, which only the 3-D models take, taken out of the
// command line before the options every kind shares.
bool takeModelUnits(Args& args, MeshUnits& u, bool& given) {
  Args rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--mm") {
      u.millimetres = given = true;
    } else if (args[i] == "--scale") {
      given = true;
      if (i + 1 >= args.size()) {
        std::fprintf(stderr, "tolmar-cli: --scale needs a value\n");
        return false;
      }
      if (!parseScale(args[++i], u.scaleDenominator)) {
        std::fprintf(stderr, "tolmar-cli: --scale takes 1:N with N above 0, not '%s'\n",
                     args[i].c_str());
        return false;
      }
    } else {
      rest.push_back(args[i]);
    }
  }
  args = std::move(rest);
  return true;
}

int writeModel(const HullStore& h, const std::string& kind, const MeshUnits& u,
               const std::string& out) {
  const FoldReport folds = checkFolds(h);
  if (folds.folded()) {
    std::fprintf(stderr, "tolmar-cli: %s\n", folds.message(h.langue).c_str());
    return 2;
  }
  const io::WriteResult w =
      writeHullModel(h, kind == "stl" ? MeshFormat::stl : MeshFormat::obj, u, out);
  if (!w.ok()) {
    std::fprintf(stderr, "tolmar-cli: cannot write %s: %s\n", out.c_str(), w.message.c_str());
    return 1;
  }
  return 0;
}

int run(const Args& given) {
  Args args = given;
  MeshUnits units;
  bool unitsGiven = false;
  if (!takeModelUnits(args, units, unitsGiven)) return 2;
  ExportArgs a;
  if (!parseExportArgs(args, a)) return 2;
  if (a.positional.size() != 3) {
    std::fprintf(stderr, "usage: tolmar-cli export HULL.D50 KIND OUT [options]\n");
    return 2;
  }
  const std::string& kind = a.positional[1];
  const bool model = kind == "stl" || kind == "obj";
  if (unitsGiven && !model) {
    std::fprintf(stderr, "tolmar-cli: --mm and --scale go with stl and obj only\n");
    return 2;
  }
  auto h = std::make_unique<HullStore>();
  PipelineResult r;
  if (const int status = prepareForExport(*h, a, r); status != 0) return status;
  if (model) return writeModel(*h, kind, units, a.positional[2]);
  auto host = PresetHost::toPath(a.positional[2]);
  host.printErrors = true;
  return runExportKind(host, *h, r, a, a.positional[1]);
}

// The kinds of export-all and the two 3-D models, which export-all leaves out.
const std::vector<std::string>& kindsWithModels() {
  static const std::vector<std::string> kinds = [] {
    std::vector<std::string> k = exportKinds();
    k.push_back("stl");
    k.push_back("obj");
    return k;
  }();
  return kinds;
}

Register reg({"export",
              "HULL.D50 KIND OUT [--lang fr|en] [--auto] [--set SCREEN.CONTROL=VALUE]...\n"
              "            [--overlap strip|lap|cancel] [--station X] [--mm] [--scale 1:N]",
              "  Opens a hull file, validates its screens and redraws the board as the\n"
              "  program does, then writes one export file to OUT.  KIND: lines2d, lines3d,\n"
              "  lines-xyz, vrml (the hull name then follows OUT, as in the program),\n"
              "  plates-dxf, decks-dxf (overlap1 left by --overlap: strip planking, the\n"
              "  default, lap strake, or cancel, which writes nothing; its fields typed\n"
              "  with --set overlap1.Text1(0)=6, in mm: Text1(0..1) bottom thickness and\n"
              "  lap, Text2(0..1) side planks, Text3(1..2) transom and bow thickness),\n"
              "  station-dxf (the station typed as --station X metres, by default the\n"
              "  board's, at the maximum beam), plank-xyz:N, deck-xyz:N, transom-xyz,\n"
              "  bow-xyz, stl (binary, the closed hull surface in metres, or millimetres\n"
              "  with --mm), obj (one group per plate, the keel, chines and sheer as\n"
              "  lines); --scale 1:N scales both for a model.  --set types into\n"
              "  bouchain1/2/3 as for dump.  --lang picks the\n"
              "  words of the files (en by default).  Status 1: the hull or OUT cannot be\n"
              "  read or written, with the export's error title on stderr; 2: a wrong\n"
              "  command line, a hull the screens refuse or, for stl and obj, a folded hull.",
              &run, &kindsWithModels});

}  // namespace
}  // namespace tolmar::cli

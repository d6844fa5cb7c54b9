// tolmar-cli export-all: every export file of a hull into one folder, under
// the default names the program's save dialogs propose.
#include <cstdio>
#include <filesystem>
#include <memory>

#include "command.h"
#include "export/end_plates_dxf.h"
#include "export/lines_dxf.h"
#include "export/plate_dxf.h"
#include "export/preset_host.h"
#include "export/vrml_file.h"
#include "export/xyz_files.h"
#include "export_session.h"

namespace tolmar::cli {
namespace {

namespace fs = std::filesystem;

int run(const Args& args) {
  ExportArgs a;
  if (!parseExportArgs(args, a)) return 2;
  if (a.positional.size() != 2) {
    std::fprintf(stderr, "usage: tolmar-cli export-all HULL.D50 DIR [options]\n");
    return 2;
  }
  auto h = std::make_unique<HullStore>();
  PipelineResult r;
  if (const int status = prepareForExport(*h, a, r); status != 0) return status;
  const fs::path dir = a.positional[1];
  std::error_code ec;
  // The 2D and 3D lines share their default name: each has a folder.
  for (const fs::path& d : {dir, dir / "2D", dir / "3D"}) {
    fs::create_directories(d, ec);
    if (ec) {
      std::fprintf(stderr, "tolmar-cli export-all: %s: %s\n", d.c_str(), ec.message().c_str());
      return 1;
    }
  }
  auto in = [&](const fs::path& d) {
    PresetHost host = PresetHost::toFolder(d.string());
    host.printErrors = true;
    return host;
  };
  bool ok = true;
  auto note = [&](ExportOutcome o) { ok = ok && o != ExportOutcome::failed; };
  std::vector<std::string> paths;
  {
    auto host = in(dir / "2D");
    note(saveLines2D(host, *h));
    paths = host.answered;
  }
  {
    auto host = in(dir / "3D");
    note(saveLines3D(host, *h));
    paths.insert(paths.end(), host.answered.begin(), host.answered.end());
  }
  auto host = in(dir);
  note(saveLinesXyz(host, *h));
  note(saveVrml(host, *h));
  if (!answerOverlap(*h, a)) return 2;
  ok = saveDevelopedDxf(host, *h, r.board.stepIndex) && ok;
  ok = saveDevelopedXyz(host, *h, r.board.stepIndex) && ok;
  note(stationFileDXF(host, *h, chosenStation(*h, r, a)));
  paths.insert(paths.end(), host.answered.begin(), host.answered.end());
  for (const auto& p : paths) std::printf("%s\n", p.c_str());
  return ok ? 0 : 1;
}

Register reg({"export-all", "HULL.D50 DIR [options of export]",
              "  Every export of the hull into DIR, under the names the save dialogs\n"
              "  propose: DIR/2D/NAME.DXF and DIR/3D/NAME.DXF (the two share their name),\n"
              "  NAME.XYZ, NAME.WRL, NAME_PLANK.DXF, NAME_DECK.DXF, NAME_Pn.XYZ,\n"
              "  NAME_Dn.XYZ, NAME_TR.XYZ, NAME_BOW.XYZ for a pram bow, and the station\n"
              "  NAME_STAT_nn.DXF; options as for export.  Prints every path it wrote or tried.",
              &run});

}  // namespace
}  // namespace tolmar::cli

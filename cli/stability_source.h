// What `stability` and `curves` share: the hull (a hull file prepared as
// `dump` prepares it, with its mass budget run as the screen runs it) or a
// closed mesh from an STL file, and the options read from the words of
// the command line.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "command.h"
#include "hull/hull_store.h"
#include "pipeline.h"
#include "stability/hydro_mesh.h"
#include "stability/stability_run.h"

namespace tolmar::cli {

struct StabilitySource {
  std::unique_ptr<HullStore> hull;           // the hull, mass budget done
  std::optional<stability::HydroMesh> mesh;  // or the mesh from --mesh
};

// Reads the source from the words left once a command took its own
// options: HULL.D50 [--auto] [--set SCREEN.CONTROL=VALUE]... or --mesh
// FILE.stl.  --set mass1.TextN(r)=VALUE is typed into the mass budget.
// Returns 0, or the exit status after a message on stderr.
int loadStabilitySource(const char* command, const Args& words, StabilitySource& out);

// The number after an option, read in full ("1.5"; "1,5" too): false and a
// message on stderr when it is not a number.
bool optionNumber(const char* command, const std::string& option, const std::string& text,
                  double& out);

enum class TableFormat { json, csv };

}  // namespace tolmar::cli

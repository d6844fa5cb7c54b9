// The steps every export file goes through: busy pointer, save dialog, the
// hull name following the file where the file's kind says so, the lines
// written through a temporary file, and one error path with a message box.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "export/export_host.h"
#include "export/text_sink.h"
#include "hull/hull_store.h"

namespace tolmar {

struct ExportFile {
  std::optional<std::string> title;
  std::string filter;
  std::string defaultName;
  std::optional<std::string> initialFolder;
  std::string errorTitle;
  bool hullNameFollows = false;  // hullName := the chosen file's name stem
  bool showHullName = false;     // and Text2 of the board shows it
  bool focusCancel = false;      // the focus goes to Cancel of the board after writing
};

enum class ExportOutcome { written, cancelled, failed };

// Runs one export file; `write` puts out the lines, after the hull name has
// followed the file.  A cancelled dialog writes and says nothing.  Any file
// error closes and removes the partial file, shows the system's text of the
// error under the file's error title, and leaves the chosen path untouched.
ExportOutcome runExport(ExportHost& host, HullStore& h, const ExportFile& file,
                        const std::function<void(TextSink&)>& write);

// The name of the hull taken from a file's bare name: cut before the first
// "." unless that is the first character ("BOAT.V2.DXF" gives "BOAT").
std::string hullNameFromFile(std::string_view bareName);

// The first 15 characters of the hull name, the stem of plate file names.
std::string nameStem(std::string_view hullName);

}  // namespace tolmar

#include "export/export_flow.h"

#include <cerrno>
#include <exception>
#include <new>

#include "text/utf8.h"

namespace tolmar {

std::string hullNameFromFile(std::string_view bareName) {
  const auto dot = bareName.find('.');
  if (dot != std::string_view::npos && dot >= 1) bareName = bareName.substr(0, dot);
  return std::string(bareName);
}

std::string nameStem(std::string_view hullName) { return std::string(utf8Prefix(hullName, 15)); }

ExportOutcome runExport(ExportHost& host, HullStore& h, const ExportFile& file,
                        const std::function<void(TextSink&)>& write) {
  host.setBusy(true);
  const auto choice =
      host.askSaveFile({file.title, file.filter, file.defaultName, file.initialFolder});
  if (!choice) {
    host.setBusy(false);
    return ExportOutcome::cancelled;
  }
  FileSink sink(choice->path);
  if (sink.error() == 0) {
    if (file.hullNameFollows) {
      h.hullName = hullNameFromFile(choice->name);
      if (file.showHullName) host.showHullName(h.hullName);
    }
    try {
      write(sink);
    } catch (const std::bad_alloc&) {
      sink.fail(ENOMEM);
    } catch (const std::exception&) {
      sink.fail(EIO);
    }
  }
  if (sink.commit()) {
    if (file.focusCancel) host.focusCancel();
    host.setBusy(false);
    return ExportOutcome::written;
  }
  host.setBusy(false);
  host.showError(file.errorTitle, sink.errorText());
  return ExportOutcome::failed;
}

}  // namespace tolmar

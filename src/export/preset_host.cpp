#include "export/preset_host.h"

#include <cstdio>

namespace tolmar {

PresetHost PresetHost::toPath(std::string path) { return PresetHost(Mode::path, std::move(path)); }

PresetHost PresetHost::toFolder(std::string folder) {
  return PresetHost(Mode::folder, std::move(folder));
}

PresetHost PresetHost::cancelling() { return PresetHost(Mode::cancel, {}); }

std::optional<SaveChoice> PresetHost::askSaveFile(const SaveRequest& request) {
  requests.push_back(request);
  std::string path;
  switch (mode_) {
    case Mode::cancel:
      return std::nullopt;
    case Mode::path:
      path = where_;
      break;
    case Mode::folder:
      path = where_.empty() || where_.back() == '/' ? where_ + request.defaultName
                                                    : where_ + "/" + request.defaultName;
      break;
  }
  const auto slash = path.find_last_of('/');
  answered.push_back(path);
  return SaveChoice{path, slash == std::string::npos ? path : path.substr(slash + 1)};
}

void PresetHost::showError(std::string_view title, std::string_view message) {
  errors.push_back(std::string(title) + ": " + std::string(message));
  if (printErrors) std::fprintf(stderr, "%s\n", errors.back().c_str());
}

}  // namespace tolmar

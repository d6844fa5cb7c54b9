// An export host without windows, for the command line and the tests: the
// save dialog is answered with a path given in advance, or with the default
// name inside a given folder, or cancelled; messages are kept and, if asked,
// printed to stderr as "title: text".
#pragma once

#include <string>
#include <vector>

#include "export/export_host.h"

namespace tolmar {

class PresetHost : public ExportHost {
 public:
  enum class Mode { path, folder, cancel };

  static PresetHost toPath(std::string path);      // every dialog answers this path
  static PresetHost toFolder(std::string folder);  // folder + the default name
  static PresetHost cancelling();

  std::optional<SaveChoice> askSaveFile(const SaveRequest& request) override;
  void showError(std::string_view title, std::string_view message) override;
  void showHullName(std::string_view name) override { shownName = std::string(name); }
  void focusCancel() override { ++cancelFocused; }

  bool printErrors = false;
  std::vector<SaveRequest> requests;  // every dialog asked, in order
  std::vector<std::string> answered;  // the paths answered
  std::vector<std::string> errors;    // "title: text"
  std::string shownName;
  int cancelFocused = 0;

 private:
  PresetHost(Mode mode, std::string where) : mode_(mode), where_(std::move(where)) {}
  Mode mode_;
  std::string where_;
};

}  // namespace tolmar

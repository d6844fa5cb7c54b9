// What an export asks of the program around it: the save dialog, the
// message box of its error path, the busy pointer, and two touches on the
// board (the hull name field and the focus on Cancel).  The desktop program
// answers with its windows, the command line and the tests with paths
// given in advance.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tolmar {

struct SaveRequest {
  std::optional<std::string> title;  // none: the title the last dialog left
  std::string filter;                // label and pattern pairs joined by "|"
  std::string defaultName;
  std::optional<std::string> initialFolder;  // none: where the last dialog was
};

struct SaveChoice {
  std::string path;  // full path of the file to write
  std::string name;  // the file's name without its folders
};

class ExportHost {
 public:
  virtual ~ExportHost() = default;

  // No answer means the user cancelled; nothing is written then, and
  // nothing is said.  The dialog does not ask before replacing a file.
  virtual std::optional<SaveChoice> askSaveFile(const SaveRequest& request) = 0;
  virtual void showError(std::string_view title, std::string_view message) = 0;
  virtual void setBusy(bool busy) { (void)busy; }
  virtual void showHullName(std::string_view name) { (void)name; }  // Text2 of the board
  virtual void focusCancel() {}
};

}  // namespace tolmar

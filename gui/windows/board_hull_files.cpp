// Open and save of the hull file from the board: the dialogs, the board's
// steps around the reading, and the one error path of each.
#include <cmath>
#include <exception>
#include <fstream>
#include <memory>

#include "hull/hull_file.h"
#include "windows/command_steps.h"
#include "windows/file_dialog.h"

namespace tolmar::gui {

namespace {

void perform(const BoardHooks& hooks, const board::Actions& a) {
  if (hooks.perform && !a.empty()) hooks.perform(a);
}

void refresh(const BoardHooks& hooks) {
  if (hooks.refresh) hooks.refresh();
}

// A hull file is text; its first 64 KiB are enough to tell a binary file.
constexpr std::streamsize kSniffBytes = 64 * 1024;

}  // namespace

std::string notAHull(const std::string& path, const HullStore& read) {
  std::ifstream in(path, std::ios::binary);
  std::string head(static_cast<std::size_t>(kSniffBytes), '\0');
  in.read(head.data(), kSniffBytes);
  head.resize(static_cast<std::size_t>(in.gcount()));
  if (head.empty() || head.find('\0') != std::string::npos) return kNotAHull;
  // Every hull that the screens let through has a length; a text file of
  // another kind reads as zeros there.
  if (!(read.xFwd(0) > 0) || !std::isfinite(read.xFwd(0))) return kNotAHull;
  return {};
}

std::string readHullForOpen(const std::string& path, HullStore& read) {
  try {
    const FileResult r = openHullFile(path, read);
    return r.ok ? notAHull(path, read) : r.message;
  } catch (const std::exception& e) {
    return e.what();
  }
}

void openReadHull(HullStore& h, const HullStore& read, board::BoardState& b,
                  const BoardHooks& hooks) {
  h = read;
  board::openNamed(b, h);
  board::checkHull(b, h);
  refresh(hooks);
  perform(hooks, board::openBeforeRebuild(b));
  const board::Actions next = board::openAfterRebuild(b);
  refresh(hooks);
  perform(hooks, next);
}

void openHull(BoardWindows& w, HullStore& h, board::BoardState& b, const BoardHooks& hooks) {
  CmDialog1& files = w.files();
  const auto choice = files.askOpenFile(
      {std::nullopt, "Data Tolmar2000|*.D50|Old Data (*.D51)|*.D51", "Tolmar.D50", "tolmar"});
  if (!choice) return;

  // Read into a copy: a refused file leaves the hull in memory as it was.
  files.setBusy(true);
  auto read = std::make_unique<HullStore>(h);
  const std::string why = readHullForOpen(choice->path, *read);
  files.setBusy(false);
  if (!why.empty()) {
    files.showError(kOpenErrorTitle, why);
    return;
  }
  openReadHull(h, *read, b, hooks);
}

void saveHull(BoardWindows& w, HullStore& h, board::BoardState& b, const BoardHooks& hooks) {
  CmDialog1& files = w.files();
  const auto choice = files.askSaveFile(
      {std::nullopt, "Data Tolmar2000|*.D50|All files|*.*", h.hullName + ".D50", "Tolmar2000"});
  if (!choice) return;  // a cancelled save is no failure

  files.setBusy(true);
  const std::string before = h.hullName;
  h.hullName = hullNameFromFileName(choice->name);
  const std::filesystem::path path = hullSavePath(choice->path);
  FileResult r;
  try {
    r = saveHullFile(path, h);
  } catch (const std::exception& e) {
    r = {false, e.what()};
  }
  files.setBusy(false);
  if (!r.ok) {
    h.hullName = before;
    files.showError(kSaveErrorTitle, r.message);
    return;
  }
  const board::Actions next = board::saveDone(b, h);
  refresh(hooks);
  files.message(kSavedTitle, path.string());
  perform(hooks, next);
}

}  // namespace tolmar::gui

// A seam for tests: the environment variable TOLMAR_WRITE_FAULT names one
// step of SafeFile that then fails as a full or broken disk would, so that
// the error path of every writer can be run end to end.  Unset, nothing
// fails.
#pragma once

#include <optional>
#include <string_view>

namespace tolmar::io {

enum class WriteStep {
  open,     // creating the temporary: EACCES
  write,    // every write(2): ENOSPC
  flush,    // the last block at commit: half of it goes out, then ENOSPC
  fsync,    // EIO
  close,    // EIO
  rename,   // EXDEV
  dirsync,  // EIO, after the rename
};

std::optional<WriteStep> writeStepNamed(std::string_view name);

// The step TOLMAR_WRITE_FAULT names, read at each call.
std::optional<WriteStep> injectedFault();

}  // namespace tolmar::io

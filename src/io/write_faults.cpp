#include "io/write_faults.h"

#include <array>
#include <cstdlib>
#include <utility>

namespace tolmar::io {

std::optional<WriteStep> writeStepNamed(std::string_view name) {
  static constexpr std::array<std::pair<std::string_view, WriteStep>, 7> kSteps = {{
      {"open", WriteStep::open},
      {"write", WriteStep::write},
      {"flush", WriteStep::flush},
      {"fsync", WriteStep::fsync},
      {"close", WriteStep::close},
      {"rename", WriteStep::rename},
      {"dirsync", WriteStep::dirsync},
  }};
  for (const auto& [n, step] : kSteps) {
    if (n == name) return step;
  }
  return std::nullopt;
}

std::optional<WriteStep> injectedFault() {
  const char* v = std::getenv("TOLMAR_WRITE_FAULT");
  if (v == nullptr || *v == '\0') return std::nullopt;
  return writeStepNamed(v);
}

}  // namespace tolmar::io

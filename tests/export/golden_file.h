// Byte-for-byte comparison with a file of tests/golden; the expected file is
// rewritten instead when TOLMAR_REGENERATE=1 is set, to be reviewed in the diff.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "regenerate.h"

namespace tolmar::test {

inline std::string readBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

inline void expectGolden(const std::string& name, const std::string& actual) {
  const std::string path = std::string(TOLMAR_GOLDEN) + "/export/" + name;
  if (tolmar::test::regenerating()) {
    std::ofstream(path, std::ios::binary) << actual;
    return;
  }
  std::ifstream probe(path, std::ios::binary);
  ASSERT_TRUE(probe.good()) << "missing golden file " << path << " (TOLMAR_REGENERATE=1 writes it)";
  const std::string expected = readBytes(path);
  if (expected == actual) return;
  std::size_t at = 0;
  while (at < expected.size() && at < actual.size() && expected[at] == actual[at]) ++at;
  const std::size_t from = at > 60 ? at - 60 : 0;
  ADD_FAILURE() << name << " differs from byte " << at << " (sizes " << expected.size() << ", "
                << actual.size() << ")\n expected: ..." << expected.substr(from, 120)
                << "\n actual:   ..." << actual.substr(from, 120);
}

}  // namespace tolmar::test

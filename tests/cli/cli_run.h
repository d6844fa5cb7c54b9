// Runs tolmar-cli through the shell for the end-to-end tests: its exit
// status, standard output and standard error.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace tolmar::testing {

struct CliRun {
  int status = -1;
  std::string out, err;
};

inline std::string slurp(const std::filesystem::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

// `tolmar-cli ARGS`, ARGS already quoted for the shell, run in `cwd` when
// one is given.  Standard error goes through a file of its own per call,
// so that tests of several builds may run at once.
inline CliRun runCli(const std::string& args, const std::filesystem::path& cwd = {}) {
  static std::atomic<int> calls{0};
  namespace fs = std::filesystem;
  const fs::path err = fs::temp_directory_path() / ("tolmar_cli_err_" + std::to_string(getpid()) +
                                                    "_" + std::to_string(calls++));
  std::string cmd = "'" + std::string(TOLMAR_CLI) + "' " + args + " 2>'" + err.string() + "'";
  if (!cwd.empty()) cmd = "cd '" + cwd.string() + "' && " + cmd;
  CliRun r;
  FILE* p = popen(cmd.c_str(), "r");
  if (!p) return r;
  std::array<char, 65536> buf;
  std::size_t n;
  while ((n = std::fread(buf.data(), 1, buf.size(), p)) > 0) r.out.append(buf.data(), n);
  const int st = pclose(p);
  r.status = WIFEXITED(st) ? WEXITSTATUS(st) : -1;
  r.err = slurp(err);
  fs::remove(err);
  return r;
}

}  // namespace tolmar::testing

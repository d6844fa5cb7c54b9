// Random hulls that the screens accept, typed into tolmar-cli as a user
// would, then every export written: no number in any file may be NaN or
// infinite, and every DXF coordinate must read back as a finite number.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <sstream>
#include <string>

#include "cli/cli_run.h"

namespace {

namespace fs = std::filesystem;
using tolmar::testing::CliRun;
using tolmar::testing::runCli;
using tolmar::testing::slurp;

std::string fixed(double v) {
  std::ostringstream s;
  s.precision(6);
  s << std::fixed << v;
  return s.str();
}

// Every word of a file that starts like a number must be a finite one, and
// no word may be the text of a non-finite value ("nan", "-inf" ...).
void expectFiniteNumbers(const fs::path& file) {
  std::istringstream in(slurp(file));
  std::string word;
  int numbers = 0;
  while (in >> word) {
    std::string lower;
    for (char c : word) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (!lower.empty() && (lower[0] == '-' || lower[0] == '+')) lower.erase(0, 1);
    ASSERT_FALSE(lower == "nan" || lower == "inf" || lower == "infinity" ||
                 lower.rfind("nan(", 0) == 0)
        << file << ": " << word;
    const char c = word[0];
    if (!(std::isdigit(static_cast<unsigned char>(c)) || c == '-' || c == '.' || c == '+'))
      continue;
    char* end = nullptr;
    const double v = std::strtod(word.c_str(), &end);
    if (end == word.c_str()) continue;
    ASSERT_TRUE(std::isfinite(v)) << file << ": " << word;
    ++numbers;
  }
  EXPECT_GT(numbers, 0) << file;
}

TEST(ExportRandomHulls, EveryNumberInEveryFileIsFinite) {
  const fs::path dir =
      fs::temp_directory_path() / ("tolmar_export_random_" + std::to_string(getpid()));
  fs::remove_all(dir);
  fs::create_directories(dir);
  std::mt19937 rng(20261123);
  auto real = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(rng); };
  auto whole = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(rng); };
  int accepted = 0, files = 0;
  for (int hull = 0; hull < 16; ++hull) {
    SCOPED_TRACE("hull " + std::to_string(hull));
    const double len = real(1, 15);
    std::string sets;
    auto set = [&](const std::string& control, const std::string& value) {
      sets += " --set '" + control + "=" + value + "'";
    };
    set("bouchain1.Text1(0)", fixed(len));
    set("bouchain1.Text1(1)", fixed(real(0.25, 0.65) * len));
    const double beam = real(0.08, 0.3) * len;
    set("bouchain1.Text1(2)", fixed(beam));
    set("bouchain1.Text1(3)", whole(0, 1) ? "0" : fixed(real(0.1, 0.9) * beam));
    set("bouchain1.Text1(4)", fixed(real(0.2, 1) * beam));
    set("bouchain1.Text1(5)", fixed(real(2.1, 5)));
    set("bouchain1.Text1(6)", fixed(real(2.1, 5)));
    set("bouchain1.Text2(0)", fixed(real(0, 0.05) * len));
    set("bouchain1.Text2(1)", fixed(real(0, 0.05) * len));
    set("bouchain1.Text2(2)", fixed(real(-1, 2)));
    set("bouchain1.Text2(3)", std::to_string(whole(-10, 30)));
    set("bouchain1.Text2(4)", std::to_string(whole(0, 60)));
    set("bouchain1.Text2(6)", std::to_string(whole(0, 40)));
    set("bouchain1.Text2(7)", fixed(real(-1, 1)));
    if (hull % 2 == 1) {
      set("bouchain3.Text0", std::to_string(whole(2, 20)));
      set("bouchain3.Text2(1)", fixed(real(0.1, 0.25) * len));
      set("bouchain3.Text2(2)", fixed(real(0.08, 0.2) * len));
      set("bouchain3.Text2(3)", fixed(real(0.1, 0.25) * len));
    }
    const fs::path file = dir / ("R" + std::to_string(hull) + ".D50");
    const CliRun made = runCli("new '" + file.string() + "'" + sets);
    if (made.status == 2) continue;  // refused by a screen, as a user would see it
    ASSERT_EQ(made.status, 0) << made.err;
    ++accepted;
    const fs::path out = dir / ("out" + std::to_string(hull));
    const CliRun all = runCli("export-all '" + file.string() + "' '" + out.string() + "'" +
                              (hull % 2 == 1 ? " --auto" : "") + " --overlap lap");
    ASSERT_EQ(all.status, 0) << all.err;
    for (const auto& e : fs::recursive_directory_iterator(out)) {
      if (!e.is_regular_file()) continue;
      expectFiniteNumbers(e.path());
      ++files;
    }
  }
  EXPECT_GE(accepted, 8);
  EXPECT_GE(files, accepted * 10);
  fs::remove_all(dir);
}

}  // namespace

// tolmar-cli print HULL check: one page with the development check's table
// in the language asked, a row per plate, read back by poppler.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "cli/cli_run.h"
#include "cli/pdf_probe.h"

namespace {

namespace fs = std::filesystem;
using tolmar::testing::runCli;

TEST(CliPrintCheck, OnePageInEitherLanguage) {
  if (runCli("print --help").status != 0) GTEST_SKIP() << "built without the Qt drawing library";
  if (tolmar::testing::shell("pdftotext -v").status != 0) GTEST_SKIP() << "poppler missing";
  const fs::path pdf = fs::temp_directory_path() / ("tolmar_check_" + std::to_string(getpid()));
  const std::string hull = (fs::path(TOLMAR_GOLDEN) / "default_hull.D50").string();
  struct Lang {
    const char* flag;
    const char* title;
    const char* head;
    const char* deck;
    const char* transom;
  };
  for (const Lang l : {Lang{"en", "Development check", "R across m", "deck 5", "transom"},
                       Lang{"fr", "Contrôle du développement", "R trav m", "pont 5", "tableau"}}) {
    std::string args = "print '";
    args.append(hull).append("' check '").append(pdf.string()).append("' --lang ").append(l.flag);
    const auto r = runCli(args);
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(tolmar::testing::pdfPages(pdf), 1);
    const std::string text = tolmar::testing::pageText(pdf, 1);
    EXPECT_NE(text.find(l.title), std::string::npos) << text;
    EXPECT_NE(text.find(l.head), std::string::npos) << text;
    for (const char* plate : {"p00", "p04", l.deck, l.transom, "TT-003A"})
      EXPECT_NE(text.find(plate), std::string::npos) << plate;
    EXPECT_EQ(text.find("nan"), std::string::npos);
  }
  fs::remove(pdf);
}

}  // namespace

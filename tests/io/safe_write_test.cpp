// The one file writer of the program: contents, links, permissions,
// refusals, stale temporaries, and a fault at each step of the write.
#include "io/safe_write.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "io/write_faults.h"

namespace tolmar::io {
namespace {

namespace fs = std::filesystem;

std::string slurp(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

std::set<std::string> names(const fs::path& dir) {
  std::set<std::string> out;
  for (const auto& e : fs::directory_iterator(dir)) out.insert(e.path().filename().string());
  return out;
}

class SafeWrite : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() /
           ("tolmar_safe_write_" + std::to_string(::getpid()) + "_" +
            ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override {
    ::unsetenv("TOLMAR_WRITE_FAULT");
    fs::remove_all(dir_);
  }
  fs::path dir_;
};

TEST_F(SafeWrite, WritesBytesAndStreamsAndReplacesAFile) {
  const fs::path f = dir_ / "a.txt";
  ASSERT_TRUE(writeFileSafely(f.string(), "first\r\n").ok());
  EXPECT_EQ(slurp(f), "first\r\n");
  // Larger than one block and than the stream's own buffer.
  const std::string big(300000, 'x');
  ASSERT_TRUE(writeFileSafely(f.string(), [&](std::ostream& out) { out << big << 'y'; }).ok());
  EXPECT_EQ(slurp(f), big + "y");
  EXPECT_EQ(names(dir_), std::set<std::string>{"a.txt"});
}

TEST_F(SafeWrite, KeepsPermissionBitsAndWritesThroughLinks) {
  const fs::path real = dir_ / "real.txt";
  std::ofstream(real) << "old";
  ::chmod(real.c_str(), 0640);
  fs::create_directories(dir_ / "sub");
  fs::create_symlink("../real.txt", dir_ / "sub" / "link.txt");  // relative, through a folder
  ASSERT_TRUE(writeFileSafely((dir_ / "sub" / "link.txt").string(), "new").ok());
  EXPECT_TRUE(fs::is_symlink(dir_ / "sub" / "link.txt"));
  EXPECT_EQ(slurp(real), "new");
  struct stat st {};
  ASSERT_EQ(::stat(real.c_str(), &st), 0);
  EXPECT_EQ(st.st_mode & 07777, 0640u);

  // A link to a file not there yet makes the file.
  fs::create_symlink(dir_ / "later.txt", dir_ / "dangling");
  ASSERT_TRUE(writeFileSafely((dir_ / "dangling").string(), "made").ok());
  EXPECT_TRUE(fs::is_symlink(dir_ / "dangling"));
  EXPECT_EQ(slurp(dir_ / "later.txt"), "made");

  fs::create_symlink("loop2", dir_ / "loop1");
  fs::create_symlink("loop1", dir_ / "loop2");
  EXPECT_EQ(writeFileSafely((dir_ / "loop1").string(), "x").error, ELOOP);
}

TEST_F(SafeWrite, RefusesWhatIsNoRegularFileAtOnce) {
  fs::create_directories(dir_ / "folder");
  WriteResult r = writeFileSafely((dir_ / "folder").string(), "x");
  EXPECT_EQ(r.message, "Is a directory");
  ASSERT_EQ(::mkfifo((dir_ / "fifo").c_str(), 0644), 0);
  r = writeFileSafely((dir_ / "fifo").string(), "x");  // would block if opened
  EXPECT_EQ(r.message, "Not a regular file");
  r = writeFileSafely("/dev/null", "x");
  EXPECT_EQ(r.message, "Not a regular file");
  r = writeFileSafely("", "x");
  EXPECT_EQ(r.error, ENOENT);
  r = writeFileSafely((dir_ / "missing" / "a.txt").string(), "x");
  EXPECT_EQ(r.message, "No such file or directory");
  EXPECT_EQ(names(dir_), (std::set<std::string>{"fifo", "folder"}));
}

// A file the user may not write is refused and stays as it was.  Run in a
// child that gives up root, since root may write anything.
TEST_F(SafeWrite, RefusesAFileTheUserMayNotWrite) {
  const fs::path f = dir_ / "ro.txt";
  std::ofstream(f) << "keep";
  ::chmod(f.c_str(), 0444);
  ::chmod(dir_.c_str(), 0777);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(100);
    const WriteResult r = writeFileSafely(f.string(), "lost");
    ::_exit(r.error == EACCES && r.message == "Permission denied" ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_EQ(slurp(f), "keep");
  EXPECT_EQ(names(dir_), std::set<std::string>{"ro.txt"});
}

TEST_F(SafeWrite, RemovesTheStaleTemporaryOfADeadWriterOnly) {
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) ::_exit(0);
  ::waitpid(child, nullptr, 0);  // its pid now names no process
  const std::string dead = ".T.D50.tmp" + std::to_string(child);
  const std::string alive = ".T.D50.tmp" + std::to_string(::getppid());
  const std::string other = ".U.D50.tmp" + std::to_string(child);  // another target's
  for (const auto& n : {dead, dead + "_3", alive, other}) std::ofstream(dir_ / n) << "partial";
  ASSERT_TRUE(writeFileSafely((dir_ / "T.D50").string(), "whole").ok());
  EXPECT_EQ(names(dir_), (std::set<std::string>{"T.D50", alive, other}));
}

TEST_F(SafeWrite, AnExceptionOfTheFillerWritesNothing) {
  const fs::path f = dir_ / "a.txt";
  std::ofstream(f) << "old";
  const WriteResult r = writeFileSafely(f.string(), [](std::ostream& out) {
    out << "half";
    throw std::runtime_error("no plates to write");
  });
  EXPECT_EQ(r.message, "no plates to write");
  EXPECT_EQ(slurp(f), "old");
  EXPECT_EQ(names(dir_), std::set<std::string>{"a.txt"});
}

struct Fault {
  const char* step;
  int error;
};

class SafeWriteFault : public SafeWrite, public ::testing::WithParamInterface<Fault> {};

// Each step failing in turn: the error comes back with its system text,
// the old file is byte for byte what it was, and no temporary is left.
TEST_P(SafeWriteFault, LeavesTheOldFileAndNoTemporary) {
  const fs::path f = dir_ / "hull.D50";
  const std::string old = "old hull\r\nEOF \r\n";
  std::ofstream(f, std::ios::binary) << old;
  ::setenv("TOLMAR_WRITE_FAULT", GetParam().step, 1);
  for (std::size_t size : {std::size_t{10}, std::size_t{200000}}) {
    const std::string text(size, 'n');
    const WriteResult r = writeFileSafely(f.string(), [&](std::ostream& out) { out << text; });
    EXPECT_EQ(r.error, GetParam().error) << GetParam().step << " " << size;
    EXPECT_EQ(r.message, errorText(GetParam().error));
    EXPECT_EQ(slurp(f), old);
    EXPECT_EQ(names(dir_), std::set<std::string>{"hull.D50"});
  }
}

INSTANTIATE_TEST_SUITE_P(EveryStep, SafeWriteFault,
                         ::testing::Values(Fault{"open", EACCES}, Fault{"write", ENOSPC},
                                           Fault{"flush", ENOSPC}, Fault{"fsync", EIO},
                                           Fault{"close", EIO}, Fault{"rename", EXDEV}),
                         [](const auto& info) { return std::string(info.param.step); });

// The folder is synced after the rename: the new file is in place, and a
// failure there is still reported.
TEST_F(SafeWrite, AFailedSyncOfTheFolderIsReported) {
  const fs::path f = dir_ / "a.txt";
  std::ofstream(f) << "old";
  ::setenv("TOLMAR_WRITE_FAULT", "dirsync", 1);
  const WriteResult r = writeFileSafely(f.string(), "new");
  EXPECT_EQ(r.error, EIO);
  EXPECT_EQ(slurp(f), "new");
  EXPECT_EQ(names(dir_), std::set<std::string>{"a.txt"});
}

// Files that belong together: all replaced, or none when one of them is
// refused (a folder in its place) or its sync fails; no temporary left.
TEST_F(SafeWrite, FilesThatBelongTogetherAllOrNone) {
  const std::vector<std::string> names3 = {"s1.DXF", "s2.DXF", "s3.DXF"};
  for (const std::string& n : names3) std::ofstream(dir_ / n) << "old " << n;
  std::vector<std::pair<std::string, std::string>> files;
  for (const std::string& n : names3) files.emplace_back((dir_ / n).string(), "new " + n);

  fs::remove(dir_ / "s3.DXF");
  fs::create_directory(dir_ / "s3.DXF");
  std::size_t failed = 99;
  WriteResult r = writeFilesSafely(files, &failed);
  EXPECT_EQ(r.message, errorText(EISDIR));
  EXPECT_EQ(failed, 2u);
  EXPECT_EQ(slurp(dir_ / "s1.DXF"), "old s1.DXF");
  EXPECT_EQ(slurp(dir_ / "s2.DXF"), "old s2.DXF");
  fs::remove(dir_ / "s3.DXF");
  EXPECT_EQ(names(dir_), (std::set<std::string>{"s1.DXF", "s2.DXF"}));

  ::setenv("TOLMAR_WRITE_FAULT", "fsync", 1);
  r = writeFilesSafely(files, &failed);
  EXPECT_EQ(r.error, EIO);
  EXPECT_EQ(failed, 0u);
  EXPECT_EQ(slurp(dir_ / "s1.DXF"), "old s1.DXF");
  EXPECT_EQ(names(dir_), (std::set<std::string>{"s1.DXF", "s2.DXF"}));

  ::unsetenv("TOLMAR_WRITE_FAULT");
  ASSERT_TRUE(writeFilesSafely(files).ok());
  for (const std::string& n : names3) EXPECT_EQ(slurp(dir_ / n), "new " + n);
  EXPECT_EQ(names(dir_), (std::set<std::string>{"s1.DXF", "s2.DXF", "s3.DXF"}));
}

TEST(WriteFaults, StepNames) {
  EXPECT_EQ(writeStepNamed("fsync"), WriteStep::fsync);
  EXPECT_EQ(writeStepNamed("rename"), WriteStep::rename);
  EXPECT_FALSE(writeStepNamed("disk"));
}

}  // namespace
}  // namespace tolmar::io

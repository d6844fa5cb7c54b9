// The one way a file of the program reaches the disk: the bytes go to a new
// file beside the target (".NAME.tmpPID"), which is flushed, synced and
// renamed over the target only when every byte went out; the folder is
// synced after the rename so that the new name survives a power cut.  A
// failure at any step removes the temporary file and leaves the target as
// it was.
//
// The target is the file a symbolic link points to, when the path is one;
// an existing target keeps its permission bits, and one the user may not
// write, or that is not a regular file, is refused before anything is
// written.  A temporary of the same target left by a killed run is removed.
//
// Every writer of the program (hull file, exports, printed PDF, pictures)
// goes through SafeFile or writeFileSafely.
#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tolmar::io {

struct [[nodiscard]] WriteResult {
  int error = 0;        // errno of the first failure, 0 when written
  std::string message;  // the system's text of that error, empty when written
  bool ok() const { return error == 0; }
};

// A file being written.  Bytes are buffered and go out in large blocks;
// after the first failure further writes are dropped and commit() reports
// that failure.  Destroyed without a successful commit, it removes its
// temporary file.
class SafeFile {
 public:
  explicit SafeFile(std::string path);  // checks the target, creates the temporary
  ~SafeFile();
  SafeFile(const SafeFile&) = delete;
  SafeFile& operator=(const SafeFile&) = delete;

  void write(std::string_view bytes);
  std::ostream& stream();  // the same file as a stream; its errors count as write errors

  // Flush, fsync and close: every byte is on the disk under the temporary
  // name, the target not yet replaced.  Any failure so far or now comes
  // back, with the temporary removed.  commit() does it first if need be.
  WriteResult prepare();

  // Flush, fsync, close, rename, fsync of the folder.  Any failure so far or
  // now comes back, with the temporary removed and the target untouched
  // (but for a failed sync of the folder, which comes after the rename).
  WriteResult commit();

  void fail(int err);                    // records err as the failure if there was none yet
  void fail(int err, std::string text);  // the same, with a text of its own
  int error() const { return error_; }   // errno of the first failure, 0 if none
  std::string errorText() const;         // the system's text of that error
  const std::string& target() const { return target_; }  // the file that will be replaced

 private:
  struct StreamParts;
  void start();
  void flushBuffer(bool last);
  void discard();

  std::string path_;
  std::string target_;
  std::string tmpPath_;
  int fd_ = -1;
  int error_ = 0;
  std::string text_;  // the failure's own text, if it has one
  int mode_ = -1;     // permission bits to keep, -1 for a new file
  bool prepared_ = false;
  bool committed_ = false;
  std::string buf_;
  std::unique_ptr<StreamParts> stream_;
};

// The whole file at once.
WriteResult writeFileSafely(const std::string& path, std::string_view bytes);

// Several files that belong together (name, bytes): every one is written
// and synced under its temporary name before any target is replaced, so a
// refused target, a full disk or a failed sync leaves all of them as they
// were.  On a failure, `failed` (if given) is the index of the file.
WriteResult writeFilesSafely(const std::vector<std::pair<std::string, std::string>>& files,
                             std::size_t* failed = nullptr);

// The file filled by `fill` through a stream.  An exception thrown by fill
// counts as a failure (its text becomes the message) and writes nothing.
WriteResult writeFileSafely(const std::string& path,
                            const std::function<void(std::ostream&)>& fill);

// The system's text of an errno value, and the text for a target that is
// neither a regular file nor absent.
std::string errorText(int err);

// errno value used for a target that is not a regular file (a folder, a
// FIFO, a device).  errorText() of it reads "Not a regular file".
constexpr int kNotRegular = -1;

}  // namespace tolmar::io

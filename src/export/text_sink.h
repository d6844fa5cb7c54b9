// Where the lines of an export go: a string in memory, or a file written
// through io::SafeFile, so a failed export leaves no partial file.
// Every line ends in carriage return and line feed (bytes 13, 10).
#pragma once

#include <string>
#include <string_view>

#include "io/safe_write.h"

namespace tolmar {

class TextSink {
 public:
  virtual ~TextSink() = default;
  virtual void write(std::string_view bytes) = 0;
  void line(std::string_view text) {
    write(text);
    write("\r\n");
  }
};

class StringSink final : public TextSink {
 public:
  void write(std::string_view bytes) override { text_.append(bytes); }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

class FileSink final : public TextSink {
 public:
  // Creates the temporary file beside `path` (see io::SafeFile); error()
  // tells if that failed.  Writes after a failure are dropped.
  explicit FileSink(std::string path) : file_(std::move(path)) {}

  void write(std::string_view bytes) override { file_.write(bytes); }

  // Flushes, syncs and renames the file over its path; false on any
  // failure so far or now, with the temporary file removed.
  bool commit() { return file_.commit().ok(); }

  void fail(int err) { file_.fail(err); }      // records err (errno) if there was no failure yet
  int error() const { return file_.error(); }  // errno of the first failure, 0 if none
  std::string errorText() const { return file_.errorText(); }  // the system's text of it

 private:
  io::SafeFile file_;
};

}  // namespace tolmar

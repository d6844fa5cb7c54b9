// Where the lines of an export go: a string in memory, or a file that is
// written under a temporary name beside the chosen one and renamed over it
// only when everything went out, so a failed export leaves no partial file.
// Every line ends in carriage return and line feed (bytes 13, 10).
#pragma once

#include <string>
#include <string_view>

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
  // Creates the temporary file in the folder of `path`; error() tells if
  // that failed.  Writes after a failure are dropped.
  explicit FileSink(std::string path);
  ~FileSink() override;  // removes the temporary file unless committed
  FileSink(const FileSink&) = delete;
  FileSink& operator=(const FileSink&) = delete;

  void write(std::string_view bytes) override;

  // Flushes, closes and renames the file to its path; false on any failure
  // so far or now, with the temporary file removed.
  bool commit();

  void fail(int err);                   // records err (errno) as the failure if there was none yet
  int error() const { return error_; }  // errno of the first failure, 0 if none
  std::string errorText() const;        // the system's text of that error

 private:
  void flush();
  void discard();

  std::string path_;
  std::string tmpPath_;
  int fd_ = -1;
  int error_ = 0;
  bool committed_ = false;
  std::string buf_;
};

}  // namespace tolmar

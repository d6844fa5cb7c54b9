// The bookkeeping of one validation of a hull screen: the flag that keeps
// the screen open, the colours of its fields, and the list of replaced
// values that a caller without a window reads.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "screens/control.h"
#include "screens/replacement.h"

namespace tolmar {

class ValidationLog {
 public:
  // Clears `out`, which then receives this validation's replacements.
  ValidationLog(const char* screen, Replacements& out);

  // Remembers a field's name and its text as typed; call it before the
  // field is cleaned or rewritten.
  void track(const Field& f, std::string control);

  static void accept(Field& f) { f.backColor = kWhite; }

  // f's value was replaced by `kept`: written back, coloured, and the
  // screen stays open.
  void replaced(Field& f, double kept, std::int32_t colour = kYellow);

  // The value v that the store keeps for f written back: white when it is
  // the value typed, as replaced() when it replaced it.
  void settle(Field& f, double v, bool wasReplaced, std::int32_t colour = kYellow);

  // The store keeps `kept` for f without a mark (the screen may close).
  void changed(const Field& f, double kept);

  // f's value cannot be used and has no replacement: coloured, the text
  // stays, and the screen stays open.
  void refused(Field& f, std::int32_t colour = kOrange);

  // The same, with what is wrong with the hull these values give ("the
  // first chine never meets its transom plane"), for the command line.
  void refused(Field& f, const std::string& why);

  bool ok() const { return ok_; }

 private:
  struct Tracked {
    const Field* field;
    std::string control;
    std::string typed;
  };
  const Tracked* find(const Field& f) const;
  void record(const Field& f, std::string kept, bool marked);

  const char* screen_;
  Replacements& out_;
  std::vector<Tracked> tracked_;
  bool ok_ = true;
};

}  // namespace tolmar

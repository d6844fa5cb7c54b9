#include "screens/validation_log.h"

#include <utility>

#include "screens/field_number.h"

namespace tolmar {

ValidationLog::ValidationLog(const char* screen, Replacements& out) : screen_(screen), out_(out) {
  out_.clear();
}

void ValidationLog::track(const Field& f, std::string control) {
  tracked_.push_back({&f, std::move(control), f.text});
}

const ValidationLog::Tracked* ValidationLog::find(const Field& f) const {
  for (const Tracked& t : tracked_) {
    if (t.field == &f) return &t;
  }
  return nullptr;
}

void ValidationLog::record(const Field& f, std::string kept, bool marked) {
  const Tracked* t = find(f);
  out_.push_back(
      {screen_, t ? t->control : std::string(), t ? t->typed : f.text, std::move(kept), marked});
}

void ValidationLog::replaced(Field& f, double kept, std::int32_t colour) {
  showNumber(f, kept);
  f.backColor = colour;
  ok_ = false;
  record(f, f.text, true);
}

void ValidationLog::settle(Field& f, double v, bool wasReplaced, std::int32_t colour) {
  if (wasReplaced) {
    replaced(f, v, colour);
  } else {
    accept(f);
    showNumber(f, v);
  }
}

void ValidationLog::changed(const Field& f, double kept) { record(f, plainText(kept), false); }

void ValidationLog::refused(Field& f, std::int32_t colour) {
  f.backColor = colour;
  ok_ = false;
  record(f, f.text, true);
}

void ValidationLog::refused(Field& f, const std::string& why) {
  refused(f);
  out_.back().why = why;
}

}  // namespace tolmar

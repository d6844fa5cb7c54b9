// What printing asks of the program around it: today's date for the page
// heads and the busy pointer.  The desktop program and the command line use
// the system's clock; tests give a fixed date.
#pragma once

#include <chrono>
#include <string>

namespace tolmar {

class PrintHost {
 public:
  virtual ~PrintHost() = default;
  virtual std::chrono::year_month_day today() const;  // local date of the system
  virtual void setBusy(bool busy) { (void)busy; }
};

// A host whose date never moves.
class FixedDateHost : public PrintHost {
 public:
  explicit FixedDateHost(std::chrono::year_month_day d) : date_(d) {}
  std::chrono::year_month_day today() const override { return date_; }

 private:
  std::chrono::year_month_day date_;
};

// Month, day, year with dashes, two digits for month and day and four for
// the year: "06-15-2025".  A date that is not valid is written as it
// stands, each part held to its digits.
std::string dateText(std::chrono::year_month_day d);

// The busy pointer for the life of a scope.  Brackets do not nest: an
// inner one gives the pointer back at its end, as the busy pointer of the
// board does.
class BusyScope {
 public:
  explicit BusyScope(PrintHost& host) : host_(host) { host_.setBusy(true); }
  ~BusyScope() { host_.setBusy(false); }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  PrintHost& host_;
};

}  // namespace tolmar

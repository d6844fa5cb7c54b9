// Pieces shared by the text reports: the number after a label, the line
// count of a hull held to its tables, and the head of the table pages.
#pragma once

#include <algorithm>
#include <string>

#include "printing/print_job.h"
#include "printing/report_writer.h"

namespace tolmar {

// A whole number as a label carries it: one blank before a number that is
// not negative, none after: " 3", "-1".
inline std::string labelNumber(int n) { return (n >= 0 ? " " : "") + std::to_string(n); }

// nChines held inside the line tables.
inline int reportLines(const HullStore& h) { return std::clamp<int>(h.nChines, 0, kMaxLine); }

// The left margin of the tables, and their page head at it: the hull name
// (after `prefix`), the date and the page number, then a blank line.
inline constexpr int kReportMargin = 20;
void tableHead(ReportWriter& w, const PrintJob& job, const char* prefix = "");

// The text of the report's language: French when langue is 0.
inline const char* pick(const PrintJob& job, const char* fr, const char* en) {
  return job.french() ? fr : en;
}

}  // namespace tolmar

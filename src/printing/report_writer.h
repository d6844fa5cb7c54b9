// Lines of report text placed by character columns.  Column 1 is the left
// edge of the page and a column is as wide as the digit "0" in the current
// font, so that number columns line up in a proportional font.  A line
// that would end below the page's last centimetre goes to a new page, at
// the top, without a head.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "board/drawing_surface.h"

namespace tolmar {

class ReportWriter {
 public:
  explicit ReportWriter(DrawingSurface& s) : s_(s) {}

  // Drawing units of column c.
  float columnX(int c) const;

  // The next text starts at column c, or where the line stands if that is
  // further right already.
  ReportWriter& tab(int c);
  ReportWriter& text(std::string_view t);
  // Ends the line: each run of text between tabs is one Print.
  void end();
  void blank() { end(); }
  // The next page; a line not yet ended is dropped.
  void newPage();

  // Bottom room kept free on each page, twips.
  static constexpr float kBottomRoom = 568;

 private:
  struct Run {
    float x;
    std::string text;
  };
  DrawingSurface& s_;
  std::vector<Run> runs_;
  float x_ = 0;
  bool open_ = false;
  bool tabbed_ = false;
};

}  // namespace tolmar

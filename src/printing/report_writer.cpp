#include "printing/report_writer.h"

namespace tolmar {

float ReportWriter::columnX(int c) const {
  return s_.ScaleLeft + static_cast<float>(c - 1) * s_.TextWidth("0");
}

ReportWriter& ReportWriter::tab(int c) {
  if (!open_) {
    x_ = s_.ScaleLeft;
    open_ = true;
  }
  const float x = columnX(c);
  if (x > x_) x_ = x;
  tabbed_ = true;
  return *this;
}

ReportWriter& ReportWriter::text(std::string_view t) {
  if (!open_) {
    x_ = s_.ScaleLeft;
    open_ = true;
  }
  if (tabbed_ || runs_.empty()) runs_.push_back({x_, std::string()});
  tabbed_ = false;
  runs_.back().text += t;
  x_ += s_.TextWidth(t);
  return *this;
}

void ReportWriter::end() {
  const float lineHeight = s_.TextHeight("0");
  if (s_.CurrentY + lineHeight > s_.ScaleTop + s_.ScaleHeight - kBottomRoom) s_.NewPage();
  if (runs_.empty()) {
    s_.CurrentX = s_.ScaleLeft;
    s_.Print("");
  }
  for (std::size_t i = 0; i < runs_.size(); ++i) {
    s_.CurrentX = runs_[i].x;
    s_.Print(runs_[i].text, i + 1 == runs_.size() ? PrintEnd::NewLine : PrintEnd::StayOnLine);
  }
  runs_.clear();
  open_ = false;
  tabbed_ = false;
}

void ReportWriter::newPage() {
  runs_.clear();
  open_ = false;
  tabbed_ = false;
  s_.NewPage();
}

}  // namespace tolmar

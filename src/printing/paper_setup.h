// How a drawing unit of a printed page becomes a length on the paper, and
// what a user may set about it: the margins and a printer's stretch.  The
// page's drawings keep their twips; only this mapping is the paper's.
#pragma once

#include <string>

namespace tolmar {

// On paper the program counts 568 twips to the centimetre, so that a scale
// of 1136 twips per metre is exactly 1:50.
inline constexpr double kTwipsPerCm = 568;
inline constexpr double kMmPerTwip = 10.0 / kTwipsPerCm;

// The margin of a PDF page on every side, where no printer gives its own.
inline constexpr double kDefaultPdfMarginMm = 5;

// The length of the bar that a user measures to calibrate a printer.
inline constexpr double kCalibrationBarMm = 200;
inline constexpr double kMinCalibration = 0.9;
inline constexpr double kMaxCalibration = 1.1;

// A printer's stretch along the paper's X and Y: the length it prints for
// one drawn, as measured on the calibration bar (measured mm / 200 mm).
// The page is drawn shrunk by these factors, so that it comes out true.
struct PrintCalibration {
  double x = 1;
  double y = 1;
};

// Empty when the value is accepted, else the reason in langue (0 French,
// 1 English).  A factor must lie in [0.9, 1.1]; a margin must be at least 0
// and leave some paper, that is less than half of the paper's smaller side.
std::string calibrationError(double factor, int langue);
std::string marginError(double marginMm, double paperWidthMm, double paperHeightMm, int langue);

// A finite number written with a decimal point, the whole text.
bool parsePaperNumber(const std::string& text, double& v);

// The factors as "1.002,0.998" (X then Y) or one number for both, with
// decimal points.  False when the text is not that; the values are not
// checked against their range here.
bool parseCalibration(const std::string& text, PrintCalibration& c);

// Where the calibration bars stand on a printable area of w x h mm, from its
// top left corner.  A horizontal bar, for the X factor, runs along the bottom
// when the area is 200 mm wide; a vertical one, for Y, along the right side
// when it is 200 mm high above the bottom band.  The bands they take are
// kept free of the page's drawing.
struct CalibrationLayout {
  bool horizontal = false;
  bool vertical = false;
  double bottomBandMm = 0;
  double rightBandMm = 0;
  // Horizontal bar from (hx, hy) to (hx + 200, hy), its label's top left at
  // (hx, hy - kLabelDrop).
  double hx = 0, hy = 0;
  // Vertical bar from (vx, vy) to (vx, vy + 200), its label turned a quarter
  // left, written upward, its base line at vx - kLabelDrop + label height.
  double vx = 0, vy = 0;
  // The part of the area left to the page: (0, 0) to (drawW, drawH).
  double drawW = 0, drawH = 0;

  static constexpr double kBandMm = 7;
  static constexpr double kTickMm = 1.5;  // the end ticks stand out on each side
  static constexpr double kLabelDrop = 5;
};
CalibrationLayout calibrationLayout(double wMm, double hMm);

// The bar's caption: its length and the factor in force along it.
std::string calibrationLabel(char axis, double factor, int langue);

}  // namespace tolmar

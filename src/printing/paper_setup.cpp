#include "printing/paper_setup.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace tolmar {

namespace {

// A finite number in the whole of `s`, in the C locale's form.
bool number(const std::string& s, double& v) {
  if (s.empty()) return false;
  const char* end = s.data() + s.size();
  const auto r = std::from_chars(s.data(), end, v);
  return r.ec == std::errc() && r.ptr == end && std::isfinite(v);
}

std::string decimal(double v, int digits, int langue) {
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.*f", digits, v);
  std::string s = buf;
  if (langue == 0)
    for (char& c : s)
      if (c == '.') c = ',';
  return s;
}

}  // namespace

bool parsePaperNumber(const std::string& text, double& v) { return number(text, v); }

std::string calibrationError(double factor, int langue) {
  if (std::isfinite(factor) && factor >= kMinCalibration && factor <= kMaxCalibration) return {};
  return langue == 0 ? "Le facteur d'étalonnage doit être compris entre 0,9 et 1,1."
                     : "The calibration factor must lie between 0.9 and 1.1.";
}

std::string marginError(double marginMm, double paperWidthMm, double paperHeightMm, int langue) {
  const double half = std::fmin(paperWidthMm, paperHeightMm) / 2;
  if (std::isfinite(marginMm) && marginMm >= 0 && marginMm < half) return {};
  return langue == 0 ? "La marge doit être d'au moins 0 mm et de moins de la moitié du papier (" +
                           decimal(half, 1, 0) + " mm)."
                     : "The margin must be at least 0 mm and less than half the paper (" +
                           decimal(half, 1, 1) + " mm).";
}

bool parseCalibration(const std::string& text, PrintCalibration& c) {
  const auto comma = text.find(',');
  if (comma == std::string::npos) {
    double v = 0;
    if (!number(text, v)) return false;
    c = {v, v};
    return true;
  }
  PrintCalibration r;
  if (!number(text.substr(0, comma), r.x) || !number(text.substr(comma + 1), r.y)) return false;
  c = r;
  return true;
}

CalibrationLayout calibrationLayout(double wMm, double hMm) {
  using L = CalibrationLayout;
  L l;
  if (!(wMm > 0) || !(hMm > 0)) return l;
  l.horizontal = wMm >= kCalibrationBarMm;
  if (l.horizontal) {
    l.bottomBandMm = L::kBandMm;
    l.hx = 0;
    l.hy = hMm - L::kTickMm - 0.5;
  }
  l.vertical = hMm - l.bottomBandMm >= kCalibrationBarMm && wMm > 2 * L::kBandMm;
  if (l.vertical) {
    l.rightBandMm = L::kBandMm;
    l.vx = wMm - L::kTickMm - 0.5;
    l.vy = hMm - l.bottomBandMm - kCalibrationBarMm;
  }
  l.drawW = wMm - l.rightBandMm;
  l.drawH = hMm - l.bottomBandMm;
  return l;
}

std::string calibrationLabel(char axis, double factor, int langue) {
  const std::string f = decimal(factor, 4, langue);
  return langue == 0 ? "barre d'étalonnage 200 mm, facteur " + std::string(1, axis) + " " + f
                     : "calibration bar 200 mm, " + std::string(1, axis) + " factor " + f;
}

}  // namespace tolmar

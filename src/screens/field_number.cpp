#include "screens/field_number.h"

#include <cmath>

#include "text/data_line.h"
#include "text/number_reader.h"
#include "text/number_text.h"

namespace tolmar {

namespace {

constexpr double kFieldPrecision = 1e-12;

double slack(double bound) { return kFieldPrecision * std::abs(bound); }

}  // namespace

void cleanField(Field& f) { cleanNumber(f.text); }

double fieldValue(const Field& f) { return readNumber(f.text) + 0.0; }

std::string plainText(double v) { return decimalText(v, 15); }

bool below(double v, double bound) { return v < bound - slack(bound); }

bool above(double v, double bound) { return v > bound + slack(bound); }

double withinScale(double v, bool& over) {
  over = std::abs(v) > kLargestTyped;
  if (!over) return v;
  return v < 0 ? -kLargestTyped : kLargestTyped;
}

}  // namespace tolmar

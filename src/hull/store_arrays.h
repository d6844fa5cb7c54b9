// Fixed-size arrays with inclusive bounds that need not start at 0, as the
// hull store declares them: Arr<double, 0, 25> has 26 elements, and
// Grid<double, 0, 1, -1, 90> is indexed (0..1, -1..90).
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <type_traits>

namespace tolmar {

template <typename T, int Lo, int Hi>
class Arr {
  static_assert(Hi >= Lo);

 public:
  static constexpr int lo = Lo;
  static constexpr int hi = Hi;
  static constexpr int size = Hi - Lo + 1;

  T& operator()(int i) {
    assert(i >= Lo && i <= Hi);
    return v_[static_cast<std::size_t>(i - Lo)];
  }
  const T& operator()(int i) const {
    assert(i >= Lo && i <= Hi);
    return v_[static_cast<std::size_t>(i - Lo)];
  }
  void fill(const T& x) { v_.fill(x); }
  bool operator==(const Arr&) const = default;

 private:
  std::array<T, size> v_{};
};

// A read-only view of a two-index table of doubles with any lower bounds.
// It lets one routine take either the line tables (any line, points 0..82)
// or the bottom edges (two sides, with edgeX starting at index -1).
struct TableRef {
  const double* base = nullptr;
  int rowLo = 0, rowHi = 0, colLo = 0, colHi = 0;

  double operator()(int r, int c) const {
    assert(r >= rowLo && r <= rowHi && c >= colLo && c <= colHi);
    return base[static_cast<std::size_t>((r - rowLo) * (colHi - colLo + 1) + (c - colLo))];
  }
};

template <typename T, int R0, int R1, int C0, int C1>
class Grid {
  static_assert(R1 >= R0 && C1 >= C0);

 public:
  static constexpr int rowLo = R0, rowHi = R1, colLo = C0, colHi = C1;
  static constexpr int cols = C1 - C0 + 1;
  static constexpr int rows = R1 - R0 + 1;

  T& operator()(int r, int c) {
    assert(r >= R0 && r <= R1 && c >= C0 && c <= C1);
    return v_[static_cast<std::size_t>((r - R0) * cols + (c - C0))];
  }
  const T& operator()(int r, int c) const {
    assert(r >= R0 && r <= R1 && c >= C0 && c <= C1);
    return v_[static_cast<std::size_t>((r - R0) * cols + (c - C0))];
  }
  void fill(const T& x) { v_.fill(x); }
  bool operator==(const Grid&) const = default;

  TableRef ref() const requires std::is_same_v<T, double> {
    return TableRef{v_.data(), R0, R1, C0, C1};
  }

 private:
  std::array<T, static_cast<std::size_t>(rows* cols)> v_{};
};

}  // namespace tolmar

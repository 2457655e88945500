#pragma once

namespace plateconfig {

/// The largest value of a range whose cell is empty or malformed.
inline constexpr double kUnboundedMaximum = 999999;

/// How far above the maximum of a range a value is still inside; there is no tolerance below the minimum.
inline constexpr double kMaximumTolerance = 0.001;

/// The values that a rule row accepts for one size of a plate: mm, or the caller's unit of weight.
struct SizeRange {
  double minimum = 0;
  double maximum = kUnboundedMaximum;

  /// Kept: the minimum has no tolerance, the maximum has one. No range refuses a value that is not a number.
  constexpr bool Accepts(double value) const {
    return !(minimum > value) && !(value > maximum + kMaximumTolerance);
  }

  bool operator==(const SizeRange&) const = default;
};

}  // namespace plateconfig

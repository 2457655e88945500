#pragma once

// Cuts a number behind some decimals, exactly as cutting its printed text does.

namespace plateconfig {

/// How many decimals of a diameter are compared.
inline constexpr int kDiameterDecimals = 4;

/// `value` as printf's "%.9f" writes it, the text cut behind `decimals` digits of the fraction and read back
/// as `atof` reads it: 12.345678 cut to 4 gives 12.3456, -0.00001 gives -0.0, and 9.9999999999, which prints
/// as 10.000000000, gives 10. A negative count counts as 0, one above 9 as 9; a text without a point (an
/// infinity, not a number) is kept whole. Allocates nothing and knows no locale.
double CutDecimals(double value, int decimals);

}  // namespace plateconfig

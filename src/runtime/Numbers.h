// Arithmetic that is checked or rounded in the one way the whole wizard keeps to.
#pragma once

#include <tarnwise/Scalars.h>

namespace Tarnwise {

// The sum or difference of Integers, computed wider: error 6 when it leaves 16 bits.
Integer CheckedInteger(int wide);

// x to four decimals: the double product with 10000, to nearest, ties to even. Error 6 beyond 64 bits.
Double RoundToFourDecimals(Double x);

// x to the nearest whole number, ties to even.
Double RoundHalfEven(Double x);

// A quotient: x / 0 is error 11, 0 / 0 error 6.
Double Divide(Double numerator, Double denominator);
Single DivideSingle(Single numerator, Single denominator);

// A Double stored as a Single: error 6 when it is too large for one.
Single ToSingleChecked(Double x);

// What came out of an operation on Singles: error 6 when it is too large for one.
Single CheckedSingle(Single x);

}  // namespace Tarnwise

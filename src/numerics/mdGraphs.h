// Value curves of the model's attributes: values of scores and scores of values.
#pragma once

#include "curves/Akima.h"
#include "frame/mdTRNMain.h"

namespace Tarnwise {

// The attribute's curve. Error 9 when its count passes 11, 13 or 94 for a point that is no number.
Curve CurveOf(const WizardData& data, int att);

// What an interpolated number is as a value: within 0 to 1, at Single precision. Error 6 when it is no number.
Double ClampedValue(Double value);

// The value of a score, 0 to 1, at Single precision.
Double GetAttValue(const WizardData& data, int att, Single score);

// The score of a value: the first one, in steps of a ten-thousandth of the scale, whose value comes within 0.0001. On a
// steep curve a step can jump over that; then, as for a value that is not reached, the answer is half the range.
// Error 9 for a curve without points.
Single GetAttScore(const WizardData& data, int att, Single value);

// The attribute's closed-form value function, to four decimals. No step uses it.
Double GetAttValueFunc(const WizardData& data, int att, Single score);

// The text without a point at its end.
String StripTrailingDot(const String& text);

}  // namespace Tarnwise

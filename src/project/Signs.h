// What stands between numbers in sentences and tables.
#pragma once

#include <tarnwise/Scalars.h>

namespace Tarnwise {

constexpr const char* kNoNumber = "-";

// These are a terminal's and a report's; the window has its own, in its language.
struct ResultsSigns {
  String NoNumber = kNoNumber;
  String Span = " - ";
  String RankSpan = "-";
  String Seen = ", seen ";
  String AtLeast = " >= ";
  String AtMost = " <= ";
  String More = " and %1 more";
};
inline const ResultsSigns kPlainSigns;

}  // namespace Tarnwise

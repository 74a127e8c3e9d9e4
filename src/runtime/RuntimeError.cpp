#include <tarnwise/Scalars.h>
#include "runtime/Arrays.h"

namespace Tarnwise {

namespace {

const char* DescriptionOf(int number) {
  switch (number) {
    case 5: return "Invalid procedure call or argument";
    case 6: return "Overflow";
    case 7: return "Out of memory";
    case 9: return "Subscript out of range";
    case 11: return "Division by zero";
    case 13: return "Type mismatch";
    case 94: return "Invalid use of Null";
    case 340: return "Control array element does not exist";
    case 360: return "Object already loaded";
    default: return "Application-defined or object-defined error";
  }
}

}  // namespace

RuntimeError::RuntimeError(int number) : RuntimeError(number, DescriptionOf(number)) {}

RuntimeError::RuntimeError(int number, const String& description) : std::runtime_error(description), number_(number) {}

void FailSubscript() { throw RuntimeError(9); }

}  // namespace Tarnwise

// Carets between the wizard, which counts characters, and platforms, which count units of UTF-16.
#include "runtime/Utf8.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

const String kClef = "a\xF0\x9D\x84\x9E\xC3\xA9z";  // a, a clef beyond the basic plane, an accented e, z

TEST(Carets, ACharacterBeyondTheBasicPlaneIsTwoUnits) {
  const int units[] = {0, 1, 3, 4, 5};
  for (int characters = 0; characters <= 4; ++characters) {
    EXPECT_EQ(Utf16UnitsBefore(kClef, characters), units[characters]);
    EXPECT_EQ(CharactersBefore(kClef, units[characters]), characters);
  }
}

TEST(Carets, HalfAPairCountsAsItsCharacter) { EXPECT_EQ(CharactersBefore(kClef, 2), 2); }

TEST(Carets, CountsPastTheEndAreBroughtToIt) {
  EXPECT_EQ(Utf16UnitsBefore(kClef, 17), 5);
  EXPECT_EQ(CharactersBefore(kClef, 17), 4);
  EXPECT_EQ(Utf16UnitsBefore(kClef, -1), 0);
  EXPECT_EQ(CharactersBefore("", 3), 0);
}

}  // namespace
}  // namespace Tarnwise

// Mnemonics in captions: which ampersand is one, and which stands for itself.
#include "view/Captions.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

TEST(MarkedCaption, LeavesAMnemonicAndDoublesEveryOtherAmpersand) {
  EXPECT_EQ(MarkedCaption("&Enter"), "&Enter");
  EXPECT_EQ(MarkedCaption("< &Back"), "< &Back");
  EXPECT_EQ(MarkedCaption("E&xit"), "E&xit");
  EXPECT_EQ(MarkedCaption("(&1):"), "(&1):");
  EXPECT_EQ(MarkedCaption("R&D"), "R&&D");
  EXPECT_EQ(MarkedCaption("bed & board"), "bed && board");
  EXPECT_EQ(MarkedCaption("Beds &"), "Beds &&");
  EXPECT_EQ(MarkedCaption("&"), "&&");
  EXPECT_EQ(MarkedCaption(""), "");
}

TEST(MarkedCaption, KeepsAnAmpersandThatIsDoubledAlready) {
  EXPECT_EQ(MarkedCaption("bed && board"), "bed && board");
  EXPECT_EQ(MarkedCaption("bed &&"), "bed &&");
  EXPECT_EQ(MarkedCaption("&&&Add"), "&&&Add");
}

TEST(MarkedCaption, TakesLettersDigitsAndWhatIsBeyondAsciiForTheInsideOfAWord) {
  for (const char* const word : {"a", "z", "A", "Z", "0", "9", "\xC3\xA9"}) {
    EXPECT_EQ(MarkedCaption(String(word) + "&D"), String(word) + "&&D");
    EXPECT_EQ(MarkedCaption(String(word) + "&2"), String(word) + "&&2");
    EXPECT_EQ(MarkedCaption(String(word) + "&a"), String(word) + "&a");
    EXPECT_EQ(MarkedCaption(String(word) + "&z"), String(word) + "&z");
    EXPECT_EQ(MarkedCaption(String("&") + word), String("&") + word);
  }
  for (const char* const other : {"`", "{", "@", "[", "/", ":", " "}) {
    EXPECT_EQ(MarkedCaption(String(other) + "&D"), String(other) + "&D");
    EXPECT_EQ(MarkedCaption(String("&") + other), String("&&") + other);
  }
}

TEST(UnmarkedCaption, ShowsTheWordsAlone) {
  EXPECT_EQ(UnmarkedCaption("&Enter"), "Enter");
  EXPECT_EQ(UnmarkedCaption("&Re-start All"), "Re-start All");
  EXPECT_EQ(UnmarkedCaption("R&D"), "R&D");
  EXPECT_EQ(UnmarkedCaption("bed && board"), "bed & board");
  EXPECT_EQ(UnmarkedCaption("Beds &"), "Beds &");
  EXPECT_EQ(UnmarkedCaption(""), "");
}

TEST(Mnemonic, IsTheFirstMarkedLetterInLowerCase) {
  EXPECT_EQ(MnemonicOf("&Enter"), 'e');
  EXPECT_EQ(MnemonicOf("&Add"), 'a');
  EXPECT_EQ(MnemonicOf("&Zoom"), 'z');
  EXPECT_EQ(MnemonicOf("E&xit"), 'x');
  EXPECT_EQ(MnemonicOf("(&1):"), '1');
  EXPECT_EQ(MnemonicOf("R&D &plan"), 'p');
  EXPECT_EQ(MnemonicOf("bed && &board"), 'b');
}

TEST(Mnemonic, IsNoneWhereNothingIsMarkedOrNoPlainLetter) {
  EXPECT_EQ(MnemonicOf("Enter"), 0);
  EXPECT_EQ(MnemonicOf("R&D"), 0);
  EXPECT_EQ(MnemonicOf("Beds &"), 0);
  EXPECT_EQ(MnemonicOf("&\xC3\xA9lan"), 0);
  EXPECT_EQ(MnemonicOf(""), 0);
}

}  // namespace
}  // namespace Tarnwise

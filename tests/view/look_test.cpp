// What the tree's colours come to on the palettes that people have.
#include "view/Look.h"

#include "view/Looked.h"
#include "view/Palettes.h"
#include "view/Pictures.h"
#include "view/headless/HeadlessToolkit.h"

#include <gtest/gtest.h>

#include <set>

namespace Tarnwise {
namespace {

constexpr Colour kBlack = 0;
constexpr Colour kWhite = 0xFFFFFF;
constexpr Colour kPaper = kWhite;
constexpr Colour kRow = 0xF4F1EE;
constexpr Colour kBenefit = 0xC0C0FF;
constexpr Colour kCost = 0xFFC0C0;

struct LookForm : Form {
  explicit LookForm(std::shared_ptr<Platform> screen) : Form(std::move(screen), "frmLook") {}
  PictureBox picBox{*this, this, "picBox"};
  Label lblIn{*this, &picBox, "lblIn"};
  Label lblOn{*this, this, "lblOn"};
  CommandButton cmdAtt{*this, &picBox, "cmdAtt"};
};

class OnPalette : public testing::TestWithParam<NamedPalette> {
 protected:
  const Palette palette = Readable(GetParam().Colours);
  const bool dark = GetParam().Dark;
  std::shared_ptr<Platform> screen = std::make_shared<Platform>(std::make_shared<HeadlessToolkit>());
  std::shared_ptr<LookForm> form = std::make_shared<LookForm>(screen);
};

std::set<Colour> ColoursOfPictures() {
  std::set<Colour> colours;
  for (const String& name : PictureNames()) {
    for (const PictureShape& shape : FindPicture(name)->Shapes) {
      if (shape.Fill) colours.insert(*shape.Fill);
      if (shape.Stroke) colours.insert(*shape.Stroke);
    }
  }
  return colours;
}

TEST(Contrast, IsTheRatioOfLuminances) {
  EXPECT_DOUBLE_EQ(Contrast(kBlack, kWhite), 21.0);
  EXPECT_DOUBLE_EQ(Contrast(kWhite, kBlack), 21.0);
  EXPECT_DOUBLE_EQ(Contrast(kBenefit, kBenefit), 1.0);
  EXPECT_NEAR(Contrast(Rgb(119, 119, 119), kWhite), 4.478, 0.001);
  EXPECT_NEAR(Contrast(Rgb(255, 0, 0), kWhite), 3.998, 0.001);
  EXPECT_NEAR(Contrast(Rgb(0, 0, 255), kBlack), 2.444, 0.001);
}

TEST(ReadablePalette, KeepsGroundsThatReadAndMovesOthersAwayFromTheirText) {
  Palette palette{Rgb(239, 239, 239), kBlack, kWhite, kBlack, kWhite, kBlack, Rgb(0, 0, 120), kWhite};
  EXPECT_EQ(Readable(palette), palette);
  palette.Highlight = Rgb(48, 140, 198);
  palette.Button = Rgb(90, 90, 90);
  const Palette readable = Readable(palette);
  EXPECT_GE(Contrast(readable.Highlight, readable.HighlightText), kReadable);
  EXPECT_LT(readable.Highlight & 0xFFU, 48U) << "darker, under white text";
  EXPECT_GE(Contrast(readable.Button, readable.ButtonText), kReadable);
  EXPECT_GT(readable.Button & 0xFFU, 90U) << "lighter, under black text";
  EXPECT_EQ(readable.HighlightText, palette.HighlightText);
  EXPECT_EQ(readable.Window, palette.Window);
}

TEST_P(OnPalette, WhitePaperIsThePlatformsBaseAndRowsAreNearIt) {
  form->picBox.BackColor = kPaper;
  EXPECT_EQ(FillOf(form->picBox, palette), palette.Base);
  EXPECT_EQ(GroundOf(form->lblIn, palette), palette.Base);
  EXPECT_EQ(LookOf(form->lblIn, palette).Ink, palette.Text);
  form->picBox.BackColor = kRow;
  EXPECT_LT(Contrast(FillOf(form->picBox, palette), palette.Base), 1.3);
  form->picBox.BackColor = kButtonFace;
  EXPECT_EQ(FillOf(form->picBox, palette), palette.Window);
  EXPECT_EQ(LookOf(form->lblIn, palette).Ink, palette.WindowText);
  EXPECT_FALSE(LookOf(form->lblIn, palette).Ground);
}

TEST_P(OnPalette, AGroundThatIsDarkAlreadyStaysAsItIs) {
  form->picBox.BackColor = kBlack;
  EXPECT_EQ(FillOf(form->picBox, palette), kBlack);
  EXPECT_GE(Contrast(LookOf(form->lblIn, palette).Ink, kBlack), kReadable);
}

TEST_P(OnPalette, CaptionsThatAreBlackByRuleStayBlackOnAGroundOnWhichTheyRead) {
  form->lblIn.ForeColor = kBlack;
  const LabelLook in = LookOf(form->lblIn, palette);
  EXPECT_EQ(in.Ink, kBlack);
  EXPECT_FALSE(in.Ground) << "the box itself is the ground";
  EXPECT_GE(Contrast(kBlack, FillOf(form->picBox, palette)), kReadable);
  EXPECT_EQ(FillOf(form->picBox, palette) == palette.Window, !dark);
  form->lblOn.ForeColor = kBlack;
  const LabelLook on = LookOf(form->lblOn, palette);
  EXPECT_EQ(on.Ink, kBlack);
  EXPECT_EQ(on.Ground.has_value(), dark);
  EXPECT_GE(Contrast(kBlack, on.Ground.value_or(palette.Window)), kReadable);
  form->lblOn.ForeColor = kWhite;
  EXPECT_EQ(LookOf(form->lblOn, palette).Ground.has_value(), !dark);
}

TEST_P(OnPalette, ALitCaptionStandsOnTheHighlight) {
  form->lblIn.ForeColor = kHighlightText;
  const LabelLook look = LookOf(form->lblIn, palette);
  EXPECT_TRUE(look.Lit);
  EXPECT_EQ(look.Ink, GetParam().Colours.HighlightText);
  ASSERT_TRUE(look.Ground);
  EXPECT_GE(Contrast(look.Ink, *look.Ground), kReadable);
}

TEST_P(OnPalette, TextReadsOnEveryGround) {
  for (const Colour ground : {palette.Window, palette.Base, palette.Button, kBlack, kWhite, kRow, kBenefit, kCost,
                              Rgb(0x80, 0x80, 0x80), Rgb(0, 255, 0), Rgb(0, 0, 255), Rgb(0xC0, 0xE0, 0xFF)}) {
    EXPECT_GE(Contrast(TextOn(ground, palette), ground), kReadable) << std::hex << ground;
  }
}

TEST_P(OnPalette, AttributesKeepTheirColourAndTheirNameReads) {
  for (const Colour own : {kBenefit, kCost}) {
    form->cmdAtt.BackColor = own;
    EXPECT_EQ(LookOf(form->cmdAtt, palette, true, Pressed::No).Face, own);
    for (const Pressed pressed : {Pressed::No, Pressed::Hover, Pressed::Down}) {
      const ButtonLook look = LookOf(form->cmdAtt, palette, true, pressed);
      EXPECT_GE(Contrast(look.Ink, look.Face), kReadable);
    }
  }
}

TEST_P(OnPalette, PicturesAreAsDrawnOnLightGroundsAndSeenOnDarkOnes) {
  for (const Colour ground : {palette.Window, palette.Base, palette.Button}) {
    for (const Colour drawn : ColoursOfPictures()) {
      const double made = Contrast(drawn, kWhite);
      const double shown = Contrast(MarkOn(drawn, ground), ground);
      if (!dark) {
        EXPECT_EQ(MarkOn(drawn, ground), drawn);
      } else if (made >= 3.0) {
        EXPECT_GE(shown, kReadable) << std::hex << drawn;
      } else if (made < 2.0) {
        EXPECT_LT(shown, 2.0) << std::hex << drawn;
      }
    }
  }
}

TEST_P(OnPalette, LinesOfTheChartsAreSeenOnTheirGround) {
  for (const Colour line : {Rgb(0, 0, 255), Rgb(255, 0, 0), Rgb(192, 0, 0), kBlack}) {
    const Colour shown = MarkOn(line, palette.Base);
    EXPECT_TRUE(dark ? Contrast(shown, palette.Base) >= kReadable : shown == line) << std::hex << line;
  }
  EXPECT_LT(Contrast(MarkOn(0xE0E0E0, palette.Base), palette.Base), 1.6) << "a grid stays faint";
}

TEST_P(OnPalette, EdgesAreClearWhereContrastIsHigh) {
  const bool high = Contrast(palette.Window, palette.WindowText) > 19.0;
  EXPECT_GE(Contrast(BoxEdge(palette), palette.Window), high ? 3.0 : 1.4);
  EXPECT_GE(Contrast(FrameEdge(palette), palette.Window), high ? 3.0 : 1.2);
}

// Every caption of every form, on its way through the wizard.
TEST_P(OnPalette, EveryCaptionOfEveryStepReads) {
  int seen = 0;
  for (const int method : {0, 1}) {
    PlayLookedAt(MakeHeadlessDriver(), TARNWISE_SAMPLES, EveryStep(method), [&](Form& step, const String& at) {
      for (const Control* control : step.Controls()) {
        if (control->Type != Kind::Label) continue;
        const auto& label = static_cast<const Label&>(*control);
        const LabelLook look = LookOf(label, palette);
        EXPECT_GE(Contrast(look.Ink, look.Ground.value_or(GroundOf(label, palette))), kReadable)
            << step.Name << "." << label.FullName() << " at " << at;
        ++seen;
      }
    });
  }
  EXPECT_GT(seen, 500);
}

INSTANTIATE_TEST_SUITE_P(Palettes, OnPalette, testing::ValuesIn(PeoplesPalettes()),
                         [](const auto& palette) { return palette.param.Name; });

}  // namespace
}  // namespace Tarnwise

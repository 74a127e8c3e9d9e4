// Every step on the palettes that people have, looked at pixel by pixel. With TARNWISE_LOOKS, a folder, the pictures
// are kept there.
#include "view/Looked.h"

#include "view/Legible.h"
#include "view/Palettes.h"
#include "view/qt/QtForm.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QWidget>
#include <stdexcept>

namespace Tarnwise {

QColor ColourOf(Colour colour) {
  return QColor(static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
                static_cast<int>((colour >> 16U) & 0xFFU));
}

QPalette QtPalette(const Palette& colours) {
  QPalette palette(ColourOf(colours.Button), ColourOf(colours.Window));
  palette.setColor(QPalette::WindowText, ColourOf(colours.WindowText));
  palette.setColor(QPalette::Base, ColourOf(colours.Base));
  palette.setColor(QPalette::AlternateBase, ColourOf(Blend(colours.Base, colours.Text, 5)));
  palette.setColor(QPalette::Text, ColourOf(colours.Text));
  palette.setColor(QPalette::ButtonText, ColourOf(colours.ButtonText));
  palette.setColor(QPalette::Highlight, ColourOf(colours.Highlight));
  palette.setColor(QPalette::HighlightedText, ColourOf(colours.HighlightText));
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, ColourOf(Blend(colours.Window, colours.WindowText, 45)));
  }
  return palette;
}

Pixels PixelsOf(const QImage& image) {
  Pixels pixels{image.width(), image.height(), {}};
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb rgb = image.pixel(x, y);
      pixels.Rows.push_back(static_cast<Colour>(qRed(rgb)) | (static_cast<Colour>(qGreen(rgb)) << 8U) |
                            (static_cast<Colour>(qBlue(rgb)) << 16U));
    }
  }
  return pixels;
}

const NamedPalette& PaletteOf(const String& name) {
  for (const NamedPalette& palette : PeoplesPalettes()) {
    if (palette.Name == name) return palette;
  }
  throw std::out_of_range(name);
}

class QtPaletteTest : public testing::Test {
 protected:
  ~QtPaletteTest() override { QApplication::setPalette(former_); }

  static void Use(const NamedPalette& palette) { QApplication::setPalette(QtPalette(palette.Colours)); }

  static QImage PictureOf(const Form& form) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() != QString::fromStdString(form.Name) || !window->isVisible()) continue;
      QCoreApplication::processEvents();
      return window->grab().toImage();
    }
    return {};
  }

  static void LookAt(const Form& form, const NamedPalette& palette, const String& at) {
    const QImage picture = PictureOf(form);
    ASSERT_FALSE(picture.isNull()) << at;
    Keep(picture, palette, at);
    const Pixels pixels = PixelsOf(picture);
    ExpectLegible(form, pixels, palette.Dark, at);
    if (palette.Dark) ExpectNoGlare(form, pixels, at);
  }

 private:
  static void Keep(const QImage& picture, const NamedPalette& palette, const String& at) {
    if (!qEnvironmentVariableIsSet("TARNWISE_LOOKS")) return;
    const QString folder = qEnvironmentVariable("TARNWISE_LOOKS") + "/" + palette.Name;
    QDir().mkpath(folder);
    picture.save(folder + "/" + QString::fromStdString(at) + ".png");
  }

  const QPalette former_ = QApplication::palette();
};

class QtLook : public QtPaletteTest, public testing::WithParamInterface<NamedPalette> {
 protected:
  QtLook() { Use(GetParam()); }
};

TEST_P(QtLook, OfEveryStepToDirectJudgmentsIsReadable) {
  PlayLookedAt(MakeQtDriver(), TARNWISE_SAMPLES, EveryStep(0),
               [](Form& form, const String& name) { LookAt(form, GetParam(), "direct-" + name); });
}

TEST_P(QtLook, OfEveryStepToTradeOffsIsReadable) {
  PlayLookedAt(MakeQtDriver(), TARNWISE_SAMPLES, EveryStep(1),
               [](Form& form, const String& name) { LookAt(form, GetParam(), "tradeoffs-" + name); });
}

TEST_F(QtPaletteTest, IsFollowedWhileAFormIsOpen) {
  Use(PaletteOf("light"));
  PlayLookedAt(MakeQtDriver(), TARNWISE_SAMPLES, EveryStep(1), [](Form& form, const String& name) {
    if (name != "ranking" && name != "uncertain" && name != "results") return;
    const QImage before = PictureOf(form);
    Use(PaletteOf("dark"));
    LookAt(form, PaletteOf("dark"), "changed-" + name);
    Use(PaletteOf("light"));
    EXPECT_EQ(PictureOf(form), before) << name;
  });
}

TEST_F(QtPaletteTest, TheRegionKeepsItsColourOnADarkChart) {
  Use(PaletteOf("dark"));
  PlayLookedAt(MakeQtDriver(), TARNWISE_SAMPLES, EveryStep(0), [](Form& form, const String& name) {
    if (name != "inconsistent") return;
    const Shades shades = ShadesOf(PixelsOf(PictureOf(form)), kInRegion, PictureOf(form).devicePixelRatio());
    EXPECT_EQ(shades.Ground, 0xC0E0FFU);
  });
}

INSTANTIATE_TEST_SUITE_P(Palettes, QtLook, testing::ValuesIn(PeoplesPalettes()),
                         [](const auto& palette) { return palette.param.Name; });

}  // namespace Tarnwise

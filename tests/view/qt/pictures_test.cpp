#include "view/Pictures.h"

#include <gtest/gtest.h>

namespace Tarnwise {

TEST(Pictures, EveryNameThatFormsUseIsThere) {
  for (const char* name : {"approach.direct",
                           "approach.tradeoffs",
                           "mark.benefitTarget",
                           "mark.benefitReference",
                           "mark.costTarget",
                           "mark.costReference",
                           "Smiling",
                           "Smiling1",
                           "Smiling2",
                           "Crying",
                           "Crying1",
                           "Crying2",
                           "window",
                           "up",
                           "down",
                           "left",
                           "right",
                           "leftback",
                           "rightback",
                           "upback",
                           "downback",
                           "certain",
                           "drag.A",
                           "drag.B"}) {
    EXPECT_NE(FindPicture(name), nullptr) << name;
  }
  EXPECT_EQ(FindPicture(""), nullptr);
  EXPECT_EQ(FindPicture("no such picture"), nullptr);
}

TEST(Pictures, AllShapesLieInTheirBoxAndAreSeen) {
  for (const String& name : PictureNames()) {
    const Picture& picture = *FindPicture(name);
    EXPECT_FALSE(picture.Shapes.empty()) << name;
    for (const PictureShape& shape : picture.Shapes) {
      EXPECT_TRUE(shape.Fill || shape.Stroke) << name;
      EXPECT_EQ(shape.Points.size() % 2, 0U) << name;
      EXPECT_GE(shape.Points.size(), 4U) << name;
      for (std::size_t i = 0; i + 1 < shape.Points.size(); i += 2) {
        EXPECT_GE(shape.Points[i], -2.0F) << name;
        EXPECT_LE(shape.Points[i], picture.Width + 2.0F) << name;
        EXPECT_GE(shape.Points[i + 1], -2.0F) << name;
        EXPECT_LE(shape.Points[i + 1], picture.Height + 2.0F) << name;
      }
    }
  }
}

}  // namespace Tarnwise

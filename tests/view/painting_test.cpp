// What is painted of containers, handles and pictures, on a surface that keeps it.
#include "view/Painting.h"

#include "view/Bench.h"
#include "view/Form.h"
#include "view/Pictures.h"
#include "view/RecordingSurface.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

using Shapes = std::vector<std::string>;

constexpr Palette kLight{0xF0F0F0, 0x000000, 0xFFFFFF, 0x000000, 0xE1E1E1, 0x000000, 0xD77800, 0xFFFFFF};

struct Painted : Bench {
  RecordingSurface Surface_;

  Shapes ContainerAt(const Control& container, double scale, const PixelRect& area) {
    Surface_.Lines.clear();
    PaintContainer({Surface_, kLight, scale}, container, WindowPlace(container, scale), area);
    return Surface_.Lines;
  }
  Shapes HandleAt(const Control& handle, double scale, const PixelRect& client, PaintState state) {
    Surface_.Lines.clear();
    PaintHandle({Surface_, kLight, scale}, handle, client, state);
    return Surface_.Lines;
  }
};

constexpr PixelRect kEverything{0, 0, 500, 500};

TEST(Painting, ALevelLineIsStraightAndASlantedOneIsWider) {
  Painted bench;
  PictureBox& graph = bench.On->picGraph;
  graph.Draw({Drawn::What::Line, {3, 7, 41, 7}, 0x112233, 1});
  graph.Draw({Drawn::What::Line, {3, 7, 41, 19}, 0x112233, 2});
  const Shapes drawn = bench.ContainerAt(graph, 1.0, {0, 0, 9, 9});
  ASSERT_EQ(drawn.size(), 3U);
  EXPECT_EQ(drawn[0].substr(0, 12), "fill 0,0-9,9");
  EXPECT_EQ(drawn[1], "straight 3,7 41,7 #112233 1");
  EXPECT_EQ(drawn[2], "polyline 3,7 41,19 edge #112233 3.2");
}

TEST(Painting, LengthsAndWidthsGrowWithTheScreensScale) {
  Painted bench;
  PictureBox& graph = bench.On->picGraph;
  graph.Draw({Drawn::What::Line, {3, 7, 41, 19}, 0x112233, 1});
  EXPECT_EQ(bench.ContainerAt(graph, 1.5, kEverything)[1], "polyline 4.5,10.5 61.5,28.5 edge #112233 2.4");
}

TEST(Painting, ARegionIsFilledByWindingAndHasNoEdge) {
  Painted bench;
  PictureBox& graph = bench.On->picGraph;
  graph.Draw({Drawn::What::Polygon, {1, 2, 30, 4, 17, 29}, 0x8899AA, 1});
  EXPECT_EQ(bench.ContainerAt(graph, 1.0, kEverything)[1], "polygon 1,2 30,4 17,29 of #8899AA winding");
}

TEST(Painting, ABoxIsFourStraightLines) {
  Painted bench;
  PictureBox& graph = bench.On->picGraph;
  graph.Draw({Drawn::What::Box, {2, 3, 20, 31}, 0x010203, 1});
  const Shapes drawn = bench.ContainerAt(graph, 1.0, kEverything);
  ASSERT_EQ(drawn.size(), 5U);
  EXPECT_EQ(drawn[1], "straight 2,3 20,3 #010203 1");
  EXPECT_EQ(drawn[4], "straight 2,3 2,31 #010203 1");
}

TEST(Painting, LinesAndShapesOutsideTheAreaAreLeftOut) {
  Painted bench;
  PictureBox& graph = bench.On->picGraph;
  Line line(*bench.On, &graph, "lneNear");
  line.X1 = 5;
  line.X2 = 60;
  line.Y1 = 5;
  line.Y2 = 5;
  Shape shape(*bench.On, &graph, "shpFar");
  Place(shape, 200, 200, 10, 10);
  shape.FillColor = 0x334455;
  const Shapes near = bench.ContainerAt(graph, 1.0, {0, 0, 20, 20});
  ASSERT_EQ(near.size(), 2U);
  EXPECT_EQ(near[1].substr(0, 17), "straight 5,5 60,5");
  const Shapes both = bench.ContainerAt(graph, 1.0, kEverything);
  ASSERT_EQ(both.size(), 3U);
  EXPECT_EQ(both[2].substr(0, 35), "ellipse 200.75,200.75-209.25,209.25");
}

TEST(Painting, WhatIsHiddenIsNotPainted) {
  Painted bench;
  PictureBox& graph = bench.On->picGraph;
  Shape shape(*bench.On, &graph, "shpMark");
  Place(shape, 20, 20, 10, 10);
  EXPECT_EQ(bench.ContainerAt(graph, 1.0, kEverything).size(), 2U);
  shape.Visible = false;
  EXPECT_EQ(bench.ContainerAt(graph, 1.0, kEverything).size(), 1U);
}

TEST(Painting, AHandleIsDrawnLargeEnoughWhateverItsSizeInTheTree) {
  Painted bench;
  const Shapes drawn = bench.HandleAt(bench.On->picHandle[0], 1.0, {0, 0, 12, 12}, {});
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_EQ(drawn[0].substr(0, 25), "ellipse 1.5,1.5-10.5,10.5");
}

TEST(Painting, ARingShowsTheFocusAndAFainterOneThePointer) {
  Painted bench;
  const Shapes focused = bench.HandleAt(bench.On->picHandle[0], 1.0, {0, 0, 16, 16}, {true, false});
  ASSERT_EQ(focused.size(), 2U);
  EXPECT_EQ(focused[1], "ellipse 1,1-15,15 edge #D77800 2");
  const Shapes hovered = bench.HandleAt(bench.On->picHandle[0], 1.0, {0, 0, 16, 16}, {false, true});
  ASSERT_EQ(hovered.size(), 2U);
  EXPECT_EQ(hovered[1], "ellipse 1,1-15,15 edge #D77800 2 opacity 0.5");
}

TEST(Painting, APictureIsFittedIntoTheMiddleOfItsPlace) {
  RecordingSurface tall;
  PaintPicture(tall, "window", {0, 0, 40, 100}, 0xFFFFFF);
  RecordingSurface square;
  PaintPicture(square, "window", {0, 30, 40, 70}, 0xFFFFFF);
  ASSERT_FALSE(tall.Lines.empty());
  EXPECT_EQ(tall.Lines, square.Lines);
}

TEST(Painting, APictureNobodyHasLeavesThePlaceAsItIs) {
  RecordingSurface on;
  PaintPicture(on, "no such picture", {0, 0, 40, 40}, 0xFFFFFF);
  EXPECT_TRUE(on.Lines.empty());
}

TEST(Painting, AFocusedFaceHasARingInTheHighlightsColour) {
  RecordingSurface on;
  const ButtonLook look{0xC0C0FF, 0x8080C0, 0x000000};
  PaintFace({on, kLight, 2.0}, {0, 0, 90, 30}, look, false);
  EXPECT_EQ(on.Lines, Shapes{"box 3,3-87,27 corner 8 of #C0C0FF edge #8080C0 2"});
  PaintFace({on, kLight, 2.0}, {0, 0, 90, 30}, look, true);
  ASSERT_EQ(on.Lines.size(), 3U);
  EXPECT_EQ(on.Lines[2], "box 2,2-88,28 corner 9 edge #D77800 4");
}

TEST(Painting, PicturesAreNamedByAFileInAnyWriting) {
  EXPECT_EQ(PictureNameOf("C:\\Icons\\Drag1PG.ICO"), "drag1pg");
  EXPECT_EQ(PictureNameOf("icons/window.png"), "window");
  EXPECT_EQ(PictureNameOf("window"), "window");
}

}  // namespace
}  // namespace Tarnwise

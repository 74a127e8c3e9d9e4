// The pictures that the wizard's forms name.
#include "view/Pictures.h"

#include "view/Controls.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace Tarnwise {

namespace {

constexpr Colour Rgb(Colour red, Colour green, Colour blue) { return red | (green << 8U) | (blue << 16U); }

constexpr Colour kInk = Rgb(55, 65, 81);
constexpr Colour kFaint = Rgb(226, 232, 240);
constexpr Colour kBenefit = Rgb(201, 66, 62);
constexpr Colour kBenefitLight = Rgb(255, 205, 200);
constexpr Colour kCost = Rgb(66, 108, 196);
constexpr Colour kCostLight = Rgb(204, 214, 255);
constexpr Colour kGold = Rgb(233, 162, 43);
constexpr Colour kAmber = Rgb(158, 91, 4);  // a gold that is seen on a button
constexpr Colour kGoldLight = Rgb(255, 224, 192);

constexpr Single kPi = 3.14159265F;

struct Look {
  std::optional<Colour> Fill;
  std::optional<Colour> Stroke;
  Single Width = 2.0F;
};

Look Filled(Colour fill) { return {fill, std::nullopt, 0.0F}; }
Look Stroked(Colour stroke, Single width) { return {std::nullopt, stroke, width}; }

PictureShape Make(PictureShape::What what, std::vector<Single> points, const Look& look) {
  return {what, std::move(points), look.Fill, look.Stroke, look.Width};
}

PictureShape Polygon(std::vector<Single> points, const Look& look) {
  return Make(PictureShape::What::Polygon, std::move(points), look);
}

PictureShape Stroke(std::vector<Single> points, Colour colour, Single width) {
  return Make(PictureShape::What::Polyline, std::move(points), Stroked(colour, width));
}

PictureShape Disc(Single x, Single y, Single radius, const Look& look) {
  return Make(PictureShape::What::Ellipse, {x - radius, y - radius, x + radius, y + radius}, look);
}

// Points along an arc, angles in degrees, counted clockwise from the right as y runs downward.
std::vector<Single> Arc(Single x, Single y, Single rx, Single ry, Single from, Single to) {
  std::vector<Single> points;
  const int steps = std::max(8, static_cast<int>(std::abs(to - from) / 10.0F));
  for (int i = 0; i <= steps; ++i) {
    const Single angle = (from + (to - from) * static_cast<Single>(i) / static_cast<Single>(steps)) * kPi / 180.0F;
    points.push_back(x + rx * std::cos(angle));
    points.push_back(y + ry * std::sin(angle));
  }
  return points;
}

// The head of an arrow along these points, its tip on the last of them.
PictureShape Head(const std::vector<Single>& along, Single size, Colour colour) {
  const std::size_t last = along.size() - 2;
  const Single x = along[last];
  const Single y = along[last + 1];
  const Single dx = x - along[last - 6];
  const Single dy = y - along[last - 5];
  const Single length = std::sqrt(dx * dx + dy * dy);
  const Single ux = dx / length * size;
  const Single uy = dy / length * size;
  return Polygon({x, y, x - ux - uy * 0.5F, y - uy + ux * 0.5F, x - ux + uy * 0.5F, y - uy - ux * 0.5F},
                 Filled(colour));
}

PictureShape RoundedBox(Single left, Single top, Single right, Single bottom, Single radius, const Look& look) {
  std::vector<Single> points;
  const Single centres[] = {right - radius, bottom - radius, left + radius,  bottom - radius,
                            left + radius,  top + radius,    right - radius, top + radius};
  for (std::size_t corner = 0; corner < 4; ++corner) {
    const Single from = 90.0F * static_cast<Single>(corner);
    const Single x = centres[2 * corner];
    const Single y = centres[2 * corner + 1];
    for (const Single value : Arc(x, y, radius, radius, from, from + 90.0F)) {
      points.push_back(value);
    }
  }
  return Polygon(std::move(points), look);
}

PictureShape Star(Single x, Single y, Single radius, const Look& look) {
  std::vector<Single> points;
  for (int i = 0; i < 10; ++i) {
    const Single angle = (static_cast<Single>(i) * 36.0F - 90.0F) * kPi / 180.0F;
    const Single reach = i % 2 == 0 ? radius : radius * 0.45F;
    points.push_back(x + reach * std::cos(angle));
    points.push_back(y + reach * std::sin(angle));
  }
  return Polygon(std::move(points), look);
}

void LetterA(Picture& picture, Single x, Single y, Single half, Colour colour, Single width) {
  picture.Shapes.push_back(
      Stroke({x - half * 0.75F, y + half, x, y - half, x + half * 0.75F, y + half}, colour, width));
  picture.Shapes.push_back(
      Stroke({x - half * 0.45F, y + half * 0.3F, x + half * 0.45F, y + half * 0.3F}, colour, width));
}

void LetterB(Picture& picture, Single x, Single y, Single half, Colour colour, Single width) {
  const Single left = x - half * 0.6F;
  std::vector<Single> stem{left, y, left, y - half};
  for (const Single value : Arc(x, y - half * 0.5F, half * 0.6F, half * 0.5F, -90.0F, 90.0F)) stem.push_back(value);
  stem.insert(stem.end(), {left, y, left, y + half});
  for (const Single value : Arc(x, y + half * 0.5F, half * 0.7F, half * 0.5F, 90.0F, -90.0F)) stem.push_back(value);
  stem.insert(stem.end(), {left, y});
  picture.Shapes.push_back(Stroke(std::move(stem), colour, width));
}

// The chart that both approaches are shown on: faint grid, the target's axis upright, the reference's along the foot.
Picture Axes(Colour upright, Colour along) {
  Picture picture;
  picture.Width = 140.0F;
  picture.Height = 110.0F;
  picture.Shapes.push_back(RoundedBox(22.0F, 8.0F, 130.0F, 92.0F, 3.0F, Filled(Rgb(248, 250, 252))));
  for (int i = 1; i <= 4; ++i) {
    const Single x = 22.0F + 21.6F * static_cast<Single>(i);
    const Single y = 92.0F - 16.8F * static_cast<Single>(i);
    picture.Shapes.push_back(Stroke({x, 8.0F, x, 92.0F}, kFaint, 0.8F));
    picture.Shapes.push_back(Stroke({22.0F, y, 130.0F, y}, kFaint, 0.8F));
  }
  picture.Shapes.push_back(Stroke({22.0F, 93.2F, 22.0F, 6.0F}, upright, 2.4F));
  picture.Shapes.push_back(Stroke({20.8F, 92.0F, 133.0F, 92.0F}, along, 2.4F));
  picture.Shapes.push_back(Polygon({18.5F, 9.0F, 22.0F, 1.5F, 25.5F, 9.0F}, Filled(upright)));
  picture.Shapes.push_back(Polygon({130.0F, 88.5F, 137.5F, 92.0F, 130.0F, 95.5F}, Filled(along)));
  return picture;
}

Picture DirectApproach() {
  Picture picture = Axes(kBenefit, kCost);
  picture.Shapes.push_back(Polygon({22.0F, 92.0F, 68.0F, 18.0F, 122.0F, 40.0F}, Filled(kGoldLight)));
  picture.Shapes.push_back(Stroke({22.0F, 92.0F, 68.0F, 18.0F}, kGold, 2.2F));
  picture.Shapes.push_back(Stroke({22.0F, 92.0F, 122.0F, 40.0F}, kGold, 2.2F));
  picture.Shapes.push_back(Stroke(Arc(22.0F, 92.0F, 58.0F, 58.0F, -52.5F, -33.5F), kInk, 1.6F));
  picture.Shapes.push_back(Head(Arc(22.0F, 92.0F, 58.0F, 58.0F, -40.0F, -57.0F), 6.0F, kInk));
  picture.Shapes.push_back(Head(Arc(22.0F, 92.0F, 58.0F, 58.0F, -46.0F, -29.0F), 6.0F, kInk));
  for (const auto& [x, y] : {std::pair{68.0F, 18.0F}, std::pair{122.0F, 40.0F}}) {
    picture.Shapes.push_back(Disc(x, y, 5.2F, {kInk, kWhite, 1.8F}));
  }
  picture.Shapes.push_back(Disc(10.0F, 14.0F, 5.0F, {kBenefitLight, kBenefit, 1.6F}));
  picture.Shapes.push_back(Disc(128.0F, 103.0F, 5.0F, {kCostLight, kCost, 1.6F}));
  return picture;
}

Picture TradeOffApproach() {
  Picture picture = Axes(kBenefit, kCost);
  // Where B gains along one axis it gives way on the other, and both are equally good: the beam lies level.
  picture.Shapes.push_back(Stroke({48.0F, 92.0F, 48.0F, 32.0F, 22.0F, 32.0F}, kBenefit, 1.0F));
  picture.Shapes.push_back(Stroke({108.0F, 92.0F, 108.0F, 68.0F, 22.0F, 68.0F}, kCost, 1.0F));
  picture.Shapes.push_back(Stroke(Arc(115.0F, 24.0F, 62.0F, 44.0F, 158.0F, 112.0F), kGold, 2.4F));
  picture.Shapes.push_back(Head(Arc(115.0F, 24.0F, 62.0F, 44.0F, 112.0F, 166.0F), 8.0F, kGold));
  picture.Shapes.push_back(Head(Arc(115.0F, 24.0F, 62.0F, 44.0F, 158.0F, 104.0F), 8.0F, kGold));
  picture.Shapes.push_back(Disc(48.0F, 28.0F, 8.6F, {kBenefitLight, kBenefit, 1.8F}));
  LetterA(picture, 48.0F, 27.4F, 4.2F, kInk, 1.7F);
  picture.Shapes.push_back(Disc(108.0F, 70.0F, 8.6F, {kCostLight, kCost, 1.8F}));
  LetterB(picture, 108.0F, 70.0F, 4.2F, kInk, 1.7F);
  picture.Shapes.push_back(Stroke({82.0F, 22.0F, 118.0F, 22.0F}, kInk, 2.0F));
  picture.Shapes.push_back(Polygon({100.0F, 22.0F, 94.0F, 34.0F, 106.0F, 34.0F}, Filled(kInk)));
  picture.Shapes.push_back(Disc(86.0F, 17.4F, 3.8F, Filled(kBenefit)));
  picture.Shapes.push_back(Disc(114.0F, 17.4F, 3.8F, Filled(kCost)));
  return picture;
}

// The target is round, the reference square; more of a benefit is better, less of a cost.
Picture Mark(bool benefit, bool target) {
  Picture picture;
  const Look look{benefit ? kBenefitLight : kCostLight, benefit ? kBenefit : kCost, 7.0F};
  picture.Shapes.push_back(target ? Disc(50.0F, 50.0F, 43.0F, look)
                                  : RoundedBox(8.0F, 8.0F, 92.0F, 92.0F, 16.0F, look));
  const Colour ink = benefit ? kBenefit : kCost;
  const Single tip = benefit ? 22.0F : 78.0F;
  const Single wing = benefit ? 46.0F : 54.0F;
  const Single tail = benefit ? 78.0F : 22.0F;
  picture.Shapes.push_back(Stroke({50.0F, tail, 50.0F, (tip + wing) / 2.0F}, ink, 11.0F));
  picture.Shapes.push_back(Polygon({50.0F, tip - (benefit ? 3.0F : -3.0F), 74.0F, wing, 26.0F, wing}, Filled(ink)));
  return picture;
}

enum class FaceState { Plain, Selected, Reference };

Picture Face(bool benefit, FaceState state) {
  Picture picture;
  const Colour ink = benefit ? kBenefit : kCost;
  if (state == FaceState::Selected) picture.Shapes.push_back(Disc(50.0F, 50.0F, 46.0F, {kWhite, kInk, 6.0F}));
  const Single radius = state == FaceState::Selected ? 37.0F : 43.0F;
  picture.Shapes.push_back(Disc(50.0F, 50.0F, radius, {benefit ? kBenefitLight : kCostLight, ink, 6.0F}));
  picture.Shapes.push_back(Disc(36.0F, 42.0F, 5.0F, Filled(kInk)));
  picture.Shapes.push_back(Disc(64.0F, 42.0F, 5.0F, Filled(kInk)));
  if (benefit) {
    picture.Shapes.push_back(Stroke(Arc(50.0F, 52.0F, 21.0F, 19.0F, 20.0F, 160.0F), kInk, 6.0F));
  } else {
    picture.Shapes.push_back(Stroke(Arc(50.0F, 76.0F, 19.0F, 16.0F, 205.0F, 335.0F), kInk, 6.0F));
  }
  if (state == FaceState::Reference) picture.Shapes.push_back(Star(76.0F, 76.0F, 25.0F, {kGold, kWhite, 4.0F}));
  return picture;
}

// An arrow pointing right, turned by quarters clockwise. A way back comes from a bar.
Picture Arrow(int quarters, bool back) {
  const Colour ink = back ? kAmber : kInk;
  const std::vector<Single> head{88.0F, 50.0F, 54.0F, 20.0F, 54.0F, 80.0F};
  const std::vector<Single> shaft{back ? 30.0F : 14.0F, 50.0F, 58.0F, 50.0F};
  const auto turned = [quarters](std::vector<Single> points) {
    for (int i = 0; i < quarters; ++i) {
      for (std::size_t k = 0; k < points.size(); k += 2) {
        const Single x = points[k];
        points[k] = 100.0F - points[k + 1];
        points[k + 1] = x;
      }
    }
    return points;
  };
  Picture picture;
  if (back) picture.Shapes.push_back(Stroke(turned({16.0F, 22.0F, 16.0F, 78.0F}), kInk, 12.0F));
  picture.Shapes.push_back(Stroke(turned(shaft), ink, 20.0F));
  picture.Shapes.push_back(Polygon(turned(head), Filled(ink)));
  return picture;
}

// The range shrinks to one point again.
Picture Certain() {
  Picture picture;
  picture.Shapes.push_back(Disc(50.0F, 50.0F, 15.0F, Filled(kInk)));
  for (int quarters = 0; quarters < 4; ++quarters) {
    const Single x = quarters == 0 ? -1.0F : quarters == 2 ? 1.0F : 0.0F;
    const Single y = quarters == 1 ? -1.0F : quarters == 3 ? 1.0F : 0.0F;
    const Single tipX = 50.0F + x * 22.0F;
    const Single tipY = 50.0F + y * 22.0F;
    const Single baseX = 50.0F + x * 44.0F;
    const Single baseY = 50.0F + y * 44.0F;
    picture.Shapes.push_back(Polygon(
        {tipX, tipY, baseX + y * 15.0F, baseY + x * 15.0F, baseX - y * 15.0F, baseY - x * 15.0F}, Filled(kAmber)));
  }
  return picture;
}

Picture DragMark(bool first) {
  Picture picture;
  picture.Shapes.push_back(
      Disc(50.0F, 50.0F, 44.0F, {first ? kBenefitLight : kCostLight, first ? kBenefit : kCost, 7.0F}));
  if (first) {
    LetterA(picture, 50.0F, 47.0F, 23.0F, kInk, 9.0F);
  } else {
    LetterB(picture, 50.0F, 50.0F, 23.0F, kInk, 9.0F);
  }
  return picture;
}

Picture WindowIcon() {
  Picture picture;
  picture.Shapes.push_back(RoundedBox(4.0F, 4.0F, 96.0F, 96.0F, 20.0F, Filled(Rgb(47, 72, 120))));
  picture.Shapes.push_back(Polygon({22.0F, 80.0F, 48.0F, 22.0F, 80.0F, 50.0F}, Filled(kGoldLight)));
  picture.Shapes.push_back(Stroke({20.0F, 18.0F, 20.0F, 82.0F, 84.0F, 82.0F}, kWhite, 6.0F));
  picture.Shapes.push_back(Stroke({22.0F, 80.0F, 48.0F, 22.0F}, kGold, 5.0F));
  picture.Shapes.push_back(Stroke({22.0F, 80.0F, 80.0F, 50.0F}, kGold, 5.0F));
  picture.Shapes.push_back(Disc(48.0F, 22.0F, 9.0F, {kBenefit, kWhite, 4.0F}));
  picture.Shapes.push_back(Disc(80.0F, 50.0F, 9.0F, {kCostLight, kWhite, 4.0F}));
  return picture;
}

}  // namespace

const std::map<String, Picture>& NamedPictures() {
  static const std::map<String, Picture> pictures{
      {"approach.direct", DirectApproach()},
      {"approach.tradeoffs", TradeOffApproach()},
      {"mark.benefitTarget", Mark(true, true)},
      {"mark.benefitReference", Mark(true, false)},
      {"mark.costTarget", Mark(false, true)},
      {"mark.costReference", Mark(false, false)},
      {"Smiling", Face(true, FaceState::Plain)},
      {"Smiling1", Face(true, FaceState::Selected)},
      {"Smiling2", Face(true, FaceState::Reference)},
      {"Crying", Face(false, FaceState::Plain)},
      {"Crying1", Face(false, FaceState::Selected)},
      {"Crying2", Face(false, FaceState::Reference)},
      {"right", Arrow(0, false)},
      {"down", Arrow(1, false)},
      {"left", Arrow(2, false)},
      {"up", Arrow(3, false)},
      {"leftback", Arrow(0, true)},
      {"upback", Arrow(1, true)},
      {"rightback", Arrow(2, true)},
      {"downback", Arrow(3, true)},
      {"certain", Certain()},
      {"drag.A", DragMark(true)},
      {"drag.B", DragMark(false)},
      // What stands in where the files of a host's folder are missing.
      {"adrag", DragMark(true)},
      {"bdrag", DragMark(false)},
      {"window", WindowIcon()},
  };
  return pictures;
}

}  // namespace Tarnwise

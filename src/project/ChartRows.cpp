#include "project/ChartRows.h"

#include "project/NumberText.h"
#include "project/Shown.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr double kBars = 430.0;  // from end to end of the axis
constexpr double kLetter = 7.0;  // of a name, about
constexpr double kLeast = 60.0;  // for names
constexpr double kRowsTop = 8.0;
constexpr double kRow = 20.0;
constexpr std::size_t kNameLength = 26;

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// As many letters as have room.
String ShortName(const String& name) {
  const String whole = WholeName(name);
  std::size_t letters = 0;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    if (IsContinuation(whole[i])) continue;
    if (letters++ == kNameLength) return whole.substr(0, i) + "...";
  }
  return whole;
}

double RoomFor(const std::vector<String>& names) {
  double room = kLeast;
  for (const String& name : names) {
    const String shown = ShortName(name);
    const auto letters = std::count_if(shown.begin(), shown.end(), [](char byte) { return !IsContinuation(byte); });
    room = std::max(room, kLetter * static_cast<double>(letters) + 15.0);
  }
  return room;
}

double StepFor(double length) {
  const double power = std::pow(10.0, std::floor(std::log10(length / 5.0)));
  for (const double times : {1.0, 2.0, 5.0}) {
    if (length / (times * power) <= 6.0) return times * power;
  }
  return 10.0 * power;
}

// What is left of a step's rounding is not to be read.
double Rounded(double number) { return std::round(number * 1e9) / 1e9; }

}  // namespace

ChartAxis LinearAxis(double low, double high) {
  ChartAxis axis;
  const double step = StepFor(high - low);
  axis.Low = Rounded(std::floor(low / step + 1e-9) * step);
  axis.High = Rounded(std::ceil(high / step - 1e-9) * step);
  for (int k = 0; axis.Low + k * step <= axis.High + step / 2.0; ++k)
    axis.Ticks.push_back(Rounded(axis.Low + k * step));
  return axis;
}

ChartAxis WholeAxis(int low, int high) {
  ChartAxis axis;
  axis.Low = low - 0.5;
  axis.High = high + 0.5;
  const int step = high - low < 12 ? 1 : std::max(1, static_cast<int>(StepFor(high - low)));
  for (int at = low; at <= high; at = at == low && step > 1 ? step : at + step) axis.Ticks.push_back(at);
  return axis;
}

ChartAxis LogAxis(double low, double high) {
  ChartAxis axis;
  axis.IsLog = true;
  axis.Low = low;
  axis.High = high;
  for (int power = static_cast<int>(std::floor(std::log10(low))); std::pow(10.0, power) <= high; ++power) {
    for (const double times : {1.0, 2.0, 5.0}) {
      const double at = times * std::pow(10.0, power);
      if (at >= low && at <= high && (times == 1.0 || high / low < 1e4)) axis.Ticks.push_back(at);
    }
  }
  return axis;
}

ChartRows::ChartRows(const std::vector<String>& names, const ChartAxis& axis, const String& axisName)
    : axis_(axis), rows_(names.size()), left_(RoomFor(names)), right_(left_ + kBars) {
  const double bottom = kRowsTop + kRow * static_cast<double>(rows_);
  drawing_.Width = right_ + 30.0;
  drawing_.Height = bottom + 40.0;
  for (const double at : axis_.Ticks) {
    drawing_.Line(X(at), kRowsTop, X(at), bottom + 4.0, Tone::Pale);
    drawing_.Text(X(at), bottom + 17.0, ShortestText(at), Anchor::Middle, Tone::Dark, 11.0);
  }
  drawing_.Line(left_, bottom, right_, bottom, Tone::Dark);
  drawing_.Text((left_ + right_) / 2.0, bottom + 33.0, axisName, Anchor::Middle, Tone::Dark, 11.0);
  for (std::size_t k = 0; k < names.size(); ++k) {
    drawing_.Text(left_ - 10.0, Y(k) + 4.0, ShortName(names[k]), Anchor::End);
  }
}

double ChartRows::X(double value) const {
  const double share = axis_.IsLog ? std::log(value / axis_.Low) / std::log(axis_.High / axis_.Low)
                                   : (value - axis_.Low) / (axis_.High - axis_.Low);
  return left_ + (right_ - left_) * std::clamp(share, 0.0, 1.0);
}

double ChartRows::Y(std::size_t row) const { return kRowsTop + kRow * (static_cast<double>(row) + 0.5); }

void ChartRows::Bar(std::size_t row, double low, double high, Tone tone, double thickness) {
  constexpr double kPoint = 1.5;
  drawing_.Box(X(low) - kPoint, Y(row) - thickness / 2.0, X(high) + kPoint, Y(row) + thickness / 2.0, tone);
}

void ChartRows::Tick(std::size_t row, double at) {
  drawing_.Line(X(at), Y(row) - kRow / 2.0 + 2.0, X(at), Y(row) + kRow / 2.0 - 2.0, Tone::Black, 2.0);
}

void ChartRows::Mark(double at) {
  drawing_.Line(X(at), kRowsTop, X(at), kRowsTop + kRow * static_cast<double>(rows_), Tone::Dark, 1.0, true);
}

}  // namespace Tarnwise

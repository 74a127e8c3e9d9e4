// Charts that have a row for each name, and bars over one axis.
#pragma once

#include "project/Drawing.h"

#include <utility>

namespace Tarnwise {

// What the axis shows, from Low to High, and the numbers at its ticks.
struct ChartAxis {
  double Low = 0.0;
  double High = 1.0;
  bool IsLog = false;
  std::vector<double> Ticks;
};

// Rounded outward to whole steps; High above Low.
ChartAxis LinearAxis(double low, double high);
ChartAxis WholeAxis(int low, int high);
ChartAxis LogAxis(double low, double high);  // both above 0; ticks at 1, 2 and 5 times powers of ten

class ChartRows {
 public:
  ChartRows(const std::vector<String>& names, const ChartAxis& axis, const String& axisName);

  Drawing& Picture() { return drawing_; }
  void Bar(std::size_t row, double low, double high, Tone tone, double thickness);  // a point is drawn too
  void Tick(std::size_t row, double at);
  void Mark(double at);  // a line through all rows

 private:
  double X(double value) const;
  double Y(std::size_t row) const;

  ChartAxis axis_;
  std::size_t rows_;
  double left_;  // the axis goes from here
  double right_;
  Drawing drawing_;
};

}  // namespace Tarnwise

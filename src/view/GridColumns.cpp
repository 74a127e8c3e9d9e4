#include "view/GridColumns.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr int kUsualWidth = 960;  // twips

int TwipsOf(int width) { return width == 0 ? kUsualWidth : width; }

}  // namespace

std::vector<int> ColumnWidths(const std::vector<int>& twips, double pixelsPerTwip, int room) {
  double sum = 0.0;
  for (const int width : twips) sum += TwipsOf(width);
  const double scale = std::max(pixelsPerTwip, room / sum);
  std::vector<int> widths;
  double edge = 0.0;
  for (const int width : twips) {
    const long left = std::lround(edge * scale);
    edge += TwipsOf(width);
    widths.push_back(static_cast<int>(std::lround(edge * scale) - left));
  }
  return widths;
}

}  // namespace Tarnwise

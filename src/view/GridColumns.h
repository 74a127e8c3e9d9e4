// How wide a grid's columns are on a screen.
#pragma once

#include <vector>

namespace Tarnwise {

// `twips` are the widths of the record; one that was never set counts as a usual one. The columns fill `room` pixels in
// the proportions of the record, their edges on whole pixels; where that would make them narrower than the record says
// they are as wide as it says, and the screen scrolls.
std::vector<int> ColumnWidths(const std::vector<int>& twips, double pixelsPerTwip, int room);

}  // namespace Tarnwise

// What the window does to a project: plain changes of the records. What may not be is a ModelFault.
#pragma once

#include "project/Project.h"

namespace Tarnwise {

// A used column gets the range of its data where it has none, and the ends the right way round for its role.
void SetRole(Project& project, std::size_t column, Role role);
void SetRangeFromData(Project& project, std::size_t column);

// The sessions' names of it go with it.
void RenameColumn(Project& project, std::size_t column, const String& name);

void AddUnit(Project& project, const String& name);
void RemoveUnits(Project& project, std::vector<std::size_t> units);

// Texts of a block of cells, unit by unit, from that place on; column 0 holds the units' names. Nothing is changed
// where a text is no number, or where the block goes over the edge.
void PutBlock(Project& project, std::size_t unit, std::size_t column, const std::vector<std::vector<String>>& texts);

// The cells of a spreadsheet's clipboard text.
std::vector<std::vector<String>> BlockOf(const String& text);

// A value or none of a cell as it is typed; a ModelFault for any other text.
std::optional<double> CellOf(const String& text);

// Points of a curve. All give the new curve; scores stay ascending, values within 0 to 1. A curve of none is begun with
// the straight line over the range.
std::vector<ValuePoint> CurveOrLine(const ColumnScale& scale);
std::vector<ValuePoint> WithPointMoved(std::vector<ValuePoint> curve, std::size_t point, ValuePoint to);
std::vector<ValuePoint> WithPointAdded(std::vector<ValuePoint> curve, ValuePoint point);
std::vector<ValuePoint> WithoutPoint(std::vector<ValuePoint> curve, std::size_t point);

}  // namespace Tarnwise

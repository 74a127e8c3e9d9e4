// The direct step's chart: two handles, a ray through each, and the wedge between them.
#pragma once

#include "direct/RegionGeometry.h"
#include "forms/DirectBForm.h"

namespace Tarnwise {

struct RegionChart {
  explicit RegionChart(ChartControls& controls);

  std::function<bool()> IsOneRay;                           // both handles move as one
  std::function<void(const HandlePoints& at)> HandleMoved;  // at each step of a drag, after the wedge was drawn

  HandlePoints HandleCentres() const;
  void Show(const HandlePoints& at);

 private:
  void MoveHandle(int index, ChartPoint centre);
  void DrawRegion(const HandlePoints& at);
  void HandleDragged(Control& source, Single x, Single y, DragState state);

  ChartControls& controls_;
};

}  // namespace Tarnwise

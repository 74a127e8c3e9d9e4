#include "direct/RegionChart.h"

namespace Tarnwise {

namespace {

constexpr Colour kRegionColour = 0xC0E0FF;

}  // namespace

RegionChart::RegionChart(ChartControls& controls) : controls_(controls) {
  controls_.picTradeOffsRange.DragOver = [this](Control& source, Single x, Single y, DragState state) {
    HandleDragged(source, x, y, state);
  };
  controls_.picTradeOffsRange.AcceptsDrop = [](const Control&) { return true; };  // the handle has followed already
}

HandlePoints RegionChart::HandleCentres() const {
  const PictureBox& h0 = controls_.picHandle[0];
  const PictureBox& h1 = controls_.picHandle[1];
  return {h0.Left + h0.Width / 2.0F, h0.Top + h0.Height / 2.0F, h1.Left + h1.Width / 2.0F, h1.Top + h1.Height / 2.0F};
}

void RegionChart::Show(const HandlePoints& at) {
  MoveHandle(0, {at.X0, at.Y0});
  MoveHandle(1, {at.X1, at.Y1});
  DrawRegion(at);
}

void RegionChart::MoveHandle(int index, ChartPoint centre) {
  PictureBox& handle = controls_.picHandle[index];
  handle.Left = centre.X - handle.Width / 2.0F;
  handle.Top = centre.Y - handle.Height / 2.0F;
  controls_.BorderL[index].X2 = centre.X;
  controls_.BorderL[index].Y2 = centre.Y;
}

void RegionChart::DrawRegion(const HandlePoints& at) {
  controls_.picTradeOffsRange.Cls();
  controls_.picTradeOffsRange.Draw({Drawn::What::Polygon, RegionCorners(at), kRegionColour, 1});
}

// The handle follows the pointer up to the edge; the check does the policing.
void RegionChart::HandleDragged(Control& source, Single x, Single y, DragState state) {
  if (state == DragState::Leave) return;
  source.Top = y - source.Height / 2.0F;
  source.Left = x - source.Width / 2.0F;
  const bool oneRay = IsOneRay();
  for (const int i : {0, 1}) {
    if (!oneRay && i != source.Index) continue;
    controls_.BorderL[i].X2 = x;
    controls_.BorderL[i].Y2 = y;
  }
  if (oneRay) {
    PictureBox& other = controls_.picHandle[1 - source.Index];
    other.Left = source.Left();
    other.Top = source.Top();
  }
  const HandlePoints at = HandleCentres();
  DrawRegion(at);
  HandleMoved(at);
}

}  // namespace Tarnwise

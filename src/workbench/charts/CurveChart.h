// The value curve of an attribute as it is interpolated, its chord over the performance range, where the units lie, and
// where it falls. Points are dragged by the mouse and moved by keys: Page Up and Page Down choose one, arrows move it
// by a hundredth of the picture (Shift: by a tenth), Insert adds one, Delete removes it.
#pragma once

#include "project/Project.h"
#include "workbench/charts/Chart.h"

namespace Tarnwise {

struct CurvePicture {
  QString Name;
  QString Unit;
  ColumnScale Scale;
  std::vector<ValuePoint> Points;  // those of the scale, or the ends of its straight line
  std::vector<double> Scores;      // of the units
  bool IsFixed = false;            // points can't be moved
};

// Stretches of the scores within worst to best, or the curve's ends, over which the interpolated values fall.
std::vector<std::pair<double, double>> FallsOf(const ColumnScale& scale);

class CurveChart : public Chart {
  Q_OBJECT

 public:
  explicit CurveChart(QWidget* parent);

  void Show(CurvePicture picture);
  int SelectedPoint() const { return selected_; }
  void SelectPoint(int point);
  QPointF PixelOf(int point) const;

  std::vector<ChartItem> Items() const override;
  void ShowAll() override;

 Q_SIGNALS:
  void PointMoved(int point, double score, double value);  // once, when it is let go
  void PointSelected(int point);
  void AddWanted();
  void RemoveWanted(int point);

 protected:
  void Recolour(const ChartInk& ink) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void PutLegendAbove();
  void Draw();
  void DrawFalls(const ColumnScale& scale);
  void DrawUnits();
  void MoveByKey(double score, double value);
  int PointAt(const QPointF& at) const;

  CurvePicture picture_;
  std::vector<ValuePoint> dragged_;
  QCPGraph* curve_;
  QCPGraph* chord_;
  QCPGraph* units_;
  QCPGraph* points_;
  QCPGraph* chosen_;
  QCPCurve* falls_;
  int selected_ = 0;
  bool dragging_ = false;
};

}  // namespace Tarnwise

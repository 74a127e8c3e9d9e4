#include "workbench/charts/CurveChart.h"

#include "dea/Values.h"
#include "project/Evaluation.h"
#include "workbench/Edits.h"
#include "workbench/Texts.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tarnwise {

namespace {

constexpr int kSteps = 400;
constexpr int kMostTicks = 2000;
constexpr double kFlat = 1e-9;

QCPRange ScoresShown(const CurvePicture& picture) {
  QCPRange range(std::min(picture.Scale.Worst, picture.Scale.Best), std::max(picture.Scale.Worst, picture.Scale.Best));
  for (const ValuePoint& point : picture.Points) range.expand(QCPRange(point.Score, point.Score));
  for (const double score : picture.Scores) range.expand(QCPRange(score, score));
  const double margin = range.size() > 0.0 ? 0.05 * range.size() : 1.0;
  return {range.lower - margin, range.upper + margin};
}

ColumnScale ScaleWith(const CurvePicture& picture, const std::vector<ValuePoint>& points) {
  return {picture.Scale.Worst, picture.Scale.Best, points};
}

}  // namespace

std::vector<std::pair<double, double>> FallsOf(const ColumnScale& scale) {
  const std::vector<ValuePoint> points = CurveOrLine(scale);
  const Dea::ValueFunction value(ScaleForDea(scale));
  const double from = std::min({scale.Worst, scale.Best, points.front().Score});
  const double to = std::max({scale.Worst, scale.Best, points.back().Score});
  std::vector<std::pair<double, double>> falls;
  double last = value.At(from);
  bool falling = false;
  for (int i = 1; i <= kSteps; ++i) {
    const double score = from + (to - from) * i / kSteps;
    const double now = value.At(score);
    if (now < last - kFlat) {
      if (!falling) falls.emplace_back(from + (to - from) * (i - 1) / kSteps, score);
      falls.back().second = score;
      falling = true;
    } else {
      falling = false;
    }
    last = now;
  }
  return falls;
}

CurveChart::CurveChart(QWidget* parent) : Chart(parent) {
  chord_ = addGraph();
  curve_ = addGraph();
  units_ = addGraph();
  falls_ = new QCPCurve(xAxis, yAxis);
  points_ = addGraph();
  chosen_ = addGraph();
  units_->setLineStyle(QCPGraph::lsNone);
  points_->setLineStyle(QCPGraph::lsNone);
  chosen_->setLineStyle(QCPGraph::lsNone);
  units_->setAdaptiveSampling(false);
  curve_->setName(tr("curve"));
  chord_->setName(tr("its chord"));
  units_->setName(tr("units"));
  falls_->setName(tr("falls here"));
  points_->setName(tr("points"));
  chosen_->removeFromLegend();
  legend->setVisible(true);
  PutLegendAbove();
  setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
  yAxis->setLabel(tr("value"));
}

// Within the chart it would cover some curve or other.
void CurveChart::PutLegendAbove() {
  constexpr int kInARow = 5;
  axisRect()->insetLayout()->take(legend);
  plotLayout()->insertRow(0);
  plotLayout()->addElement(0, 0, legend);
  plotLayout()->setRowStretchFactor(0, 0.001);
  legend->setWrap(kInARow);
  legend->setFillOrder(QCPLayoutGrid::foColumnsFirst);
  legend->setMargins(QMargins(4, 2, 4, 2));
}

void CurveChart::Show(CurvePicture picture) {
  picture_ = std::move(picture);
  dragging_ = false;
  dragged_ = picture_.Points;
  selected_ = std::clamp(selected_, 0, std::max(0, static_cast<int>(picture_.Points.size()) - 1));
  SetXLabel(picture_.Unit.isEmpty() ? picture_.Name : picture_.Name + " (" + picture_.Unit + ")");
  ShowAll();
  Draw();
  TellReaders();
}

void CurveChart::SelectPoint(int point) {
  if (point < 0 || point >= static_cast<int>(dragged_.size()) || point == selected_) return;
  selected_ = point;
  Draw();
  Q_EMIT PointSelected(point);
}

QPointF CurveChart::PixelOf(int point) const {
  const ValuePoint& at = dragged_[static_cast<std::size_t>(point)];
  return {xAxis->coordToPixel(at.Score), yAxis->coordToPixel(at.Value)};
}

void CurveChart::ShowAll() {
  xAxis->setRange(ScoresShown(picture_));
  yAxis->setRange(-0.06, 1.06);
  replot(QCustomPlot::rpQueuedReplot);
}

void CurveChart::Draw() {
  if (dragged_.empty()) return;
  const ColumnScale scale = ScaleWith(picture_, dragged_);
  const Dea::ValueFunction value(ScaleForDea(scale));
  const QCPRange shown = ScoresShown(picture_);
  QVector<double> x;
  QVector<double> y;
  for (int i = 0; i <= kSteps; ++i) {
    x.push_back(shown.lower + shown.size() * i / kSteps);
    y.push_back(value.At(x.back()));
  }
  curve_->setData(x, y, true);
  const double low = std::min(scale.Worst, scale.Best);
  const double high = std::max(scale.Worst, scale.Best);
  chord_->setData({low, high}, {value.At(low), value.At(high)}, true);
  points_->data()->clear();
  for (const ValuePoint& point : dragged_) points_->addData(point.Score, point.Value);
  const ValuePoint& chosen = dragged_[static_cast<std::size_t>(selected_)];
  chosen_->setData({chosen.Score}, {chosen.Value});
  DrawFalls(scale);
  DrawUnits();
  replot(QCustomPlot::rpQueuedReplot);
}

void CurveChart::DrawFalls(const ColumnScale& scale) {
  const Dea::ValueFunction value(ScaleForDea(scale));
  const auto falls = FallsOf(scale);
  falls_->data()->clear();
  double t = 0.0;
  constexpr int kPieces = 24;
  for (const auto& [from, to] : falls) {
    for (int i = 0; i <= kPieces; ++i) {
      const double score = from + (to - from) * i / kPieces;
      falls_->addData(t++, score, value.At(score));
    }
    falls_->addData(t++, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN());
  }
  if (falls.empty()) {
    falls_->removeFromLegend();
  } else {
    falls_->addToLegend();
  }
}

void CurveChart::DrawUnits() {
  std::vector<double> scores = picture_.Scores;
  std::sort(scores.begin(), scores.end());
  scores.erase(std::unique(scores.begin(), scores.end()), scores.end());
  const std::size_t step = scores.size() / kMostTicks + 1;
  units_->data()->clear();
  for (std::size_t i = 0; i < scores.size(); i += step) units_->addData(scores[i], -0.03);
}

void CurveChart::Recolour(const ChartInk& ink) {
  curve_->setPen(QPen(ink.Strong, 2.5));
  chord_->setPen(QPen(ink.Faint, 1.5, Qt::DashLine));
  falls_->setPen(QPen(ink.Warning, 5, Qt::DotLine));
  units_->setPen(QPen(ink.Text));
  units_->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssPlus, ink.Text, 7));
  points_->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssSquare, ink.Strong, ink.Paper, 9));
  chosen_->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssSquare, ink.Strong, ink.Strong, 11));
  legend->setBrush(QBrush(ink.Paper));
  legend->setTextColor(ink.Text);
  legend->setBorderPen(Qt::NoPen);
  legend->setFont(font());
}

std::vector<ChartItem> CurveChart::Items() const {
  std::vector<ChartItem> items;
  for (std::size_t i = 0; i < dragged_.size(); ++i) {
    const QPoint at = PixelOf(static_cast<int>(i)).toPoint();
    items.push_back({tr("Point %1").arg(i + 1),
                     tr("score %1, value %2").arg(dragged_[i].Score, 0, 'g', 6).arg(dragged_[i].Value, 0, 'f', 3),
                     QRect(at - QPoint(6, 6), QSize(12, 12))});
  }
  return items;
}

int CurveChart::PointAt(const QPointF& at) const {
  int nearest = -1;
  double best = selectionTolerance();
  for (int i = 0; i < static_cast<int>(dragged_.size()); ++i) {
    const QPointF away = PixelOf(i) - at;
    const double distance = std::hypot(away.x(), away.y());
    if (distance <= best) {
      best = distance;
      nearest = i;
    }
  }
  return nearest;
}

void CurveChart::mousePressEvent(QMouseEvent* event) {
  const int point = event->button() == Qt::LeftButton ? PointAt(event->position()) : -1;
  if (point < 0) return Chart::mousePressEvent(event);
  SelectPoint(point);
  dragging_ = !picture_.IsFixed;
}

void CurveChart::mouseMoveEvent(QMouseEvent* event) {
  if (!dragging_) {
    setCursor(PointAt(event->position()) >= 0 ? Qt::SizeAllCursor : Qt::ArrowCursor);
    return Chart::mouseMoveEvent(event);
  }
  const ValuePoint to{xAxis->pixelToCoord(event->position().x()), yAxis->pixelToCoord(event->position().y())};
  dragged_ = WithPointMoved(dragged_, static_cast<std::size_t>(selected_), to);
  Draw();
}

void CurveChart::mouseReleaseEvent(QMouseEvent* event) {
  if (!dragging_) return Chart::mouseReleaseEvent(event);
  dragging_ = false;
  const ValuePoint at = dragged_[static_cast<std::size_t>(selected_)];
  if (at != picture_.Points[static_cast<std::size_t>(selected_)]) Q_EMIT PointMoved(selected_, at.Score, at.Value);
}

void CurveChart::wheelEvent(QWheelEvent* event) { Chart::wheelEvent(event); }

void CurveChart::MoveByKey(double score, double value) {
  if (picture_.IsFixed || dragged_.empty()) return;
  const ValuePoint at = dragged_[static_cast<std::size_t>(selected_)];
  const ValuePoint to{at.Score + score * ScoresShown(picture_).size(), at.Value + value};
  const ValuePoint moved =
      WithPointMoved(dragged_, static_cast<std::size_t>(selected_), to)[static_cast<std::size_t>(selected_)];
  if (moved != at) Q_EMIT PointMoved(selected_, moved.Score, moved.Value);
}

void CurveChart::keyPressEvent(QKeyEvent* event) {
  const double step = event->modifiers().testFlag(Qt::ShiftModifier) ? 0.1 : 0.01;
  switch (event->key()) {
    case Qt::Key_Left: return MoveByKey(-step, 0.0);
    case Qt::Key_Right: return MoveByKey(step, 0.0);
    case Qt::Key_Up: return MoveByKey(0.0, step);
    case Qt::Key_Down: return MoveByKey(0.0, -step);
    case Qt::Key_PageUp: return SelectPoint(selected_ - 1);
    case Qt::Key_PageDown: return SelectPoint(selected_ + 1);
    case Qt::Key_Insert: Q_EMIT AddWanted(); return;
    case Qt::Key_Delete: Q_EMIT RemoveWanted(selected_); return;
    default: Chart::keyPressEvent(event);
  }
}

}  // namespace Tarnwise

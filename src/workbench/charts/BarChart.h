// Horizontal bars, one row each, on a linear or a logarithmic axis: intervals of judgments, ranges of scores. Only the
// rows that are in view are drawn.
#pragma once

#include "workbench/charts/Chart.h"

namespace Tarnwise {

struct Bar {
  std::optional<double> Low;  // absent: an open end to the left
  std::optional<double> High;
  std::optional<double> Mark;  // a tick
  bool IsNothing = true;       // no bar at all
};

struct BarRow {
  QString Name;
  QString Value;  // as it is told
  Bar First;
  Bar Second;    // below the first, in another colour and hatched
  QString Note;  // in place of bars, grey
  bool IsHeading = false;
};

class BarChart : public Chart {
  Q_OBJECT

 public:
  explicit BarChart(QWidget* parent);

  void SetRows(std::vector<BarRow> rows);
  const std::vector<BarRow>& Rows() const { return rows_; }
  void SetLogarithmic(bool on);
  void SetAxisLabel(const QString& label);
  void SetReferenceLine(std::optional<double> at);  // a dashed line across
  void SetShown(double from, double to) { shown_ = QCPRange(from, to); }

  // Rows stand beside those of a table: no names, so many pixels above the first row, and this much of them scrolled
  // by.
  void StandBeside(int top, int rowHeight, int scrolled, int bottom);

  void Select(int row);  // -1: none
  int Selected() const { return selected_; }

  std::vector<ChartItem> Items() const override;
  void ShowAll() override;

 Q_SIGNALS:
  void RowClicked(int row);
  void Scrolled(int pixels);

 protected:
  void Recolour(const ChartInk& ink) override;
  QSize BeginPicture() override;
  void EndPicture() override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Rows_;
  int RowAt(double y) const;
  QRect PlaceOf(int row) const;
  std::pair<int, int> InView() const;
  void LabelRows(bool on);
  void Place();

  std::vector<BarRow> rows_;
  Rows_* drawn_;
  QCPItemStraightLine* reference_;
  QCPRange shown_{0.0, 1.0};
  ChartInk ink_;
  int selected_ = -1;
  bool beside_ = false;
  int top_ = 0;
  int rowHeight_ = 1;
  int scrolled_ = 0;
  int bottom_ = 0;
};

}  // namespace Tarnwise

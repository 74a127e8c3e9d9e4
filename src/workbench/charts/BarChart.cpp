#include "workbench/charts/BarChart.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr int kMostNamedRows = 60;
constexpr int kPictureRow = 24;  // pixels of a row in a saved picture
constexpr int kArrow = 6;

// A bar of one number is drawn as wide as can be seen.
constexpr double kLeastWidth = 3.0;

void DrawArrow(QPainter& painter, double x, double y, int direction) {
  const double tip = x + direction * kArrow;
  painter.drawPolygon(QPolygonF({{tip, y}, {x, y - kArrow + 1}, {x, y + kArrow - 1}}));
}

}  // namespace

// Draws straight from the records.
class BarChart::Rows_ : public QCPLayerable {
 public:
  explicit Rows_(BarChart& chart)
      : QCPLayerable(&chart, QStringLiteral("main")), chart_(chart), area_(chart.axisRect()) {}

 protected:
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override { painter->setAntialiasing(false); }
  QRect clipRect() const override { return area_->rect(); }
  void draw(QCPPainter* painter) override {
    const auto [from, to] = chart_.InView();
    for (int row = from; row < to; ++row) DrawRow(*painter, row);
  }

 private:
  double Y(double row) const { return chart_.yAxis->coordToPixel(row); }
  double X(double value) const { return chart_.xAxis->coordToPixel(value); }

  void DrawRow(QCPPainter& painter, int row) const {
    const BarRow& record = chart_.rows_[static_cast<std::size_t>(row)];
    const QRectF band(area_->left(), Y(row), area_->width(), Y(row + 1) - Y(row));
    if (row == chart_.selected_) {
      QColor highlight = chart_.palette().color(QPalette::Highlight);
      highlight.setAlpha(60);
      painter.fillRect(band, highlight);
    } else if (row % 2 == 1) {
      painter.fillRect(band, chart_.ink_.Stripe);
    }
    if (!record.Note.isEmpty()) {
      painter.setPen(chart_.ink_.Faint);
      painter.setFont(chart_.font());
      painter.drawText(band.adjusted(8, 0, -8, 0), Qt::AlignVCenter | Qt::AlignLeft, record.Note);
    }
    const bool both = !record.Second.IsNothing;
    const double middle = band.center().y();
    const double thick = std::clamp(band.height() * (both ? 0.26 : 0.42), 2.0, 14.0);
    DrawBar(painter, record.First, both ? middle - 0.65 * thick : middle, thick, chart_.ink_.Strong, Qt::SolidPattern);
    if (both) DrawBar(painter, record.Second, middle + 0.65 * thick, thick, chart_.ink_.Second, Qt::BDiagPattern);
  }

  void DrawBar(QCPPainter& painter, const Bar& bar, double y, double thick, const QColor& ink,
               Qt::BrushStyle style) const {
    if (bar.IsNothing) return;
    const double left = bar.Low ? X(*bar.Low) : area_->left() + kArrow;
    const double right = bar.High ? X(*bar.High) : area_->right() - kArrow;
    const double extra = std::max(0.0, kLeastWidth - (right - left)) / 2.0;
    const QRectF box(left - extra, y - thick / 2.0, right - left + 2.0 * extra, thick);
    painter.setPen(QPen(ink));
    painter.setBrush(QBrush(ink, style));
    painter.drawRect(box);
    painter.setBrush(ink);
    if (!bar.Low) DrawArrow(painter, left, y, -1);
    if (!bar.High) DrawArrow(painter, right, y, 1);
    if (!bar.Mark) return;
    const double x = X(*bar.Mark);
    painter.setPen(QPen(chart_.ink_.Text, 2));
    painter.drawLine(QLineF(x, y - thick / 2.0 - 3.0, x, y + thick / 2.0 + 3.0));
  }

  BarChart& chart_;
  QCPAxisRect* area_;
};

BarChart::BarChart(QWidget* parent) : Chart(parent), drawn_(new Rows_(*this)), ink_(InkFor(palette())) {
  reference_ = new QCPItemStraightLine(this);
  reference_->setVisible(false);
  yAxis->setRangeReversed(true);
  yAxis->setSubTicks(false);
  yAxis->grid()->setVisible(false);
  axisRect()->setRangeDrag(Qt::Horizontal);
  axisRect()->setRangeZoom(Qt::Horizontal);
  setInteractions(QCP::iRangeDrag);
}

void BarChart::SetRows(std::vector<BarRow> rows) {
  rows_ = std::move(rows);
  if (selected_ >= static_cast<int>(rows_.size())) selected_ = -1;
  if (!beside_) LabelRows(true);
  ShowAll();
  TellReaders();
}

void BarChart::SetLogarithmic(bool on) {
  xAxis->setScaleType(on ? QCPAxis::stLogarithmic : QCPAxis::stLinear);
  if (!on) {
    xAxis->setTicker(QSharedPointer<QCPAxisTicker>::create());
    return;
  }
  const auto ticker = QSharedPointer<QCPAxisTickerText>::create();
  for (int decade = -4; decade <= 4; ++decade) {
    for (const int digit : {1, 2, 5}) {
      const double value = digit * std::pow(10.0, decade);
      ticker->addTick(value, QString::number(value, 'g', 6));
    }
  }
  ticker->setSubTickCount(0);
  xAxis->setTicker(ticker);
}

void BarChart::SetAxisLabel(const QString& label) { SetXLabel(label); }

void BarChart::SetReferenceLine(std::optional<double> at) {
  reference_->setVisible(at.has_value());
  if (!at) return;
  reference_->point1->setCoords(*at, 0.0);
  reference_->point2->setCoords(*at, 1.0);
}

void BarChart::StandBeside(int top, int rowHeight, int scrolled, int bottom) {
  beside_ = true;
  top_ = top;
  rowHeight_ = std::max(1, rowHeight);
  scrolled_ = scrolled;
  bottom_ = bottom;
  Place();
  replot(QCustomPlot::rpQueuedReplot);
}

// The scale stands above the rows, as the table's header does.
void BarChart::Place() {
  if (!beside_) return;
  xAxis->setVisible(false);
  xAxis2->setVisible(true);
  xAxis2->setTickLabels(true);
  yAxis->setVisible(false);
  xAxis2->setRange(xAxis->range());
  xAxis2->setTicker(xAxis->ticker());
  xAxis2->setScaleType(xAxis->scaleType());
  xAxis2->setTickLabelPadding(2);
  axisRect()->setAutoMargins(QCP::msNone);
  axisRect()->setMargins(QMargins(12, top_, 18, bottom_));
  const double shown = std::max(1, height() - top_ - bottom_);
  yAxis->setRange(scrolled_ / static_cast<double>(rowHeight_), (scrolled_ + shown) / rowHeight_);
}

void BarChart::Select(int row) {
  if (row == selected_) return;
  selected_ = row;
  replot(QCustomPlot::rpQueuedReplot);
}

std::pair<int, int> BarChart::InView() const {
  const int last = static_cast<int>(rows_.size());
  const int from = std::clamp(static_cast<int>(std::floor(yAxis->range().lower)), 0, last);
  return {from, std::clamp(static_cast<int>(std::ceil(yAxis->range().upper)), from, last)};
}

int BarChart::RowAt(double y) const {
  const double row = yAxis->pixelToCoord(y);
  return row >= 0.0 && row < static_cast<double>(rows_.size()) ? static_cast<int>(row) : -1;
}

QRect BarChart::PlaceOf(int row) const {
  const int top = static_cast<int>(yAxis->coordToPixel(row));
  return {axisRect()->left(), top, axisRect()->width(), static_cast<int>(yAxis->coordToPixel(row + 1)) - top};
}

std::vector<ChartItem> BarChart::Items() const {
  std::vector<ChartItem> items;
  const auto [from, to] = InView();
  for (int row = from; row < to; ++row) {
    const BarRow& record = rows_[static_cast<std::size_t>(row)];
    if (!record.IsHeading) items.push_back({record.Name, record.Value, PlaceOf(row)});
  }
  return items;
}

void BarChart::ShowAll() {
  xAxis->setRange(shown_);
  if (beside_) {
    Place();
  } else {
    yAxis->setRange(0.0, static_cast<double>(std::max<std::size_t>(rows_.size(), 1)));
  }
  replot(QCustomPlot::rpQueuedReplot);
}

void BarChart::LabelRows(bool on) {
  const auto ticker = QSharedPointer<QCPAxisTickerText>::create();
  const int count = std::min(static_cast<int>(rows_.size()), kMostNamedRows);
  constexpr int kMostWidth = 220;
  for (int row = 0; on && row < count; ++row) {
    const QString& name = rows_[static_cast<std::size_t>(row)].Name;
    ticker->addTick(row + 0.5, fontMetrics().elidedText(name, Qt::ElideMiddle, kMostWidth));
  }
  ticker->setSubTickCount(0);
  yAxis->setTicker(ticker);
  yAxis->setTickLength(0, 0);
}

void BarChart::Recolour(const ChartInk& ink) {
  ink_ = ink;
  reference_->setPen(QPen(ink.Text, 1, Qt::DashLine));
}

QSize BarChart::BeginPicture() {
  if (!beside_) return Chart::BeginPicture();
  xAxis->setVisible(true);
  xAxis2->setVisible(false);
  yAxis->setVisible(true);
  LabelRows(true);
  const int count = std::clamp(static_cast<int>(rows_.size()), 1, kMostNamedRows);
  yAxis->setRange(0.0, count);
  axisRect()->setAutoMargins(QCP::msAll);
  return {std::max(width() + 200, 700), 110 + kPictureRow * count};
}

void BarChart::EndPicture() {
  if (!beside_) return;
  Place();
}

void BarChart::mousePressEvent(QMouseEvent* event) {
  const int row = RowAt(event->position().y());
  if (event->button() == Qt::LeftButton && row >= 0) {
    Select(row);
    Q_EMIT RowClicked(row);
  }
  Chart::mousePressEvent(event);
}

void BarChart::wheelEvent(QWheelEvent* event) {
  if (event->modifiers() & Qt::ControlModifier) {
    ZoomBy(event->angleDelta().y() > 0 ? 0.8 : 1.25);
    Place();
    replot(QCustomPlot::rpQueuedReplot);
  } else {
    Q_EMIT Scrolled(-event->angleDelta().y());
  }
  event->accept();
}

void BarChart::keyPressEvent(QKeyEvent* event) {
  const int step = event->key() == Qt::Key_Down ? 1 : event->key() == Qt::Key_Up ? -1 : 0;
  if (step == 0) {
    Chart::keyPressEvent(event);
    Place();
    return;
  }
  const int row = std::clamp(selected_ + step, 0, static_cast<int>(rows_.size()) - 1);
  if (row < 0) return;
  Select(row);
  Q_EMIT RowClicked(row);
}

void BarChart::resizeEvent(QResizeEvent* event) {
  Chart::resizeEvent(event);
  Place();
  replot(QCustomPlot::rpQueuedReplot);
}

}  // namespace Tarnwise

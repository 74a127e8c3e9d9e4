// What all charts have: the platform's colours, zoom, saving as a picture, and children that a screen reader can read.
#pragma once

#include <qcustomplot.h>

#include <functional>
#include <optional>
#include <vector>

namespace Tarnwise {

// One thing on a chart as it is told: what it is, what it says, where it is in the widget.
struct ChartItem {
  QString Name;
  QString Value;
  QRect Place;
};

// Seen by the colour-blind, and in grey by their lightness.
struct ChartInk {
  QColor Strong;
  QColor Second;
  QColor Warning;
  QColor Text;
  QColor Faint;
  QColor Paper;
  QColor Stripe;
};
ChartInk InkFor(const QPalette& palette);

class Chart : public QCustomPlot {
  Q_OBJECT

 public:
  explicit Chart(QWidget* parent);

  virtual std::vector<ChartItem> Items() const { return {}; }
  // The line above a saved picture.
  void SetTitle(const QString& title) { title_ = title; }

  // PNG (twice as sharp as the screen), SVG or PDF, by the ending. The file is there whole or, with a ModelFault that
  // says why, as it was.
  void SavePicture(const QString& path);
  // Asks for the file; tells why it can't be written.
  void AskAndSave();

  void ZoomBy(double factor);  // around the middle
  virtual void ShowAll() = 0;

 protected:
  virtual void Recolour(const ChartInk& ink) = 0;
  // The size of a saved picture, and what has to be otherwise in it.
  virtual QSize BeginPicture() { return {std::max(width(), 640), std::max(height(), 360)}; }
  virtual void EndPicture() {}
  ChartInk Ink() const { return InkFor(palette()); }
  // After items changed.
  void TellReaders();

  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Colour(const ChartInk& ink);
  void AdjustToScreen();
  void Draw(QPaintDevice& on, const QSize& size);
  QByteArray Picture(const QString& ending, const QSize& size);
  void AddTitle();
  void RemoveTitle();

  QString title_;
};

// The values of the charts' items for readers of the screen. Asked for once, before the first chart.
void MakeChartsReadable();

}  // namespace Tarnwise

#include "workbench/charts/Chart.h"

#include "modelfiles/WholeFile.h"
#include "workbench/AskForFile.h"
#include "workbench/Texts.h"

#include <QAccessible>
#include <QBuffer>
#include <QContextMenuEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace Tarnwise {

namespace {

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < 128; }

QColor Mixed(const QColor& a, const QColor& b, double shareOfB) {
  const auto mix = [shareOfB](float x, float y) { return static_cast<float>(x + (y - x) * shareOfB); };
  return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

void ColourAxis(QCPAxis& axis, const ChartInk& ink, const QFont& font) {
  axis.setBasePen(QPen(ink.Faint));
  axis.setTickPen(QPen(ink.Faint));
  axis.setSubTickPen(QPen(ink.Faint));
  axis.setTickLabelColor(ink.Text);
  axis.setLabelColor(ink.Text);
  axis.setTickLabelFont(font);
  axis.setLabelFont(font);
  axis.grid()->setPen(QPen(Mixed(ink.Paper, ink.Text, 0.12)));
  axis.grid()->setZeroLinePen(Qt::NoPen);
  axis.grid()->setSubGridVisible(false);
}

}  // namespace

ChartInk InkFor(const QPalette& palette) {
  const QColor paper = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  const bool dark = IsDark(palette);
  return {dark ? QColor(0x6c, 0xb8, 0xf0) : QColor(0x00, 0x62, 0xa8),
          dark ? QColor(0xff, 0xd0, 0x70) : QColor(0xc8, 0x70, 0x00),
          dark ? QColor(0xff, 0x8a, 0x70) : QColor(0xb8, 0x30, 0x10),
          text,
          Mixed(paper, text, 0.6),
          paper,
          Mixed(paper, text, 0.05)};
}

Chart::Chart(QWidget* parent) : QCustomPlot(parent) {
  MakeChartsReadable();
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::DefaultContextMenu);
  setNoAntialiasingOnDrag(false);
  setSelectionTolerance(10);
  for (QCPAxis* const axis : {xAxis2, yAxis2}) axis->setTickLabels(false);
}

void Chart::TellReaders() {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent news(this, QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&news);
}

void Chart::Draw(QPaintDevice& on, const QSize& size) {
  QCPPainter painter(&on);
  painter.setMode(QCPPainter::pmVectorized);
  painter.setMode(QCPPainter::pmNoCaching);
  painter.setMode(QCPPainter::pmNonCosmetic);
  painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);
  toPainter(&painter, size.width(), size.height());
}

QByteArray Chart::Picture(const QString& ending, const QSize& size) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (ending == QLatin1String("svg")) {
    QSvgGenerator drawing;
    drawing.setOutputDevice(&buffer);
    drawing.setSize(size);
    drawing.setViewBox(QRect(QPoint(0, 0), size));
    drawing.setTitle(title_);
    Draw(drawing, size);
  } else if (ending == QLatin1String("pdf")) {
    QPdfWriter page(&buffer);
    page.setTitle(title_);
    page.setResolution(logicalDpiX());
    page.setPageSize(QPageSize(QSizeF(size) / logicalDpiX(), QPageSize::Inch));
    page.setPageMargins({0, 0, 0, 0});
    Draw(page, size);
  } else {
    constexpr double kSharpness = 2.0;
    toPixmap(size.width(), size.height(), kSharpness).save(&buffer, "PNG");
  }
  return bytes;
}

void Chart::AddTitle() {
  if (title_.isEmpty()) return;
  plotLayout()->insertRow(0);
  auto* const title = new QCPTextElement(this, title_, QFont(font().family(), font().pointSize() + 1, QFont::Bold));
  plotLayout()->addElement(0, 0, title);
}

void Chart::RemoveTitle() {
  if (title_.isEmpty()) return;
  plotLayout()->removeAt(plotLayout()->rowColToIndex(0, 0));
  plotLayout()->simplify();
}

// On paper it is light, whatever the screen is.
void Chart::SavePicture(const QString& path) {
  QPalette paper(Qt::white);
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  const QSize size = BeginPicture();
  AddTitle();
  Colour(InkFor(paper));
  const QByteArray bytes = Picture(QFileInfo(path).suffix().toLower(), size);
  RemoveTitle();
  EndPicture();
  Colour(Ink());
  replot();
  if (bytes.isEmpty()) throw ModelFault(ToText(tr("%1 could not be drawn").arg(path)));
  WriteFileAtomically(ToText(path), {bytes.begin(), bytes.end()});
}

void Chart::AskAndSave() {
  const QString path = AskForFile(this, tr("Save the chart"), title_.isEmpty() ? tr("chart") : title_,
                                  {{tr("Pictures"), "png"}, {tr("Drawings"), "svg"}, {tr("Documents"), "pdf"}});
  if (path.isEmpty()) return;
  try {
    SavePicture(path);
  } catch (const ModelFault& fault) {
    QMessageBox::warning(this, tr("The chart was not saved"), FromText(fault.what()));
  }
}

void Chart::ZoomBy(double factor) {
  for (QCPAxis* const axis : {xAxis, yAxis}) {
    if (!axis->axisRect()->rangeZoom().testFlag(axis->orientation())) continue;
    axis->scaleRange(factor);
  }
  replot();
}

void Chart::Colour(const ChartInk& ink) {
  setBackground(QBrush(ink.Paper));
  for (QCPAxis* const axis : {xAxis, yAxis, xAxis2, yAxis2}) ColourAxis(*axis, ink, font());
  for (int i = 0; i < plotLayout()->elementCount(); ++i) {
    if (auto* const text = qobject_cast<QCPTextElement*>(plotLayout()->elementAt(i))) text->setTextColor(ink.Text);
  }
  Recolour(ink);
}

void Chart::AdjustToScreen() {
  if (bufferDevicePixelRatio() == devicePixelRatioF()) return;
  setBufferDevicePixelRatio(devicePixelRatioF());
  replot();
}

void Chart::changeEvent(QEvent* event) {
  QCustomPlot::changeEvent(event);
  if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange) return;
  Colour(Ink());
  replot(QCustomPlot::rpQueuedReplot);
}

bool Chart::event(QEvent* event) {
  if (event->type() == QEvent::ScreenChangeInternal) AdjustToScreen();
  if (event->type() == QEvent::ToolTip) {
    const QPoint at = static_cast<QHelpEvent*>(event)->pos();
    for (const ChartItem& item : Items()) {
      if (!item.Place.contains(at)) continue;
      QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), item.Name + ": " + item.Value, this);
      return true;
    }
  }
  return QCustomPlot::event(event);
}

void Chart::keyPressEvent(QKeyEvent* event) {
  constexpr double kStep = 0.8;
  switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: return ZoomBy(kStep);
    case Qt::Key_Minus: return ZoomBy(1.0 / kStep);
    case Qt::Key_0: return ShowAll();
    case Qt::Key_S:
      if (event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)) return AskAndSave();
      break;
    default: break;
  }
  QCustomPlot::keyPressEvent(event);
}

void Chart::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  menu.addAction(tr("Save as picture…"), this, &Chart::AskAndSave);
  menu.addSeparator();
  menu.addAction(tr("Zoom in") + "\t+", this, [this] { ZoomBy(0.8); });
  menu.addAction(tr("Zoom out") + "\t-", this, [this] { ZoomBy(1.25); });
  menu.addAction(tr("Show all") + "\t0", this, [this] { ShowAll(); });
  menu.exec(event->globalPos());
}

void Chart::focusInEvent(QFocusEvent* event) {
  QCustomPlot::focusInEvent(event);
  update();
}

void Chart::focusOutEvent(QFocusEvent* event) {
  QCustomPlot::focusOutEvent(event);
  update();
}

void Chart::showEvent(QShowEvent* event) {
  QCustomPlot::showEvent(event);
  AdjustToScreen();
  Colour(Ink());
  replot();
}

void Chart::paintEvent(QPaintEvent* event) {
  QCustomPlot::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

}  // namespace Tarnwise

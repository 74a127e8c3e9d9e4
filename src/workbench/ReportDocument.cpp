#include "workbench/ReportDocument.h"

#include "modelfiles/WholeFile.h"
#include "workbench/KeepTogether.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextObjectInterface>

#include <cstring>

namespace Tarnwise {

namespace {

constexpr int kChartObject = QTextFormat::UserObject + 1;
constexpr int kChartNumber = QTextFormat::UserProperty + 1;
constexpr double kDotsOfDrawings = 96.0;
constexpr double kMargin = 2.0 / 2.54 * kDotsOfDrawings;  // two centimetres

QColor ColourOf(Tone tone) {
  const int grey = GreyOf(tone);
  return QColor(grey, grey, grey);
}

void DrawText(const DrawnShape& shape, QPainter& painter) {
  QFont font("sans-serif");
  font.setPixelSize(static_cast<int>(shape.Width));
  painter.setFont(font);
  painter.setPen(ColourOf(shape.Tone));
  const QString text = QString::fromStdString(shape.Text);
  const double width = QFontMetricsF(font, painter.device()).horizontalAdvance(text);
  const double shift = shape.Anchor == Anchor::Start ? 0.0 : shape.Anchor == Anchor::End ? width : width / 2.0;
  painter.drawText(QPointF(shape.X1 - shift, shape.Y1), text);
}

void Draw(const DrawnShape& shape, QPainter& painter) {
  if (shape.Kind == DrawnShape::Kind::Text) {
    DrawText(shape, painter);
  } else if (shape.Kind == DrawnShape::Kind::Box) {
    painter.fillRect(QRectF(QPointF(shape.X1, shape.Y1), QPointF(shape.X2, shape.Y2)), ColourOf(shape.Tone));
  } else {
    painter.setPen(QPen(ColourOf(shape.Tone), shape.Width, shape.Dashed ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(shape.X1, shape.Y1), QPointF(shape.X2, shape.Y2));
  }
}

// Draws the charts where the text has an object for them.
class ChartObjects : public QObject, public QTextObjectInterface {
 public:
  ChartObjects(const Report& report, QTextDocument& document) : QObject(&document) {
    for (const ReportBlock& block : report.Blocks) {
      if (block.Kind == ReportBlock::Kind::Chart) charts_.push_back(block.Chart);
    }
  }

  // What a meta object compiler would write: documents ask for the interface by name.
  void* qt_metacast(const char* name) override {
    if (std::strcmp(name, qobject_interface_iid<QTextObjectInterface*>()) != 0) return QObject::qt_metacast(name);
    return static_cast<QTextObjectInterface*>(this);
  }

  std::size_t Count() const { return charts_.size(); }

  QSizeF intrinsicSize(QTextDocument* document, int /*position*/, const QTextFormat& format) override {
    const QPaintDevice* const device = document->documentLayout()->paintDevice();
    const double dots = device == nullptr ? kDotsOfDrawings : device->logicalDpiX();
    const Drawing& chart = ChartOf(format);
    return QSizeF(chart.Width, chart.Height) * (dots / kDotsOfDrawings);
  }

  void drawObject(QPainter* painter, const QRectF& area, QTextDocument* /*document*/, int /*position*/,
                  const QTextFormat& format) override {
    const Drawing& chart = ChartOf(format);
    painter->save();
    painter->translate(area.topLeft());
    painter->scale(area.width() / chart.Width, area.height() / chart.Height);
    for (const DrawnShape& shape : chart.Shapes) Draw(shape, *painter);
    painter->restore();
  }

 private:
  const Drawing& ChartOf(const QTextFormat& format) const {
    return charts_[static_cast<std::size_t>(format.intProperty(kChartNumber))];
  }

  std::vector<Drawing> charts_;
};

void PlaceCharts(QTextDocument& document, ChartObjects& charts) {
  document.documentLayout()->registerHandler(kChartObject, &charts);
  for (std::size_t k = 0; k < charts.Count(); ++k) {
    QTextCursor cursor = document.find(QString::fromStdString(ChartMark(k)));
    QTextCharFormat format;
    format.setObjectType(kChartObject);
    format.setProperty(kChartNumber, static_cast<int>(k));
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
  }
}

void SetMargins(QTextDocument& document) {
  QTextFrameFormat format = document.rootFrame()->frameFormat();
  format.setMargin(kMargin);
  document.rootFrame()->setFrameFormat(format);
}

void DrawPage(const QTextDocument& document, int page, QPainter& painter) {
  const QSizeF size = document.pageSize();
  const double dots = painter.device()->logicalDpiX() / kDotsOfDrawings;
  painter.save();
  painter.translate(0.0, -page * size.height());
  QAbstractTextDocumentLayout::PaintContext context;
  context.clip = QRectF(QPointF(0.0, page * size.height()), size);
  context.palette.setColor(QPalette::Text, Qt::black);
  painter.setClipRect(context.clip);
  document.documentLayout()->draw(&painter, context);
  painter.restore();
  painter.setFont(QFont(document.defaultFont(), painter.device()));
  painter.setPen(Qt::black);
  const QRectF foot(QPointF(kMargin * dots, size.height() - kMargin * dots),
                    QPointF(size.width() - kMargin * dots, size.height() - kMargin / 2.0 * dots));
  painter.drawText(foot, Qt::AlignRight | Qt::AlignVCenter, QString::number(page + 1));
}

}  // namespace

void FillReport(const Report& report, QTextDocument& document) {
  QFont font("sans-serif");
  font.setPointSizeF(9.5);
  document.setDefaultFont(font);
  document.setHtml(QString::fromStdString(ReportRichText(report)));
  PlaceCharts(document, *new ChartObjects(report, document));
}

String ReportPdf(const Report& report) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(QString::fromStdString(report.Title));
  writer.setCreator("tarnwise");
  writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
  QTextDocument document;
  FillReport(report, document);
  document.documentLayout()->setPaintDevice(&writer);
  SetMargins(document);
  document.setPageSize(QSizeF(writer.width(), writer.height()));
  KeepHeadingsWithWhatFollows(document);
  QPainter painter(&writer);
  for (int page = 0; page < document.pageCount(); ++page) {
    if (page > 0) writer.newPage();
    DrawPage(document, page, painter);
  }
  painter.end();
  buffer.close();
  if (bytes.isEmpty()) throw ModelFault("the report could not be drawn as PDF");
  return bytes.toStdString();
}

}  // namespace Tarnwise

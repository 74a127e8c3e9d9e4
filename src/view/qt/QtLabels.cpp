// Labels, images and frames.
#include "view/Painting.h"
#include "view/Reach.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"
#include "view/qt/QtSurface.h"

#include <QGroupBox>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

namespace Tarnwise {

namespace {

constexpr int kTitleLeft = 12;  // pixels

// A caption in the colour of highlighted text is a lit sign: it stands on the highlight's own colour.
class LabelWidget : public QLabel {
 public:
  LabelWidget(QtForm& form, QWidget* parent) : QLabel(parent), form_(form) {}
  bool Lit = false;
  QColor Ground;  // invalid: see-through

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    if (Lit) {
      QtSurface surface(painter);
      PaintSign({surface, form_.Colours()}, ToPixelRect(rect()), form_.Colours().Highlight);
    } else if (Ground.isValid()) {
      painter.fillRect(rect(), Ground);
    }
    painter.end();
    QLabel::paintEvent(event);
  }

 private:
  QtForm& form_;
};

class ImageWidget : public QWidget {
 public:
  explicit ImageWidget(QWidget* parent) : QWidget(parent) {}
  String Name;
  Colour Ground = 0;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    QtSurface surface(painter);
    PaintPicture(surface, Name, ToBox(ToPixelRect(rect())), Ground);
  }
};

class FrameWidget : public QGroupBox {
 public:
  FrameWidget(QtForm& form, QWidget* parent) : QGroupBox(parent), form_(form) {}

 protected:
  // Opaque, since frames of several tabs stand in one place.
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const int titleHeight = title().isEmpty() ? 0 : QFontMetrics(bold).height();
    QtSurface surface(painter);
    const Brushes brushes{surface, form_.Colours()};
    PaintFrameLine(brushes, ToPixelRect(rect()), titleHeight);
    if (titleHeight > 0) PaintTitle(painter, titleHeight);
    const Control* const control = form_.ControlOf(this);
    if (control != nullptr) PaintChildren(brushes, *control, ToPixelRect(event->rect()));
  }

 private:
  void PaintTitle(QPainter& painter, int height) const {
    const QFontMetrics metrics = painter.fontMetrics();
    const int room = width() - 2 * kTitleLeft;
    const QString text = metrics.elidedText(title(), Qt::ElideRight, room, Qt::TextShowMnemonic);
    const QRect place(kTitleLeft, 0, metrics.size(Qt::TextShowMnemonic, text).width(), height);
    painter.fillRect(place.adjusted(-4, 0, 4, 0), palette().color(QPalette::Window));
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(place, Qt::AlignCenter | Qt::TextShowMnemonic, text);
  }

  QtForm& form_;
};

Qt::Alignment AlignmentOf(const Label& label) {
  const Qt::Alignment across = label.Alignment == Align::Left    ? Qt::AlignLeft
                               : label.Alignment == Align::Right ? Qt::AlignRight
                                                                 : Qt::AlignHCenter;
  return across | (label.WordWrap ? Qt::AlignTop : Qt::AlignVCenter);
}

void SetInk(LabelWidget& widget, const QColor& ink) {
  QPalette palette = widget.palette();
  if (palette.color(QPalette::Active, QPalette::WindowText) == ink) return;
  palette.setColor(QPalette::Active, QPalette::WindowText, ink);
  palette.setColor(QPalette::Inactive, QPalette::WindowText, ink);
  widget.setPalette(palette);
}

// Qt underlines a mnemonic only where there is a widget that the label stands for.
void SetBuddy(QtForm& form, const Label& label, LabelWidget& shown) {
  const Control* const meant = LabelledBy(label);
  QWidget* const buddy = meant == nullptr ? nullptr : form.WidgetOf(*meant);
  QWidget* const wanted = buddy != nullptr ? buddy : &form.Window();
  if (shown.buddy() != wanted) shown.setBuddy(wanted);
}

QWidget* MakeLabel(QtForm& form, Control& /*control*/, QWidget& parent) {
  auto* const widget = new LabelWidget(form, &parent);
  widget->setTextFormat(Qt::PlainText);
  return widget;
}

void SyncLabel(QtForm& form, Control& control, QWidget& widget) {
  auto& label = static_cast<Label&>(control);
  auto& shown = static_cast<LabelWidget&>(widget);
  const LabelLook look = LookOf(label, form.Colours());
  const bool marked = Caption(label.Caption).contains('&') && PlainCaption(label.Caption) != Text(label.Caption);
  const QString text = marked ? Caption(label.Caption) : Text(label.Caption);
  const QString plain = PlainCaption(label.Caption);
  const int room = std::max(widget.width() - (look.Lit ? 8 : 0), 1);
  const QFont base = BaseFont(label.Points, label.Bold);
  const QFont font = label.WordWrap ? base : FittedFont(base, plain, room);
  if (shown.font() != font) shown.setFont(font);
  const bool cut = !label.WordWrap && QFontMetrics(font).horizontalAdvance(plain) > room + 1;
  shown.setText(cut ? QFontMetrics(font).elidedText(plain, Qt::ElideRight, room) : text);
  SetFullText(widget, control, plain, cut);
  shown.setAlignment(AlignmentOf(label));
  shown.setWordWrap(label.WordWrap);
  const QColor ground = look.Ground ? ToQColor(*look.Ground) : QColor();
  if (shown.Lit != look.Lit || shown.Ground != ground) widget.update();
  shown.Lit = look.Lit;
  shown.Ground = ground;
  SetInk(shown, ToQColor(look.Ink));
  if (marked) SetBuddy(form, label, shown);
}

QWidget* MakeImage(QtForm& /*form*/, Control& /*control*/, QWidget& parent) { return new ImageWidget(&parent); }

void SyncImage(QtForm& form, Control& control, QWidget& widget) {
  auto& shown = static_cast<ImageWidget&>(widget);
  const auto& image = static_cast<Image&>(control);
  const Colour ground = GroundOf(control, form.Colours());
  if (shown.Name == image.Picture() && shown.Ground == ground) return;
  shown.Name = image.Picture;
  shown.Ground = ground;
  widget.update();
}

QWidget* MakeFrame(QtForm& form, Control& /*control*/, QWidget& parent) {
  auto* const widget = new FrameWidget(form, &parent);
  widget->setFocusPolicy(Qt::NoFocus);
  return widget;
}

void SyncFrame(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& frame = static_cast<FrameWidget&>(widget);
  const QString title = Caption(static_cast<Frame&>(control).Caption);
  if (frame.title() != title) frame.setTitle(title);
}

}  // namespace

const QtKind kQtLabel{MakeLabel, SyncLabel};
const QtKind kQtImage{MakeImage, SyncImage};
const QtKind kQtFrame{MakeFrame, SyncFrame};

}  // namespace Tarnwise

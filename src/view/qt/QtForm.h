// One form on the screen: its window, and a widget for each of its controls, made when the screen first needs them.
#pragma once

#include "view/Look.h"
#include "view/Mirror.h"

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <map>
#include <memory>

class QKeyEvent;
class QMouseEvent;
class QShortcutEvent;

namespace Tarnwise {

class QtToolkit;

class QtForm : public QObject, public Mirror {
 public:
  QtForm(Form& form, QtToolkit& toolkit);
  ~QtForm() override;

  QWidget& Window() const { return *window_; }
  const Palette& Colours() const { return colours_; }  // the platform's, every text readable on its ground
  static QPointF InPixels(FormPoint at);               // of the window

  QWidget* WidgetOf(const Control& control) const;
  Control* ControlOf(const QObject* object) const;  // null when the control has gone
  // Events of this object are the control's: of its widget, and of parts of it.
  void Watch(QObject& object, Control& control);

  void Paint(QWidget& widget, const QRect& area) const;  // as the tree has it

  // What widgets tell, all of it by a person's hand.
  void Clicked(QWidget& widget);             // a button's release, or a screen reader's press
  void RowChosen(QWidget& widget, int row);  // from 0
  void ToolPressed(QWidget& widget, std::size_t button);
  void Scrolled(QWidget& widget, int value, bool dragging);
  void CaretMoved(const QWidget& widget);
  void TextCame(const QWidget& widget);  // into a box, by none of its keys: it shows again what the tree has
  void CloseWanted();

  bool eventFilter(QObject* object, QEvent* event) override;

  bool HasWindow(const Control& control) const override { return WidgetOf(control) != nullptr; }
  void FocusTree() override;
  Touch TouchOf(const Control& control, FormPoint at) const override;
  bool IsFar(FormPoint from, FormPoint to) const override;
  Entered EnteredIn(const TextBox& box) const override;
  void Announce(const Label& label, bool renamed) override;
  void ShowCarried(const Carried& carried) override;
  void HideCarried() override;

 protected:
  bool Create(Control& control) override;
  void PutAt(Control& control, const PixelRect& place) override;
  void Apply(Control& control) override;
  void ShowTip(const Control& control, const String& tip) override;
  int TextWidth(const String& text, const TypeFace& face) const override;
  void ApplyForm() override;
  void Destroy(const Control& control) override;
  void DestroyAll() override;
  void Repaint(const Control& container, const PixelRect& area) override;
  void ToFront(const Control& control) override;
  void BorderToFront(const Control& container) override;
  void RunTimer(Timer& timer, int interval) override;

 private:
  void TakeColours();
  bool Mouse(QObject& object, Control& control, QMouseEvent& event);
  bool Mnemonic(const Control& control, const QShortcutEvent& event);
  bool KeyDown(const Control& control, const QKeyEvent& event);
  void BoxKey(TextBox& box, KeyEvent down, int character);
  bool Commit(const Control& control, const QString& text);
  bool KeyUp(const QKeyEvent& event);
  void FocusCame(QObject& object, const Control& control, int reason);
  void PaletteCame(const Control& control);

  QtToolkit& toolkit_;
  std::unique_ptr<QWidget> window_;
  Palette colours_;
  std::map<const Control*, QPointer<QWidget>> widgets_;
  std::map<const QObject*, Control*> controls_;
  std::map<const Control*, QTimer*> timers_;
  QPoint placed_;  // where the tree last wanted the window
};

}  // namespace Tarnwise

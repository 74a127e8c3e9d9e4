// One form on the screen: its window, and a widget for each of its controls, made when the screen first needs them.
#pragma once

#include "view/Look.h"
#include "view/WindowedMirror.h"

#include <QObject>
#include <QPointF>
#include <QWidget>
#include <memory>

class QKeyEvent;
class QMouseEvent;
class QShortcutEvent;

namespace Tarnwise {

class QtToolkit;

class QtForm : public QObject, public WindowedMirror {
 public:
  QtForm(Form& form, QtToolkit& toolkit);
  ~QtForm() override;

  QWidget& Window() const { return *window_; }
  const Palette& Colours() const { return colours_; }  // the platform's, every text readable on its ground
  static QPointF InPixels(FormPoint at);               // of the window

  QWidget* WidgetOf(const Control& control) const;
  Control* ControlOf(const QObject* object) const { return OwnerOf(object); }  // null when the control has gone
  // Events of this object are the control's: of its widget, and of parts of it.
  void Watch(QObject& object, Control& control);

  void Paint(QWidget& widget, const QRect& area) const;  // as the tree has it

  void CloseWanted();

  bool eventFilter(QObject* object, QEvent* event) override;

  void FocusTree() override;
  Touch TouchOf(const Control& control, FormPoint at) const override;
  bool IsFar(FormPoint from, FormPoint to) const override;
  Entered EnteredIn(const TextBox& box) const override;
  void Announce(const Label& label, bool renamed) override;

 protected:
  bool Create(Control& control) override;
  void PutAt(Control& control, const PixelRect& place) override;
  void Apply(Control& control) override;
  void ShowTip(const Control& control, const String& tip) override;
  int TextWidth(const String& text, const TypeFace& face) const override;
  void ApplyForm() override;
  void BuryWindow(void* window) override;
  void HideForm() override;
  void Repaint(const Control& container, const PixelRect& area) override;
  void ToFront(const Control& control) override;
  void BorderToFront(const Control& container) override;
  int StartClock(int milliseconds) override { return startTimer(milliseconds); }
  void StopClock(int clock) override { killTimer(clock); }
  void timerEvent(QTimerEvent* event) override;

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

  std::unique_ptr<QWidget> window_;
  Palette colours_;
  QPoint placed_;  // where the tree last wanted the window
};

}  // namespace Tarnwise

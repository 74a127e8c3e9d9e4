// One form on the screen: its window, and a widget for each of its controls, made when the screen first needs them.
#pragma once

#include "view/Look.h"

#include <QObject>
#include <QPointer>
#include <QRectF>
#include <QTimer>
#include <QWidget>
#include <map>
#include <memory>
#include <vector>

class QKeyEvent;
class QMouseEvent;
class QShortcutEvent;
class QWheelEvent;

namespace Tarnwise {

class QtToolkit;

// The left button is down.
struct QtPress {
  Control* On = nullptr;
  int Row = -1;          // of a list or a tab strip
  bool Refused = false;  // the rest of it is nobody's
  bool Native = false;   // the widget follows it itself
};

class QtForm : public QObject {
 public:
  QtForm(Form& form, QtToolkit& toolkit);
  ~QtForm() override;

  Form* Tree() const { return form_; }  // null once it is released
  QtToolkit& Tools() const { return toolkit_; }
  QWidget& Window() const { return *window_; }
  const Palette& Colours() const { return colours_; }  // the platform's, every text readable on its ground

  QWidget* WidgetOf(const Control& control) const;
  Control* ControlOf(const QObject* object) const;  // null when the control has gone
  // Events of this object are the control's: of its widget, and of parts of it.
  void Watch(QObject& object, Control& control);

  void Sync();  // what the tree has marked
  void SyncControl(Control& control);
  void FocusTree();  // the keyboard goes to the widget of the tree's active control, or to the bare window
  void Forget(const Control& control);
  void Release();

  // What widgets tell, all of it by a person's hand.
  void Clicked(QWidget& widget);             // a button's release, or a screen reader's press
  void RowChosen(QWidget& widget, int row);  // in the control's own numbers
  void ToolPressed(QWidget& widget, const String& key);
  void Scrolled(QWidget& widget, int value, bool dragging);
  void TextCame(const QWidget& widget);  // into a box, by none of its keys
  void CloseWanted();
  void Ticked(const Control& timer);

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Make(Control& control);
  void SyncPlace(Control& control, QWidget& widget);
  void SyncLook(Control& control, QWidget& widget);
  void SyncWindow();
  void TakeColours();
  void SyncPainted(const Control& control);
  void SyncTimer(Control& control);
  void StopTimer(const Control& control);
  void Restack(const Control& container);

  bool Press(const QObject& object, Control& control, const QMouseEvent& event);
  bool Move(const QObject& object, const QMouseEvent& event);
  bool LetGo(QObject& object, const Control& control, QMouseEvent& event);
  void FinishPress(const QtPress& press, const QWidget& widget, const QMouseEvent& event);
  void Settle(Control* control);
  bool Wheel(Control& control, const QWheelEvent& event);
  bool Mnemonic(const Control& control, const QShortcutEvent& event);
  bool KeyDown(Control& control, QKeyEvent& event);
  bool BoxKey(TextBox& box, QKeyEvent& event);
  bool Commit(Control& control, const QString& text);
  bool KeyUp(const QKeyEvent& event);
  void FocusCame(QObject& object, Control& control, int reason);
  void PaletteCame(const Control& control);

  Form* form_;
  QtToolkit& toolkit_;
  std::unique_ptr<QWidget> window_;
  Palette colours_;
  std::map<const Control*, QPointer<QWidget>> widgets_;
  std::map<const QObject*, Control*> controls_;
  std::map<const Control*, QTimer*> timers_;
  std::map<const Control*, int> orders_;     // as the widgets are stacked now
  std::map<const Control*, QRect> painted_;  // where lines and shapes are seen now
  std::vector<const Control*> restack_;      // containers whose children changed their order
  QPoint placed_;                            // where the tree last wanted the window
  QtPress press_;
  int typing_ = 0;  // key that went down in a text box and has not come up
};

}  // namespace Tarnwise

// A person at the keyboard and the mouse of the X server that the test's windows are on. There is no window manager.
#pragma once

#include "view/qt/Hangs.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtToolkit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QProcess>
#include <QTest>

namespace Tarnwise {

// Counts what arrives, so that a test goes on when it has.
class Arrivals : public QObject {
 public:
  Arrivals() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::KeyRelease && object->isWindowType()) ++Keys;
    if (event->type() == QEvent::MouseButtonRelease && object->isWindowType()) ++Releases;
    return false;
  }
  int Keys = 0;
  int Releases = 0;
};

class Person {
 public:
  // The keyboard goes to the window.
  static void TurnTo(QWidget& window) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, kHangs));
    Does({"windowfocus", "--sync", QString::number(window.winId())});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window, kHangs));
  }

  // Keys by their names: "alt+3", "ctrl+shift+Insert", "5". Returns when they have come up, or what they led to has.
  void Keys(const QStringList& names) {
    for (const QString& name : names) {
      const int wanted = arrivals_.Keys + 1 + static_cast<int>(name.count('+'));
      Does({"key", name});
      EXPECT_TRUE(QTest::qWaitFor([&] { return arrivals_.Keys >= wanted; }, kHangs)) << name.toStdString();
    }
    Settled();
  }

  void MoveTo(const QWidget& widget, const QPoint& at) {
    const QPoint global = widget.mapToGlobal(at);
    Does({"mousemove", QString::number(global.x()), QString::number(global.y())});
    EXPECT_TRUE(QTest::qWaitFor([&] { return QCursor::pos() == global; }, kHangs));
    Settled();
  }
  void Press(int button) {
    Does({"mousedown", QString::number(button)});
    Settled();
  }
  // Where the window takes nothing there is nothing to wait for.
  void ClickInVain(const QWidget& widget) {
    MoveTo(widget, widget.rect().center());
    Press(1);
    Does({"mouseup", "1"});
    Settled();
  }
  void LetGo(int button) {
    const int wanted = arrivals_.Releases + 1;
    Does({"mouseup", QString::number(button)});
    EXPECT_TRUE(QTest::qWaitFor([&] { return arrivals_.Releases >= wanted; }, kHangs)) << button;
    Settled();
  }
  void Click(const QWidget& widget, int button) {
    MoveTo(widget, widget.rect().center());
    Press(button);
    LetGo(button);
  }

 private:
  static void Does(const QStringList& what) {
    QProcess process;
    process.start("xdotool", what);
    EXPECT_TRUE(QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, kHangs));
    EXPECT_EQ(process.exitCode(), 0) << what.join(' ').toStdString();
  }
  static void Settled() {
    for (int i = 0; i < 5; ++i) QTest::qWait(5);
  }

  Arrivals arrivals_;
};

}  // namespace Tarnwise

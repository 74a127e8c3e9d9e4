// What a screen reader is told without asking, counted where Qt hands it over.
#include "view/Announced.h"

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QAccessible>

namespace Tarnwise {

class QtAnnounced : public testing::Test {
 protected:
  QtAnnounced() {
    heard_ = {};
    Reader().setActive(true);
    former_ = QAccessible::installUpdateHandler(Hear);
  }
  ~QtAnnounced() override {
    QAccessible::installUpdateHandler(former_);
    Reader().setActive(false);
  }

  static void Expect(const AnnouncedWalk& walk) {
    ExpectTold(walk, MakeQtDriver(), [] { return heard_.Take(); });
  }

 private:
  // Without a screen reader Qt tells nobody anything.
  static QPlatformAccessibility& Reader() { return *QGuiApplicationPrivate::platformIntegration()->accessibility(); }

  static void Hear(QAccessibleEvent* event) {
    if (event->type() != QAccessible::Alert && event->type() != QAccessible::NameChanged) return;
    const QString control = event->object() == nullptr ? QString() : event->object()->objectName();
    if (!control.startsWith("lblAlarm") && !control.endsWith("RefAtt")) return;
    const QAccessibleInterface* const told = event->accessibleInterface();
    if (told == nullptr) return;
    auto& counts = event->type() == QAccessible::Alert ? heard_.Alerts : heard_.Names;
    ++counts[told->text(QAccessible::Name).toStdString()];
  }

  static inline Heard heard_;
  QAccessible::UpdateHandler former_ = nullptr;
};

TEST_F(QtAnnounced, EachVerdictIsOnceAndNoBlinkIs) { Expect(VerdictsOfTheDirectStep()); }

TEST_F(QtAnnounced, AVerdictOnATradeOffIsOnce) { Expect(VerdictsOfTheTradeOffs()); }

TEST_F(QtAnnounced, AChosenReferenceIsOnce) {
  Expect(References([](const String& name) { return name; }));
}

}  // namespace Tarnwise

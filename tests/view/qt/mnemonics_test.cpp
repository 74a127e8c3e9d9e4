#include "view/MnemonicRows.h"
#include "view/qt/Hangs.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtToolkit.h"

#include <QTest>

namespace Tarnwise {

TEST(QtMnemonics, EveryOneOfEveryFormLeadsWhereItShould) {
  const auto toolkit = std::make_shared<QtToolkit>();
  toolkit->RealTimers = false;
  const auto platform = std::make_shared<Platform>(toolkit);
  QWidget* window = nullptr;
  GoThroughMnemonics(
      platform,
      [&](Form& form) {
        window = &toolkit->FormOf(form)->Window();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window, kHangs));
      },
      [&](char letter) { QTest::keyClick(window->focusWidget(), letter, Qt::AltModifier); });
}

}  // namespace Tarnwise

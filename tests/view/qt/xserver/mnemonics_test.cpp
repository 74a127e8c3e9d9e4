#include "Person.h"
#include "view/MnemonicRows.h"

namespace Tarnwise {

TEST(XMnemonics, EveryOneOfEveryFormLeadsWhereItShould) {
  const auto toolkit = std::make_shared<QtToolkit>();
  toolkit->RealTimers = false;
  const auto platform = std::make_shared<Platform>(toolkit);
  Person person;
  GoThroughMnemonics(
      platform, [&](Form& form) { Person::TurnTo(toolkit->FormOf(form)->Window()); },
      [&](char letter) { person.Keys({QString("alt+") + letter}); });
}

}  // namespace Tarnwise

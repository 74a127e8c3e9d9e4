// Every mnemonic of every form and what it leads to, for the tests of each toolkit to go through.
#pragma once

#include "forms/DirectBForm.h"
#include "forms/IniImpOrderForm.h"
#include "forms/SelMethodForm.h"
#include "forms/TradeOffsBForm.h"
#include "view/Captions.h"
#include "view/Lettering.h"
#include "view/Platform.h"

#include <gtest/gtest.h>

#include <map>

namespace Tarnwise {

// By letter the controls that Alt with it leads to, one after the other. One button alone is also pressed.
using MnemonicRows = std::map<char, std::vector<String>>;

struct MnemonicForm {
  const char* Called;
  std::function<std::shared_ptr<Form>(std::shared_ptr<Platform>)> Make;
  MnemonicRows Rows;
};

inline MnemonicRows WithFoot(MnemonicRows rows, const char* help) {
  rows.insert({{'b', {"cmdBack"}}, {'n', {"cmdNext"}}, {'f', {"cmdFinish"}}, {'c', {"cmdCancel"}}, {'h', {help}}});
  return rows;
}

inline std::vector<MnemonicForm> MnemonicForms() {
  using Screen = std::shared_ptr<Platform>;
  return {
      {"the approach", [](const Screen& screen) { return std::make_shared<SelMethodForm>(screen); },
       WithFoot({{'i', {"chkIncnsistCtrl"}}}, "cmdHelp")},
      {"the rank orders",
       [](const Screen& screen) {
         const auto form = std::make_shared<IniImpOrderForm>(screen);
         form->picPanel[0].ZOrder();
         return form;
       },
       WithFoot({{'a', {"cmdAdd", "cmdAdd1"}}, {'i', {"cmdInsert", "cmdInsert1"}}}, "cmdHelp")},
      {"the references", [](const Screen& screen) { return std::make_shared<IniImpOrderForm>(screen); },
       WithFoot({}, "cmdHelp")},
      {"the direct judgments",
       [](const Screen& screen) {
         const auto form = std::make_shared<DirectBForm>(screen);
         form->picPanel[0].ZOrder();
         return form;
       },
       WithFoot({{'e', {"cmdEnter"}}, {'r', {"cmdReStart"}}}, "cmdHelp")},
      {"the direct results", [](const Screen& screen) { return std::make_shared<DirectBForm>(screen); },
       WithFoot({}, "cmdHelp")},
      {"the trade-offs",
       [](const Screen& screen) {
         const auto form = std::make_shared<TradeOffsBForm>(screen);
         form->picTabs[0].ZOrder();
         form->Scores.framePCNumericalC.ZOrder();
         return form;
       },
       WithFoot({{'1', {"txtTradeOffAFirstScore"}},
                 {'2', {"txtTradeOffASecondScore"}},
                 {'3', {"txtTradeOffBFirstScore"}},
                 {'4', {"txtTradeOffBSecondScore"}},
                 {'e', {"cmdEnter"}},
                 {'r', {"cmdReStart"}},
                 {'p', {"cmdTarnwisePrint"}}},
                "cmdTarnwiseHelp")},
      {"the uncertainty",
       [](const Screen& screen) {
         const auto form = std::make_shared<TradeOffsBForm>(screen);
         form->picTabs[0].ZOrder();
         form->Uncertainty.frameJdgUnctn.ZOrder();
         return form;
       },
       WithFoot({{'e', {"cmdEnter"}}, {'r', {"cmdReStart"}}, {'p', {"cmdTarnwisePrint"}}}, "cmdTarnwiseHelp")},
      {"the trade-offs' results", [](const Screen& screen) { return std::make_shared<TradeOffsBForm>(screen); },
       WithFoot({{'p', {"cmdTarnwisePrint"}}}, "cmdTarnwiseHelp")},
  };
}

// Shows each form in turn and presses Alt with every letter that a caption on it marks, by what the toolkit has for a
// person: `alt` returns when the key has had its effect.
inline void GoThroughMnemonics(const std::shared_ptr<Platform>& screen, const std::function<void(Form&)>& shown,
                               const std::function<void(char letter)>& alt) {
  for (const MnemonicForm& row : MnemonicForms()) {
    SCOPED_TRACE(row.Called);
    const std::shared_ptr<Form> form = row.Make(screen);
    screen->Created(*form);
    String pressed;
    std::map<char, bool> marked;
    for (Control* control : form->Controls()) {
      if (const char letter = MnemonicOf(CaptionOf(*control))) marked[letter] = true;
      if (control->Type == Kind::CommandButton) control->Enabled = true;
      control->Click = [&pressed, control] { pressed += control->FullName() + " "; };
    }
    screen->Show(*form);
    shown(*form);
    for (const auto& [letter, names] : row.Rows) EXPECT_TRUE(marked[letter]) << letter;
    for (const auto& [letter, yes] : marked) {
      SCOPED_TRACE(String("Alt+") + letter);
      const auto found = row.Rows.find(letter);
      if (found == row.Rows.end()) {  // what bears it is covered
        const Control* const before = form->ActiveControl;
        alt(letter);
        EXPECT_EQ(form->ActiveControl, before);
        EXPECT_EQ(pressed, "");
        continue;
      }
      for (const String& name : found->second) {
        pressed.clear();
        alt(letter);
        ASSERT_NE(form->ActiveControl, nullptr);
        EXPECT_EQ(form->ActiveControl->FullName(), name);
        const bool button = form->ActiveControl->Type != Kind::TextBox && found->second.size() == 1;
        EXPECT_EQ(pressed, button ? name + " " : "");
      }
      pressed.clear();
    }
    screen->Release(*form);
  }
}

}  // namespace Tarnwise

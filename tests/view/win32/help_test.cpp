#include "TestForm.h"

#include <tarnwise/TRN_DEA.h>

namespace Tarnwise {

class WinHelp : public WinFormTest {};

TEST_F(WinHelp, OfTheHostGetsTheStepsWindow) {
  HWND asked = nullptr;
  SetHelp(*platform, [&](WindowHandle window, const String& path, int command, int context) {
    asked = reinterpret_cast<HWND>(window);
    form->Log.push_back(path + " " + std::to_string(command) + " " + std::to_string(context));
    return 0;
  });
  form->cmdGo.Click = [this] { platform->Help(*form, "C:/KESTA\\KESTA.HLP", 1, 4005025); };
  Show();
  Click(form->cmdGo);
  EXPECT_EQ(asked, Window());
  EXPECT_EQ(Joined(form->Log), "C:/KESTA\\KESTA.HLP 1 4005025");
}

TEST_F(WinHelp, OfTheHostMayReleaseTheForm) {
  SetHelp(*platform, [this](WindowHandle, const String&, int, int) { platform->Release(*form); });
  form->cmdGo.Click = [this] { platform->Help(*form, "path", 1, 4005025); };
  Show();
  Click(form->cmdGo);
  EXPECT_TRUE(form->Released);
}

}  // namespace Tarnwise

// Help in the host's own way: by the interface, and by the exported function.
#include "Client.h"

#include <gtest/gtest.h>

#include <thread>

namespace Tarnwise {
namespace {

const char* const kPage = "0(I4 0, BSTR C:/KESTA\\KESTA.HLP, I4 1, I4 4005025)";  // on a screen without windows

struct Asking : Client {
  Asking() : Client(ModelOf(2, 2)) {
    Load();
    EXPECT_EQ(Object->QueryInterface(IID_ITarnwiseHelp, reinterpret_cast<void**>(Help.Receive())), S_OK);
  }
  ~Asking() { Handler->Release(); }
  // What the handler is told when the first step's Help is pressed.
  Lines Asked() {
    Run({[this] { EXPECT_EQ(Object->ShowTarnwise(), S_OK); }, [this] { Click("cmdHelp"); }});
    return std::exchange(Handler->Notes, {});
  }

  ComRef<ITarnwiseHelp> Help;
  Sink* Handler = new Sink;
};

TEST(Help, GoesToTheHandlersDefaultMember) {
  Asking client;
  EXPECT_EQ(client.Help->SetHelp(client.Handler), S_OK);
  EXPECT_EQ(client.Asked(), Lines{kPage});
  EXPECT_EQ(client.Notes.back(), "help C:/KESTA\\KESTA.HLP 1 4005025") << "the screen is told as ever";
  client.Handler->Answer = E_FAIL;
  EXPECT_EQ(client.Asked(), Lines{kPage});
  EXPECT_EQ(Only(client.Notes, "msgbox"), Lines{}) << "what it answers is not looked at";
}

TEST(Help, ByTheExportedFunctionIsTheSame) {
  Asking client;
  EXPECT_EQ(CallSetHelp(client.Object.Get(), client.Handler), S_OK);
  EXPECT_EQ(client.Asked(), Lines{kPage});
  EXPECT_EQ(CallSetHelp(client.Object.Get(), nullptr), S_OK);
  EXPECT_EQ(client.Asked(), Lines{});
  EXPECT_EQ(CallSetHelp(nullptr, client.Handler), E_POINTER);
  EXPECT_EQ(CallSetHelp(client.Handler, client.Handler), E_NOINTERFACE) << "no wizard";
}

TEST(Help, WithoutAHandlerIsTheScreensOwnAgain) {
  Asking client;
  EXPECT_EQ(client.Help->SetHelp(client.Handler), S_OK);
  EXPECT_EQ(client.Help->SetHelp(nullptr), S_OK);
  EXPECT_EQ(client.Handler->References, 1U) << "it is let go";
  EXPECT_EQ(client.Asked(), Lines{});
}

TEST(Help, KeepsItsHandlerAsLongAsTheObjectAndNoLonger) {
  Asking client;
  client.Help->SetHelp(client.Handler);
  EXPECT_EQ(client.Handler->References, 2U);
  client.Help = {};
  client.Screen->HostsHelp = nullptr;  // this screen is the test's own, and outlives the object
  EXPECT_EQ(client.LetGo(), S_OK);
  EXPECT_EQ(client.Handler->References, 1U);
}

TEST(Help, MaySetAnotherHandlerOrUnloadTheWizard) {
  Asking client;
  client.Help->SetHelp(client.Handler);
  client.Handler->Inside = [&client](DISPID, DISPPARAMS&) {
    client.Help->SetHelp(nullptr);
    EXPECT_EQ(client.Object->UnloadTarnwise(), S_OK);
  };
  EXPECT_EQ(client.Asked(), Lines{kPage});
  EXPECT_TRUE(client.Screen->Forms().empty());
  EXPECT_EQ(client.Handler->References, 1U);
}

TEST(Help, IsSetOnTheObjectsThreadOnly) {
  Asking client;
  std::thread([&client] { EXPECT_EQ(client.Help->SetHelp(client.Handler), RPC_E_WRONG_THREAD); }).join();
  EXPECT_EQ(client.Asked(), Lines{});
}

}  // namespace
}  // namespace Tarnwise

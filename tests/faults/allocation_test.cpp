// No memory at the n-th request, for every n: nothing is lost, nothing breaks, and the wizard can go on. Run under the
// address sanitizer the test also shows that nothing leaks.
#include "Rounds.h"
#include "model/ModelFile.h"
#include "modelfiles/ModelWriter.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

long requestsLeft = -1;  // until one is refused; negative: none is
bool refusedOne = false;

void* Request(std::size_t size) {
  if (requestsLeft == 0) {
    requestsLeft = -1;
    refusedOne = true;
    throw std::bad_alloc();
  }
  if (requestsLeft > 0) --requestsLeft;
  if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) { return Request(size); }
void* operator new[](std::size_t size) { return Request(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return std::malloc(size == 0 ? 1 : size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return std::malloc(size == 0 ? 1 : size); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace Tarnwise {
namespace {

// The action with its n-th request refused. False when it asks for less memory than that.
template <class Action>
bool RefusingAt(long n, Action action) {
  refusedOne = false;
  requestsLeft = n;
  action();
  requestsLeft = -1;
  return refusedOne;
}

TEST(NoMemory, WhileAModelIsReadReachesTheHostAndTheNextReadingIsWhole) {
  const TemporaryFolder folder;
  const String path = folder.File("model.kst");
  WizardData model = ModelOf(3, 2);
  model.AttributeList.AttDescription[1] = String(500, 'd');
  WriteModel(path, model);
  const std::shared_ptr<Platform> screen = MakeHeadlessPlatform();
  const String kesta = "a folder whose name is too long for a short text";
  TRN_DEA wizard(screen);
  bool refused = true;
  long n = 0;
  for (; refused; ++n) {
    bool reached = false;
    mdTRNMain() = WizardData();
    refused = RefusingAt(n, [&] {
      try {
        wizard.GetCurFileData(kesta, 3, path);
      } catch (const std::bad_alloc&) {
        reached = true;
      }
    });
    // The library that reads the file may do without its buffer, or say that the file can't be read.
    const bool told = mdTRNMain().NumAtts() == 5 || screen->MessagesShown() > 0;
    ASSERT_TRUE(!refused || reached || told) << "request " << n;
    ASSERT_EQ(screen->Pointer(), 0) << "request " << n;
    wizard.GetCurFileData(kesta, 3, path);
    ASSERT_EQ(ModelBytes(mdTRNMain()), ModelBytes(model)) << "request " << n;
  }
  EXPECT_GT(n, 10);
}

// What a user does, one click after the other; the fault of one click must leave the others possible.
struct Way {
  std::unique_ptr<TestHost> Host;

  explicit Way(const WizardData& model) : Host(std::make_unique<TestHost>(model)) { Host->Load(); }

  void Give() const {
    const VariantArray zeros(4, Variant(0.0));
    Host->Wizard->TranferABCoordinates(zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros);
  }
};

WizardData Judged(const char* type) {
  WizardData model = ModelOf(2, 2);
  StoreJudgments(model, type, 0, 2, 1.5, {1.0, 0.5, 1.0, 0.5});
  return model;
}

// Clicks Next where it can be clicked; a refused request may have left the user on the step before.
void ClickNext(TestHost& host) {
  const Form* const form = host.Screen->ActiveForm();
  if (form == nullptr) return;
  Control* const next = form->Find("cmdNext");
  if (next != nullptr && next->Enabled && next->Visible) host.Click("cmdNext");
}

void CheckForms(const char* type) {
  Way way(Judged(type));
  way.Give();
  TestHost& host = *way.Host;
  bool refused = true;
  long n = 0;
  for (; refused; ++n) {
    try {
      refused = RefusingAt(n, [&] {
        try {
          host.Wizard->ShowTarnwise();
        } catch (const std::bad_alloc&) {
          requestsLeft = -1;
        }
        host.Run(
            {[&] { ClickNext(host); }, [&] { ClickNext(host); }, [&] { ClickNext(host); }, [&] { ClickNext(host); }});
      });
    } catch (const std::bad_alloc&) {
      refused = true;  // outside of every handler: it came to the caller, which is the host here
    }
    requestsLeft = -1;
    ASSERT_EQ(host.Screen->Pointer(), 0) << "request " << n;
    host.Wizard->UnloadTarnwise();
    ASSERT_TRUE(host.Screen->Forms().empty()) << "request " << n;
    host.TakeNotes();
  }
  EXPECT_GT(n, 100);
  // And after all that the wizard still goes its way.
  host.Run({[&] { host.Wizard->ShowTarnwise(); }, [&] { host.Click("cmdNext"); }, [&] { host.Click("cmdNext"); },
            [&] { host.Click("cmdNext"); }, [&] { host.Click("cmdNext"); }, [&] { host.Click("cmdFinish"); }});
  EXPECT_NE(std::find(host.Notes.begin(), host.Notes.end(), String("export ") + type), host.Notes.end());
}

TEST(NoMemory, WhileTheStepsAreMadeLeavesNoFormBehind) { CheckForms(kDirectType); }

TEST(NoMemory, WhileTheTradeOffStepIsMadeLeavesNoFormBehind) { CheckForms(kTradeOffsType); }

}  // namespace
}  // namespace Tarnwise

// The wizard as a host sees it: one class with four methods and five events.
//
//   auto dea = Tarnwise::TRN_DEA(Tarnwise::MakeQtPlatform());
//   dea.Events().ExportDirectBW = [](...) { ... };
//   dea.Events().UnloadTarnwise = [&dea](Tarnwise::Integer, bool) { dea.UnloadTarnwise(); };
//   dea.GetCurFileData("C:/KESTA", 1, "model.kst");
//   dea.ShowTarnwise();
//
// All calls and events belong to one thread. A host may call any method, and may let the object go, inside any event.
#pragma once

#include <tarnwise/Help.h>
#include <tarnwise/Scalars.h>
#include <tarnwise/Variant.h>

#include <functional>
#include <memory>
#include <vector>

namespace Tarnwise {

class Platform;  // the screen that the wizard is shown on

std::shared_ptr<Platform> MakeQtPlatform();        // needs a QApplication; in the library Tarnwise::TRN_DEA_Qt
std::shared_ptr<Platform> MakeWin32Platform();     // Windows only, on a thread with a message loop; in tarnwise_win32
std::shared_ptr<Platform> MakeHeadlessPlatform();  // no screen: for tests and scripts

// The orientations that the corners of exported points show: 1 where A is a line across, 2 where it is one upward, 0
// where it is a point. ExportABScores hands back the AOrientation that came in; a host that wants the user's lines back
// gives TranferABCoordinates these instead. RuntimeError 9 where the arrays differ in length, 13 or 94 for an element
// that is no number.
VariantArray OrientationsOf(const VariantArray& ALX, const VariantArray& ALY, const VariantArray& AUX,
                            const VariantArray& AUY);

// How help is shown on that screen from now on, for all objects that share it. An empty operation brings back the
// screen's own way: Windows shows the help file by WinHelpA, Qt opens it with the program that the desktop has for it,
// without a screen nothing happens.
void SetHelp(Platform& screen, HelpOperation help);

struct TRN_DEA_Events {
  // The wizard ends: answer by the method UnloadTarnwise. WeightsDone is false when the user cancelled.
  std::function<void(Integer fIndex, Boolean WeightsDone)> UnloadTarnwise;

  // The judgments. RJType is "DEA_DIRECT" or "DEA_TRADEOFFS". Element j of the arrays is Wj/Wr, r being the reference
  // of j's group; RefAttWR is W(CRefAttID)/W(BRefAttID). The arrays belong to the wizard: use them during the event
  // only.
  std::function<void(const String& RJType, Integer BRefAttID, Integer CRefAttID, Variant& RefAttWR,
                     VariantArray& Weights, VariantArray& WeightsH, VariantArray& WeightsL)>
      ExportDirectBW;

  // Part of the interface, never raised: trade-offs too come by ExportDirectBW.
  std::function<void(const String& RJType, Integer BRefAttID, Integer CRefAttID, Variant& RefAttWR,
                     VariantArray& Weights, VariantArray& WeightsH, VariantArray& WeightsL)>
      ExportTradeOffsBW;

  // The points of the trade-offs, after ExportDirectBW.
  std::function<void(VariantArray& AX, VariantArray& AY, VariantArray& BX, VariantArray& BY, VariantArray& AOrientation,
                     VariantArray& ALX, VariantArray& ALY, VariantArray& AUX, VariantArray& AUY)>
      ExportABScores;

  // A prompt of the step that begins, for a status line.
  std::function<void(const String& Msg)> SendMasseges;
};

class TRN_DEA {
 public:
  explicit TRN_DEA(std::shared_ptr<Platform> platform);
  TRN_DEA(TRN_DEA&&) noexcept;
  TRN_DEA& operator=(TRN_DEA&&) noexcept;
  ~TRN_DEA();  // hides and releases all step forms

  TRN_DEA_Events& Events();

  // Shows the first step, without blocking.
  void ShowTarnwise();

  // Stores the three and reads the model. A file that can't be opened is told to the user, not to the host.
  void GetCurFileData(const Variant& KestaDir, Integer FileIndex, const String& PathAndFileName);

  // Hides and releases all step forms.
  void UnloadTarnwise();

  // The trade-off points, NumAtts elements each at least: RuntimeError 9 otherwise, and then nothing has changed. To be
  // called after GetCurFileData when the trade-off step can be reached.
  void TranferABCoordinates(const VariantArray& AX, const VariantArray& AY, const VariantArray& BX,
                            const VariantArray& BY, const VariantArray& AOrientation, const VariantArray& ALX,
                            const VariantArray& ALY, const VariantArray& AUX, const VariantArray& AUY);

 private:
  struct Wizard;
  std::shared_ptr<Wizard> wizard_;
};

}  // namespace Tarnwise

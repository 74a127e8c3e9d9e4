// The wizard as a host sees it: one class with four methods and five events.
//
//   auto dea = Tarnwise::TRN_DEA(Tarnwise::MakeQtPlatform());
//   dea.Events().ExportDirectBW = [](...) { ... };
//   dea.Events().UnloadTarnwise = [&dea](Tarnwise::Integer, bool) { dea.UnloadTarnwise(); };
//   dea.GetCurFileData(Tarnwise::String("C:/KESTA"), 1, "model.kst");
//   dea.TranferABCoordinates(...);
//   dea.ShowTarnwise();
//
// Attributes are numbered from 0 in the order of the model file; a model has NumAtts of them, at most 31, in two
// groups, benefits and costs. In each group the user chooses a reference, against which the group's other attributes
// are judged.
//
// Threads: all calls and events of an object belong to the thread that made it. What the steps share (the model, the
// ranking, the judgments under way) is one set per thread, not per object: two objects on one thread work on the same
// set, so use one after the other, not both at once. The set outlives them: judgments are forgotten by the next
// GetCurFileData and the steps that follow it, not by letting the object go.
//
// Inside an event a host may call any method, replace any handler, and let the object go. Text is UTF-8, paths too.
#pragma once

#include <tarnwise/Platform.h>
#include <tarnwise/Scalars.h>
#include <tarnwise/Variant.h>

#include <functional>
#include <memory>

namespace Tarnwise {

// Handlers; empty ones are not called. They run inside the user's click, synchronously. What a handler throws is told
// to the user in a message box, and the click ends there.
//
// What comes by reference is the wizard's own: it is valid during the event only, so copy what you keep. What a handler
// writes into it the wizard works with from then on. Arrays keep their length NumAtts; elements should be numbers,
// since the wizard converts them where it needs them, and what does not convert is a run-time error in the step.
struct TRN_DEA_Events {
  // The wizard ends: answer by the method UnloadTarnwise, here or later; nothing is closed before. fIndex is the
  // FileIndex of GetCurFileData. WeightsDone: true after Finish, when the exports have been raised; false when the user
  // cancelled.
  std::function<void(Integer fIndex, Boolean WeightsDone)> UnloadTarnwise;

  // The judgments, on Finish of either approach: RJType is "DEA_DIRECT" or "DEA_TRADEOFFS". BRefAttID and CRefAttID are
  // the references of the benefits and the costs, 0 for a group without attributes. Element j of the arrays is the
  // ratio Wj/Wr, r being the reference of j's group: its middle, its upper and its lower bound; 1 for the references
  // themselves and for what shares their rank. RefAttWR is W(CRefAttID)/W(BRefAttID): the Integer 1 where it was never
  // judged, a Double once it was.
  std::function<void(const String& RJType, Integer BRefAttID, Integer CRefAttID, Variant& RefAttWR,
                     VariantArray& Weights, VariantArray& WeightsH, VariantArray& WeightsL)>
      ExportDirectBW;

  // Part of the interface, never raised: trade-offs too come by ExportDirectBW.
  std::function<void(const String& RJType, Integer BRefAttID, Integer CRefAttID, Variant& RefAttWR,
                     VariantArray& Weights, VariantArray& WeightsH, VariantArray& WeightsL)>
      ExportTradeOffsBW;

  // The points of the trade-offs, after their ExportDirectBW: Singles as TranferABCoordinates takes them, with the
  // AOrientation that came in there, an Integer.
  std::function<void(VariantArray& AX, VariantArray& AY, VariantArray& BX, VariantArray& BY, VariantArray& AOrientation,
                     VariantArray& ALX, VariantArray& ALY, VariantArray& AUX, VariantArray& AUY)>
      ExportABScores;

  // A step begins: its prompt, for a status line.
  std::function<void(const String& Msg)> SendMasseges;
};

class TRN_DEA {
 public:
  explicit TRN_DEA(std::shared_ptr<Platform> platform);

  // What has been moved from can be destroyed or assigned to, and nothing else.
  TRN_DEA(TRN_DEA&&) noexcept;
  TRN_DEA& operator=(TRN_DEA&&) noexcept;

  ~TRN_DEA();  // hides and releases all step forms; no event is raised any more

  TRN_DEA_Events& Events();

  // Shows the first step and returns; the rest happens in the host's event loop, each later step modally. Where the
  // first step exists already it is shown again; while a later one is open it becomes visible and stays blocked. What
  // goes wrong while the first step is made, an exception of the host's own SendMasseges too, comes out of this call,
  // and there is no step then. Faults of later steps are told to the user.
  void ShowTarnwise();

  // What a session is about, before anything else. KestaDir: the host's folder, as text, in which the wizard looks for
  // the help file KESTA.HLP and the drag icons adrag.ico and bdrag.ico. FileIndex: a number of the host's own, handed
  // back by UnloadTarnwise. PathAndFileName: the model file, which is read now; a missing one comes to be, empty. A
  // file that can't be opened is told to the user, not to the host, and the model read before stays. RuntimeError 94
  // for a KestaDir that is Null; std::bad_alloc where there is no memory for the model.
  void GetCurFileData(const Variant& KestaDir, Integer FileIndex, const String& PathAndFileName);

  // Hides and releases all step forms, in whatever step the user is. Without forms it does nothing.
  void UnloadTarnwise();

  // The points that the trade-off step starts from, after GetCurFileData. Element j is attribute j's: alternatives A
  // (AX, AY) and B (BX, BY), X in scores of attribute j, Y in scores of its group's reference; for the reference of the
  // costs, Y in scores of the reference of the benefits. AOrientation: A is a point (0), a line across (1) or upward
  // (2); its ends are (ALX, ALY) and (AUX, AUY), both A itself where it is a point. Where the model holds no trade-off
  // judgments the wizard suggests points of its own; zeros will do then, but the arrays must be there before the
  // trade-off step can be reached.
  // Each array has NumAtts elements at least: RuntimeError 9 otherwise; 6, 13 or 94 for an element that does not
  // convert. Then nothing has changed.
  void TranferABCoordinates(const VariantArray& AX, const VariantArray& AY, const VariantArray& BX,
                            const VariantArray& BY, const VariantArray& AOrientation, const VariantArray& ALX,
                            const VariantArray& ALY, const VariantArray& AUX, const VariantArray& AUY);

 private:
  struct Wizard;
  std::shared_ptr<Wizard> wizard_;
};

// The orientations that the corners of exported points show: 1 where A is a line across, 2 where it is one upward, 0
// where it is a point. ExportABScores hands back the AOrientation that came in; a host that wants the user's lines back
// gives TranferABCoordinates these instead. RuntimeError 9 where the arrays differ in length, 13 or 94 for an element
// that is no number.
VariantArray OrientationsOf(const VariantArray& ALX, const VariantArray& ALY, const VariantArray& AUX,
                            const VariantArray& AUY);

}  // namespace Tarnwise

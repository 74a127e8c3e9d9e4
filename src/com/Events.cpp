// The wizard's events, passed on to the sinks.
#include "com/Component.h"
#include "com/EventArguments.h"

namespace Tarnwise {

namespace {

enum Event : DISPID {
  kOnUnloadTarnwise = 1,
  kOnExportDirectBW,
  kOnExportTradeOffsBW,
  kOnExportABScores,
  kOnSendMasseges,
};

// A sink's own failure is its own matter.
void Send(IDispatch& sink, DISPID event, EventArguments& arguments) noexcept {
  try {
    std::vector<VARIANT> passed = arguments.ForSink();
    DISPPARAMS parameters = {passed.data(), nullptr, static_cast<UINT>(passed.size()), 0};
    sink.Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
  } catch (...) {
    return;
  }
}

}  // namespace

// A sink may disconnect itself or another one, and let go of the object: those that are connected still get the event.
void Component::Fire(DISPID event, EventArguments& arguments) {
  const ComRef<Component> held(this);
  const std::vector<Connection> connections = sinks_.Connections();
  for (const Connection& connection : connections) {
    if (sinks_.Connected(connection.Cookie)) Send(*connection.Sink.Get(), event, arguments);
  }
  arguments.TakeBack();
}

void Component::ConnectEvents(TRN_DEA_Events& events) {
  events.UnloadTarnwise = [this](Integer fIndex, Boolean WeightsDone) {
    Guarded([&] {
      EventArguments arguments;
      arguments.Value(fIndex).Value(WeightsDone);
      Fire(kOnUnloadTarnwise, arguments);
    });
  };
  const auto judgments = [this](DISPID event) {
    return [this, event](const String& RJType, Integer BRefAttID, Integer CRefAttID, Variant& RefAttWR,
                         VariantArray& Weights, VariantArray& WeightsH, VariantArray& WeightsL) {
      Guarded([&] {
        EventArguments arguments;
        arguments.Value(RJType).Value(BRefAttID).Value(CRefAttID).Reference(RefAttWR);
        arguments.Array(Weights).Array(WeightsH).Array(WeightsL);
        Fire(event, arguments);
      });
    };
  };
  events.ExportDirectBW = judgments(kOnExportDirectBW);
  events.ExportTradeOffsBW = judgments(kOnExportTradeOffsBW);
  events.ExportABScores = [this](auto&... arrays) {
    Guarded([&] {
      EventArguments arguments;
      (arguments.Array(arrays), ...);
      Fire(kOnExportABScores, arguments);
    });
  };
  events.SendMasseges = [this](const String& Msg) {
    Guarded([&] {
      EventArguments arguments;
      arguments.Value(Msg);
      Fire(kOnSendMasseges, arguments);
    });
  };
}

}  // namespace Tarnwise

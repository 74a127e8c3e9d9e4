// Where a host's sinks for the events are connected. Part of the object that raises them: it lives as long as that.
#pragma once

#include "runtime/windows/ComRef.h"

#include <ocidl.h>

#include <vector>

namespace Tarnwise {

struct Connection {
  DWORD Cookie = 0;
  ComRef<IDispatch> Sink;

  void HandOut(CONNECTDATA& given) const;
};

class ConnectionPoint final : public IConnectionPoint {
 public:
  explicit ConnectionPoint(IConnectionPointContainer& owner) : owner_(owner), thread_(GetCurrentThreadId()) {}
  ConnectionPoint(const ConnectionPoint&) = delete;
  ConnectionPoint& operator=(const ConnectionPoint&) = delete;
  ~ConnectionPoint() = default;

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return owner_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return owner_.Release(); }

  STDMETHODIMP GetConnectionInterface(IID* iid) override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
  STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

  const std::vector<Connection>& Connections() const { return connections_; }
  bool Connected(DWORD cookie) const;

 private:
  IConnectionPointContainer& owner_;
  const DWORD thread_;
  DWORD lastCookie_ = 0;
  std::vector<Connection> connections_;
};

// An enumerator over the one connection point of an object.
IEnumConnectionPoints* MakePointEnumerator(IConnectionPoint& point);

}  // namespace Tarnwise

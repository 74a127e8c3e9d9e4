#include "com/ConnectionPoint.h"

#include "com/Enumerator.h"

#include <olectl.h>

#include <Tarnwise_DEA.h>
#include <algorithm>

namespace Tarnwise {

namespace {

struct Point {
  ComRef<IConnectionPoint> Held;

  void HandOut(IConnectionPoint*& given) const { given = ComRef<IConnectionPoint>(Held).Detach(); }
};

// A sink that does not know the events by their name is taken for one that knows them by their numbers.
ComRef<IDispatch> SinkOf(IUnknown& object) {
  ComRef<IDispatch> sink;
  void** const receiver = reinterpret_cast<void**>(sink.Receive());
  if (FAILED(object.QueryInterface(DIID___TRN_DEA, receiver)) &&
      FAILED(object.QueryInterface(IID_IDispatch, receiver))) {
    throw ComFailure(CONNECT_E_CANNOTCONNECT, "The sink has neither the event interface nor IDispatch.");
  }
  return sink;
}

}  // namespace

void Connection::HandOut(CONNECTDATA& given) const {
  given.pUnk = ComRef<IUnknown>(Sink.Get()).Detach();
  given.dwCookie = Cookie;
}

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = iid == IID_IUnknown || iid == IID_IConnectionPoint ? this : nullptr;
  if (*object == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* iid) {
  if (iid == nullptr) return E_POINTER;
  *iid = DIID___TRN_DEA;
  return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
  if (container == nullptr) return E_POINTER;
  *container = ComRef<IConnectionPointContainer>(&owner_).Detach();
  return S_OK;
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
  if (cookie != nullptr) *cookie = 0;
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  if (GetCurrentThreadId() != thread_) return RPC_E_WRONG_THREAD;
  return Guarded([&] {
    connections_.push_back({lastCookie_ + 1, SinkOf(*sink)});
    *cookie = ++lastCookie_;
  });
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie) {
  if (GetCurrentThreadId() != thread_) return RPC_E_WRONG_THREAD;
  const auto found = std::find_if(connections_.begin(), connections_.end(),
                                  [cookie](const Connection& connection) { return connection.Cookie == cookie; });
  if (found == connections_.end()) return CONNECT_E_NOCONNECTION;
  const Connection gone = std::move(*found);  // released when the list is whole again
  connections_.erase(found);
  return S_OK;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** connections) {
  if (connections == nullptr) return E_POINTER;
  *connections = nullptr;
  if (GetCurrentThreadId() != thread_) return RPC_E_WRONG_THREAD;
  return Guarded([&] { *connections = new Enumerator<IEnumConnections, Connection, CONNECTDATA>(connections_, 0); });
}

bool ConnectionPoint::Connected(DWORD cookie) const {
  return std::any_of(connections_.begin(), connections_.end(),
                     [cookie](const Connection& connection) { return connection.Cookie == cookie; });
}

IEnumConnectionPoints* MakePointEnumerator(IConnectionPoint& point) {
  const std::vector<Point> points = {{ComRef<IConnectionPoint>(&point)}};
  return new Enumerator<IEnumConnectionPoints, Point, IConnectionPoint*>(points, 0);
}

}  // namespace Tarnwise

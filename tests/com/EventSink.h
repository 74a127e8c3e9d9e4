// Calls a script's procedures for an object's events: the procedure for the event UnloadTarnwise of an object that was
// connected with the prefix "Dea_" is Dea_UnloadTarnwise.
#pragma once

#include <windows.h>

#include <activscp.h>

#include <string>

struct EventConnection {
  IConnectionPoint* Point = nullptr;
  DWORD Cookie = 0;
};

// To the object's default source. The names of its events are in its type library.
HRESULT ConnectEvents(IUnknown* object, IActiveScript* engine, const std::wstring& prefix, EventConnection& connection);
void DisconnectEvents(EventConnection& connection);

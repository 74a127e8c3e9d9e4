#include "Client.h"

#include "com/Convert.h"
#include "com/Errors.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Tarnwise {

namespace {

HMODULE Loaded() {
  static const HMODULE module = LoadLibraryW(DllPath().c_str());
  if (module == nullptr) throw std::runtime_error("the component can't be loaded");
  return module;
}

template <class Function>
Function Entry(const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(Loaded(), name)));
}

const char* TypeName(VARTYPE type) {
  switch (type) {
    case VT_EMPTY: return "EMPTY";
    case VT_I2: return "I2";
    case VT_I4: return "I4";
    case VT_R4: return "R4";
    case VT_R8: return "R8";
    case VT_BOOL: return "BOOL";
    case VT_BSTR: return "BSTR";
    default: return "OTHER";
  }
}

String DescribedArray(SAFEARRAY* array) {
  LONG first = 0;
  LONG last = -1;
  SafeArrayGetLBound(array, 1, &first);
  SafeArrayGetUBound(array, 1, &last);
  String text = "[" + std::to_string(first) + ".." + std::to_string(last) + "]";
  for (LONG i = first; i <= last; ++i) {
    OwnedVariant element;
    SafeArrayGetElement(array, &i, &element.Value());
    text += (i == first ? " " : "; ") + Described(element.Value());
  }
  return text;
}

SAFEARRAY* MakeArray(VARTYPE type, LONG first, const std::vector<double>& values) {
  SAFEARRAYBOUND bound = {static_cast<ULONG>(values.size()), first};
  SAFEARRAY* const array = SafeArrayCreate(type, 1, &bound);
  for (std::size_t i = 0; i < values.size(); ++i) {
    LONG subscript = first + static_cast<LONG>(i);
    VARIANT element = Of(values[i]);
    double number = values[i];
    SafeArrayPutElement(array, &subscript, type == VT_VARIANT ? static_cast<void*>(&element) : &number);
  }
  return array;
}

}  // namespace

std::wstring DllPath() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetFullPathNameW(kDll, MAX_PATH, path.data(), nullptr));
  return path;
}

ComRef<IClassFactory> Factory() {
  ComRef<IClassFactory> factory;
  const auto get = Entry<HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**)>("DllGetClassObject");
  Check(get(CLSID_TRN_DEA, IID_IClassFactory, reinterpret_cast<void**>(factory.Receive())), "no class factory");
  return factory;
}

HRESULT CanUnloadNow() { return Entry<HRESULT(STDAPICALLTYPE*)()>("DllCanUnloadNow")(); }

HRESULT CallSetHelp(IUnknown* wizard, IDispatch* handler) {
  return Entry<HRESULT(STDAPICALLTYPE*)(IUnknown*, IDispatch*)>("TarnwiseSetHelp")(wizard, handler);
}

String Described(const VARIANT& value) {
  if (value.vt == (VT_BYREF | VT_VARIANT)) return "&VARIANT " + Described(*value.pvarVal);
  if (value.vt == (VT_BYREF | VT_ARRAY | VT_VARIANT)) return "&" + DescribedArray(*value.pparray);
  if (value.vt == VT_BOOL) return value.boolVal == VARIANT_TRUE ? "BOOL -1" : "BOOL 0";
  return String(TypeName(value.vt)) + " " + ToText(FromVARIANT(value));
}

STDMETHODIMP Sink::QueryInterface(REFIID iid, void** object) {
  const bool known = iid == IID_IUnknown || iid == IID_IDispatch || (KnowsEvents && iid == DIID___TRN_DEA);
  *object = known ? this : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) Sink::Release() {
  const ULONG left = --References;
  if (left != 0) return left;
  if (Gone != nullptr) *Gone = true;
  delete this;
  return 0;
}

STDMETHODIMP Sink::Invoke(DISPID event, REFIID iid, LCID, WORD flags, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                          UINT*) {
  const ComRef<Sink> held(this);
  EXPECT_EQ(iid, IID_NULL);
  EXPECT_EQ(flags, DISPATCH_METHOD);
  EXPECT_EQ(parameters->cNamedArgs, 0U);
  String note = std::to_string(event) + "(";
  for (UINT i = parameters->cArgs; i > 0; --i) {
    note += Described(parameters->rgvarg[i - 1]) + (i > 1 ? ", " : "");
  }
  Notes.push_back(note + ")");
  const auto inside = Inside;
  if (inside) inside(event, *parameters);
  return Answer;
}

ComRef<IConnectionPoint> PointOf(IUnknown* object) {
  ComRef<IConnectionPointContainer> container;
  ComRef<IConnectionPoint> point;
  Check(object->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(container.Receive())), "none");
  Check(container->FindConnectionPoint(DIID___TRN_DEA, point.Receive()), "no connection point");
  return point;
}

DWORD Advised(IUnknown* object, Sink& sink) {
  DWORD cookie = 0;
  Check(PointOf(object)->Advise(&sink, &cookie), "not connected");
  return cookie;
}

Client::Client(const WizardData& model) {
  Check(Factory()->CreateInstance(nullptr, IID__TRN_DEA, reinterpret_cast<void**>(Object.Receive())), "no object");
  ComRef<ITarnwisePlayerAccess> access;
  std::shared_ptr<Platform>* screen = nullptr;
  Check(Object->QueryInterface(IID_ITarnwisePlayerAccess, reinterpret_cast<void**>(access.Receive())), "no access");
  Check(access->Access(&screen, &Data), "no access");
  *screen = Screen;
  *Data = WizardData();
  WriteModel(Folder.File("model.kst"), model);
}

Client::~Client() = default;

void Client::Load() {
  VARIANT folder = Of(L"C:/KESTA");
  const Bstr path(ToBSTR(Folder.File("model.kst")));
  EXPECT_EQ(Object->GetCurFileData(&folder, 3, path.Get()), S_OK);
  VariantClear(&folder);
}

void Client::Points() {
  SAFEARRAY* zeros = Variants(0, {0, 0, 0, 0});
  EXPECT_EQ(Object->TranferABCoordinates(&zeros, &zeros, &zeros, &zeros, &zeros, &zeros, &zeros, &zeros, &zeros), S_OK);
  SafeArrayDestroy(zeros);
}

void Client::ToLast() {
  std::vector<std::function<void()>> steps = {[this] { EXPECT_EQ(Object->ShowTarnwise(), S_OK); }};
  for (int i = 0; i < 3; ++i) steps.emplace_back([this] { Click("cmdNext"); });
  steps.insert(steps.end(), Last.begin(), Last.end());
  Run(steps);
}

void Client::Finishes() {
  Last = {[this] { Click("cmdFinish"); }};
  ToLast();
}

HRESULT Client::LetGo() {
  Object = {};
  return CanUnloadNow();
}

WizardData Judged(const char* type) {
  WizardData model = ModelOf(2, 2);
  StoreJudgments(model, type, 0, 2, 1.5, {1.0, 0.5, 1.0, 0.75});
  return model;
}

LateCall CallLate(IDispatch* object, const wchar_t* name, std::vector<VARIANT> arguments,
                  std::vector<const wchar_t*> named) {
  std::vector<LPOLESTR> names = {const_cast<LPOLESTR>(name)};
  for (const wchar_t* argument : named) names.push_back(const_cast<LPOLESTR>(argument));
  std::vector<DISPID> ids(names.size());
  LateCall call;
  call.Outcome = object->GetIDsOfNames(IID_NULL, names.data(), static_cast<UINT>(names.size()), 0, ids.data());
  if (FAILED(call.Outcome)) return call;
  std::reverse(arguments.begin(), arguments.end());
  std::vector<DISPID> namedIds(ids.rbegin(), ids.rend() - 1);
  DISPPARAMS parameters = {arguments.data(), namedIds.data(), static_cast<UINT>(arguments.size()),
                           static_cast<UINT>(namedIds.size())};
  OwnedVariant result;
  call.Outcome = object->Invoke(ids[0], IID_NULL, 0, DISPATCH_METHOD, &parameters, &result.Value(), &call.Exception,
                                &call.BadArgument);
  call.Description = FromBSTR(Bstr(call.Exception.bstrDescription).Get());
  call.Source = FromBSTR(Bstr(call.Exception.bstrSource).Get());
  return call;
}

VARIANT Of(const wchar_t* text) {
  VARIANT value = {};
  value.vt = VT_BSTR;
  value.bstrVal = SysAllocString(text);
  return value;
}

VARIANT Of(double number) {
  VARIANT value = {};
  value.vt = VT_R8;
  value.dblVal = number;
  return value;
}

VARIANT Of(short number) {
  VARIANT value = {};
  value.vt = VT_I2;
  value.iVal = number;
  return value;
}

VARIANT Of(SAFEARRAY* array) {
  VARTYPE type = VT_VARIANT;
  SafeArrayGetVartype(array, &type);
  VARIANT value = {};
  value.vt = static_cast<VARTYPE>(VT_ARRAY | type);
  value.parray = array;
  return value;
}

SAFEARRAY* Numbers(LONG first, const std::vector<double>& values) { return MakeArray(VT_R8, first, values); }
SAFEARRAY* Variants(LONG first, const std::vector<double>& values) { return MakeArray(VT_VARIANT, first, values); }

void FreeAll(std::vector<VARIANT>& values) {
  for (VARIANT& value : values) VariantClear(&value);
}

Told ErrorInfo() {
  ComRef<IErrorInfo> info;
  if (GetErrorInfo(0, info.Receive()) != S_OK) return {};
  BSTR description = nullptr;
  BSTR source = nullptr;
  info->GetDescription(&description);
  info->GetSource(&source);
  return {FromBSTR(Bstr(description).Get()), FromBSTR(Bstr(source).Get())};
}

}  // namespace Tarnwise

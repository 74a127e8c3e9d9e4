// The four methods, bound early and late.
#include "Client.h"
#include "com/Convert.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

constexpr HRESULT Runtime(unsigned number) { return static_cast<HRESULT>(0x800A0000U + number); }

HRESULT TransferAll(_TRN_DEA* object, SAFEARRAY* array) {
  return object->TranferABCoordinates(&array, &array, &array, &array, &array, &array, &array, &array, &array);
}

TEST(EarlyCalls, TheFileIsReadAndItsParametersKept) {
  Client client(ModelOf(2, 2));
  client.Load();
  EXPECT_EQ(client.Data->KestaDir, "C:/KESTA");
  EXPECT_EQ(client.Data->FileIndex, 3);
  EXPECT_EQ(client.Data->NumAtts(), 4);
}

TEST(EarlyCalls, APathMayHoldAnyCharacter) {
  Client client(ModelOf(2, 1));
  const String path = client.Folder.File("mod\u00E8le \u03A9 \u65E5.kst");
  const Bstr from(ToBSTR(client.Folder.File("model.kst")));
  const Bstr to(ToBSTR(path));
  ASSERT_TRUE(CopyFileW(from.Get(), to.Get(), TRUE));
  VARIANT folder = {};
  EXPECT_EQ(client.Object->GetCurFileData(&folder, 1, to.Get()), S_OK);
  EXPECT_EQ(client.Data->PathAndFileName, path);
  EXPECT_EQ(client.Data->NumAtts(), 3);
}

TEST(EarlyCalls, TheFolderIsConvertedToText) {
  Client client(ModelOf(1, 1));
  VARIANT number = Of(12.5);
  VARIANT reference = {};
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &number;
  EXPECT_EQ(client.Object->GetCurFileData(&reference, 1, nullptr), S_OK);
  EXPECT_EQ(client.Data->KestaDir, "12.5");
  number.vt = VT_NULL;
  EXPECT_EQ(client.Object->GetCurFileData(&number, 1, nullptr), Runtime(94));
  EXPECT_EQ(client.Object->GetCurFileData(nullptr, 1, nullptr), E_POINTER);
}

TEST(EarlyCalls, ShowAndUnload) {
  Client client(ModelOf(2, 2));
  EXPECT_EQ(client.Object->UnloadTarnwise(), S_OK);
  client.Load();
  EXPECT_EQ(client.Object->ShowTarnwise(), S_OK);
  EXPECT_EQ(client.Object->ShowTarnwise(), S_OK);
  EXPECT_EQ(client.Forms(), Lines({"frmTRNSelMethod"}));
  EXPECT_EQ(client.Object->UnloadTarnwise(), S_OK);
  EXPECT_TRUE(client.Forms().empty());
}

TEST(EarlyCalls, PointsArrive) {
  Client client(ModelOf(2, 2));
  client.Load();
  std::vector<SAFEARRAY*> a;
  for (int k = 0; k < 9; ++k) a.push_back(Variants(0, {k + 0.25, k + 1.5, k + 2.75, k + 3.0}));
  EXPECT_EQ(client.Object->TranferABCoordinates(&a[0], &a[1], &a[2], &a[3], &a[4], &a[5], &a[6], &a[7], &a[8]), S_OK);
  for (SAFEARRAY* array : a) SafeArrayDestroy(array);
  const ABPoint& point = client.Data->ABPoints1[1];
  EXPECT_EQ(point.AX, 1.5F);
  EXPECT_EQ(point.AY, 2.5F);
  EXPECT_EQ(point.BX, 3.5F);
  EXPECT_EQ(point.BY, 4.5F);
  EXPECT_EQ(point.AOrientation, 6);  // 5.5 to even
  EXPECT_EQ(point.ALX, 6.5F);
  EXPECT_EQ(point.ALY, 7.5F);
  EXPECT_EQ(point.AUX, 8.5F);
  EXPECT_EQ(point.AUY, 9.5F);
  EXPECT_EQ(client.Data->ABPoints2[3].AY, 4.0F);
}

// An array that is handed over nine times, and what becomes of it with four attributes.
struct Handed {
  const char* Name;
  SAFEARRAY* (*Make)();
  HRESULT Outcome;
  float Third;  // element 2 afterwards, when it went well
};

void PrintTo(const Handed& handed, std::ostream* out) { *out << handed.Name; }

SAFEARRAY* TwoDimensions() {
  SAFEARRAYBOUND bounds[] = {{4, 0}, {4, 0}};
  return SafeArrayCreate(VT_VARIANT, 2, bounds);
}

SAFEARRAY* Texts(std::initializer_list<const wchar_t*> texts) {
  SAFEARRAY* const array = SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(texts.size()));
  LONG i = 0;
  for (const wchar_t* text : texts) {
    const Bstr copy(SysAllocString(text));
    SafeArrayPutElement(array, &i, copy.Get());
    ++i;
  }
  return array;
}

SAFEARRAY* Longs() {
  SAFEARRAY* const array = SafeArrayCreateVector(VT_I4, 0, 4);
  for (LONG i = 0; i < 4; ++i) SafeArrayPutElement(array, &i, &i);
  return array;
}

const Handed kHanded[] = {
    {"AsLongAsNeeded",
     [] {
       return Variants(0, {1, 2, 3, 4});
     },
     S_OK, 3.0F},
    {"Longer",
     [] {
       return Variants(0, {1, 2, 3, 4, 5});
     },
     S_OK, 3.0F},
    {"TooShort",
     [] {
       return Variants(0, {1, 2, 3});
     },
     Runtime(9), 0},
    {"Empty", [] { return Variants(0, {}); }, Runtime(9), 0},
    {"NeverAllocated", []() -> SAFEARRAY* { return nullptr; }, Runtime(9), 0},
    {"From1",
     [] {
       return Variants(1, {1, 2, 3, 4, 5});
     },
     Runtime(9), 0},
    {"FromMinus1",
     [] {
       return Variants(-1, {1, 2, 3, 4, 5});
     },
     S_OK, 4.0F},
    {"FromMinus1TooShort",
     [] {
       return Variants(-1, {1, 2, 3, 4});
     },
     Runtime(9), 0},
    {"AllBelow0",
     [] {
       return Variants(-5, {1, 2, 3, 4});
     },
     Runtime(9), 0},
    {"TwoDimensional", TwoDimensions, Runtime(9), 0},
    {"OfNumbers",
     [] {
       return Numbers(0, {1, 2, 3.5, 4});
     },
     S_OK, 3.5F},
    {"OfLongs", Longs, S_OK, 2.0F},
    {"OfNumericTexts",
     [] {
       return Texts({L"1", L"2", L"3.25", L"4"});
     },
     S_OK, 3.25F},
    {"OfOtherTexts",
     [] {
       return Texts({L"1", L"2", L"x", L"4"});
     },
     Runtime(13), 0},
    {"TooLargeForTheOrientation",
     [] {
       return Variants(0, {1, 40000, 3, 4});
     },
     Runtime(6), 0},
    {"UnusableBeyondTheModel",
     [] {
       return Texts({L"1", L"2", L"3", L"4", L"x"});
     },
     S_OK, 3.0F},
};

class HandedArray : public testing::TestWithParam<Handed> {
 protected:
  HandedArray() : client(ModelOf(2, 2)) {
    client.Load();
    client.Points();
  }
  void ExpectResult(HRESULT outcome) {
    EXPECT_EQ(outcome, GetParam().Outcome);
    EXPECT_EQ(client.Data->ABPoints2[2].AX, GetParam().Third);
    EXPECT_EQ(client.Data->ABPoints1[2].AUY, GetParam().Third);
  }

  Client client;
};

TEST_P(HandedArray, Early) {
  SAFEARRAY* const array = GetParam().Make();
  ExpectResult(TransferAll(client.Object.Get(), array));
  if (array != nullptr) SafeArrayDestroy(array);
}

TEST_P(HandedArray, LateByValue) {
  VARIANT value = Of(GetParam().Make());
  const LateCall call = CallLate(client.Object.Get(), L"TranferABCoordinates", std::vector<VARIANT>(9, value));
  ExpectResult(call.Outcome == DISP_E_EXCEPTION ? call.Exception.scode : call.Outcome);
  if (value.parray != nullptr) VariantClear(&value);
}

TEST_P(HandedArray, LateByReferenceInAVariant) {
  VARIANT held = Of(GetParam().Make());
  SAFEARRAY* const array = held.parray;
  VARIANT inner = held;
  inner.vt = static_cast<VARTYPE>(inner.vt | VT_BYREF);
  inner.pparray = &held.parray;
  VARIANT outer = {};
  outer.vt = VT_BYREF | VT_VARIANT;
  outer.pvarVal = &inner;
  const LateCall call = CallLate(client.Object.Get(), L"TranferABCoordinates", std::vector<VARIANT>(9, outer));
  ExpectResult(call.Outcome == DISP_E_EXCEPTION ? call.Exception.scode : call.Outcome);
  if (array != nullptr) SafeArrayDestroy(array);
}

INSTANTIATE_TEST_SUITE_P(Calls, HandedArray, testing::ValuesIn(kHanded),
                         [](const testing::TestParamInfo<Handed>& handed) { return String(handed.param.Name); });

TEST(EarlyCalls, ArraysThatAreTooShortAreToldAndChangeNothing) {
  Client client(ModelOf(2, 2));
  client.Load();
  client.Points();
  SAFEARRAY* good = Variants(0, {7, 7, 7, 7});
  SAFEARRAY* bad = Variants(0, {7, 7, 7});
  EXPECT_EQ(client.Object->TranferABCoordinates(&good, &good, &good, &good, &good, &good, &good, &good, &bad),
            Runtime(9));
  const Told told = ErrorInfo();
  EXPECT_EQ(told.Description, "Subscript out of range");
  EXPECT_EQ(told.Source, "Tarnwise_DEA.TRN_DEA");
  EXPECT_EQ(client.Data->ABPoints1[0].AX, 0.0F);
  EXPECT_EQ(client.Object->TranferABCoordinates(nullptr, &good, &good, &good, &good, &good, &good, &good, &good),
            E_POINTER);
  SafeArrayDestroy(good);
  SafeArrayDestroy(bad);
}

TEST(EarlyCalls, WithoutAModelEmptyArraysAreEnough) {
  const Client client(ModelOf(1, 1));
  EXPECT_EQ(TransferAll(client.Object.Get(), nullptr), S_OK);
  EXPECT_EQ(client.Data->ABPoints1.Count(), 0);
}

struct LateCalls : testing::Test {
  LateCalls() : client(ModelOf(2, 2)) {}
  ~LateCalls() override { FreeAll(values); }

  LateCall Loads(VARIANT folder, VARIANT index, VARIANT path, const std::vector<const wchar_t*>& named = {}) {
    values.insert(values.end(), {folder, index, path});
    return CallLate(client.Object.Get(), L"GetCurFileData", {folder, index, path}, named);
  }
  VARIANT Path() {
    VARIANT path = {};
    path.vt = VT_BSTR;
    path.bstrVal = ToBSTR(client.Folder.File("model.kst"));
    return path;
  }

  Client client;
  std::vector<VARIANT> values;
};

TEST_F(LateCalls, Positional) {
  EXPECT_EQ(Loads(Of(L"C:/KESTA"), Of(short{3}), Path()).Outcome, S_OK);
  EXPECT_EQ(client.Data->KestaDir, "C:/KESTA");
  EXPECT_EQ(client.Data->FileIndex, 3);
  EXPECT_EQ(client.Data->NumAtts(), 4);
}

TEST_F(LateCalls, NamesInAnyCaseAndOrder) {
  const VARIANT path = Path();
  const VARIANT folder = Of(L"K");
  values = {path, folder};
  const LateCall call = CallLate(client.Object.Get(), L"getcurfiledata", {path, Of(short{5}), folder},
                                 {L"PathAndFileName", L"fileindex", L"KestaDir"});
  EXPECT_EQ(call.Outcome, S_OK);
  EXPECT_EQ(client.Data->KestaDir, "K");
  EXPECT_EQ(client.Data->FileIndex, 5);
  EXPECT_EQ(client.Data->NumAtts(), 4);
}

TEST_F(LateCalls, SomeByPositionTheOthersByName) {
  EXPECT_EQ(Loads(Of(L"K"), Path(), Of(short{6}), {L"PathAndFileName", L"FileIndex"}).Outcome, S_OK);
  EXPECT_EQ(client.Data->FileIndex, 6);
  EXPECT_EQ(client.Data->NumAtts(), 4);
}

TEST_F(LateCalls, NumbersOfOtherTypesAndByReference) {
  VARIANT wrapped = {};
  LONG index = 12;
  wrapped.vt = VT_BYREF | VT_I4;
  wrapped.plVal = &index;
  EXPECT_EQ(Loads(Of(L"K"), wrapped, Path()).Outcome, S_OK);
  EXPECT_EQ(client.Data->FileIndex, 12);
  EXPECT_EQ(Loads(Of(L"K"), Of(L"13"), Path()).Outcome, S_OK);
  EXPECT_EQ(client.Data->FileIndex, 13);
  EXPECT_EQ(Loads(Of(L"K"), Of(2.5), Path()).Outcome, S_OK);
  EXPECT_EQ(client.Data->FileIndex, 2);
}

TEST_F(LateCalls, AFileIndexPast16BitsIsAnOverflow) {
  const LateCall call = Loads(Of(L"K"), Of(40000.0), Path());
  EXPECT_EQ(call.Outcome, DISP_E_EXCEPTION);
  EXPECT_EQ(call.Exception.scode, Runtime(6));
  EXPECT_EQ(call.Description, "Overflow");
  EXPECT_EQ(call.Source, "Tarnwise_DEA.TRN_DEA");
  EXPECT_EQ(client.Data->NumAtts(), 0);
}

TEST_F(LateCalls, WrongArgumentsAreNamed) {
  EXPECT_EQ(CallLate(client.Object.Get(), L"ShowTarnwise", {Of(1.0)}).Outcome, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(CallLate(client.Object.Get(), L"GetCurFileData", {Of(1.0)}).Outcome, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(CallLate(client.Object.Get(), L"NoSuchMethod", {}).Outcome, DISP_E_UNKNOWNNAME);
  VARIANT missing = {};
  missing.vt = VT_ERROR;
  missing.scode = DISP_E_PARAMNOTFOUND;
  LateCall call = Loads(Of(L"K"), missing, Path());
  EXPECT_EQ(call.Outcome, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(call.BadArgument, 1U);
  std::vector<VARIANT> numbers(9, Of(1.0));
  call = CallLate(client.Object.Get(), L"TranferABCoordinates", numbers);
  EXPECT_EQ(call.Outcome, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(call.BadArgument, 8U);
}

TEST_F(LateCalls, OnlyMethodsCanBeCalled) {
  DISPPARAMS none = {};
  IDispatch* const object = client.Object.Get();
  EXPECT_EQ(object->Invoke(0x60030000, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
            DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(object->Invoke(7, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(object->Invoke(0x60030000, IID_IUnknown, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
            DISP_E_UNKNOWNINTERFACE);
  // As callers do that can't tell a method from a value.
  EXPECT_EQ(
      object->Invoke(0x60030000, IID_NULL, 0, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
      S_OK);
  EXPECT_EQ(client.Forms(), Lines({"frmTRNSelMethod"}));
}

TEST_F(LateCalls, TypeInformationIsThereUnregistered) {
  UINT count = 0;
  EXPECT_EQ(client.Object->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 1U);
  ComRef<ITypeInfo> info;
  EXPECT_EQ(client.Object->GetTypeInfo(0, 0, info.Receive()), S_OK);
  EXPECT_EQ(client.Object->GetTypeInfo(1, 0, info.Receive()), DISP_E_BADINDEX);
}

}  // namespace
}  // namespace Tarnwise

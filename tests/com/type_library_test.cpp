// The whole type library in words, as an object browser would show it, against the file typelib.expected.
#include "Client.h"
#include "com/Convert.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace Tarnwise {
namespace {

String Text(REFGUID guid) {
  wchar_t text[39] = {};
  StringFromGUID2(guid, text, 39);
  const Bstr copy(SysAllocString(text));
  return FromBSTR(copy.Get());
}

String Hex(unsigned long number) {
  std::ostringstream text;
  text << "0x" << std::hex << number;
  return text.str();
}

String TypeText(const TYPEDESC& type) {
  switch (type.vt) {
    case VT_PTR: return TypeText(*type.lptdesc) + "*";
    case VT_SAFEARRAY: return "array of " + TypeText(*type.lptdesc);
    case VT_I2: return "I2";
    case VT_BSTR: return "BSTR";
    case VT_BOOL: return "BOOL";
    case VT_VARIANT: return "VARIANT";
    case VT_HRESULT: return "HRESULT";
    case VT_VOID: return "void";
    default: return "type " + std::to_string(type.vt);
  }
}

class Dump {
 public:
  String Library(ITypeLib* library) {
    TLIBATTR* attributes = nullptr;
    library->GetLibAttr(&attributes);
    out_ << "library " << Documented(library, -1) << ' ' << Text(attributes->guid) << ' ' << attributes->wMajorVerNum
         << '.' << attributes->wMinorVerNum << '\n';
    library->ReleaseTLibAttr(attributes);
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
      ComRef<ITypeInfo> type;
      library->GetTypeInfo(i, type.Receive());
      Type(library, i, type.Get());
    }
    return out_.str();
  }

 private:
  template <class Holder>
  static String Documented(Holder* holder, long member) {
    BSTR name = nullptr;
    BSTR help = nullptr;
    holder->GetDocumentation(member, &name, &help, nullptr, nullptr);
    const Bstr ownedName(name);
    const Bstr ownedHelp(help);
    return FromBSTR(name) + " \"" + FromBSTR(help) + "\"";
  }

  void Type(ITypeLib* library, UINT index, ITypeInfo* type) {
    TYPEATTR* attributes = nullptr;
    type->GetTypeAttr(&attributes);
    const char* const kinds[] = {"enum", "record", "module", "interface", "dispinterface", "coclass"};
    out_ << kinds[attributes->typekind] << ' ' << Documented(library, static_cast<long>(index)) << ' '
         << Text(attributes->guid) << " flags " << Hex(attributes->wTypeFlags) << '\n';
    for (UINT i = 0; i < attributes->cImplTypes; ++i) Implemented(type, i);
    for (UINT i = 0; i < attributes->cFuncs; ++i) Function(type, i);
    // The early-bound face of a dual interface.
    HREFTYPE face = 0;
    ComRef<ITypeInfo> early;
    if (attributes->typekind == TKIND_DISPATCH && (attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0 &&
        SUCCEEDED(type->GetRefTypeOfImplType(static_cast<UINT>(-1), &face)) &&
        SUCCEEDED(type->GetRefTypeInfo(face, early.Receive()))) {
      TYPEATTR* own = nullptr;
      early->GetTypeAttr(&own);
      out_ << "  early bound, flags " << Hex(own->wTypeFlags) << '\n';
      for (UINT i = 0; i < own->cFuncs; ++i) Function(early.Get(), i);
      early->ReleaseTypeAttr(own);
    }
    type->ReleaseTypeAttr(attributes);
  }

  void Implemented(ITypeInfo* type, UINT index) {
    HREFTYPE reference = 0;
    int flags = 0;
    ComRef<ITypeInfo> implemented;
    type->GetRefTypeOfImplType(index, &reference);
    type->GetImplTypeFlags(index, &flags);
    out_ << "  of ";
    if (SUCCEEDED(type->GetRefTypeInfo(reference, implemented.Receive()))) {
      BSTR name = nullptr;
      implemented->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
      out_ << FromBSTR(Bstr(name).Get());
    } else {
      out_ << "something unknown";
    }
    out_ << " flags " << flags << '\n';
  }

  void Function(ITypeInfo* type, UINT index) {
    FUNCDESC* function = nullptr;
    type->GetFuncDesc(index, &function);
    if (function->memid < 0x60030000 && (function->wFuncFlags & FUNCFLAG_FRESTRICTED) != 0) {
      type->ReleaseFuncDesc(function);  // the system's own
      return;
    }
    BSTR names[16] = {};
    UINT count = 0;
    type->GetNames(function->memid, names, 16, &count);
    out_ << "  " << Hex(static_cast<unsigned long>(function->memid)) << " at "
         << static_cast<std::size_t>(function->oVft) / sizeof(void*) << ' ' << TypeText(function->elemdescFunc.tdesc)
         << ' ' << Documented(type, function->memid) << '\n';
    for (int i = 0; i < function->cParams; ++i) {
      const ELEMDESC& parameter = function->lprgelemdescParam[i];
      const auto place = static_cast<UINT>(i) + 1;
      const USHORT flags = parameter.paramdesc.wParamFlags;
      out_ << "    " << ((flags & PARAMFLAG_FIN) != 0 ? "in" : "") << ((flags & PARAMFLAG_FOUT) != 0 ? " out" : "")
           << ' ' << TypeText(parameter.tdesc) << ' ' << (place < count ? FromBSTR(names[place]) : "unnamed") << '\n';
    }
    for (UINT i = 0; i < count; ++i) SysFreeString(names[i]);
    type->ReleaseFuncDesc(function);
  }

  std::ostringstream out_;
};

Lines Split(std::istream&& text) {
  Lines lines;
  for (String line; std::getline(text, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

void Compare(const wchar_t* file) {
  ComRef<ITypeLib> library;
  ASSERT_EQ(LoadTypeLibEx(file, REGKIND_NONE, library.Receive()), S_OK);
  const String dump = Dump().Library(library.Get());
  const Lines expected = Split(std::ifstream("typelib.expected"));
  const Lines found = Split(std::istringstream(dump));
  EXPECT_FALSE(expected.empty());
  for (std::size_t i = 0; i < std::min(expected.size(), found.size()); ++i) EXPECT_EQ(found[i], expected[i]) << i + 1;
  EXPECT_EQ(found.size(), expected.size()) << '\n' << dump;
}

TEST(TypeLibrary, InTheModuleIsAsExpected) { Compare(DllPath().c_str()); }
TEST(TypeLibrary, BesideTheModuleIsAsExpected) { Compare(L".\\Tarnwise_DEA.tlb"); }

}  // namespace
}  // namespace Tarnwise

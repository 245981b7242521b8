// What hosts are compiled against: each name, number, type and place in the type library stands in a text.
#include <gtest/gtest.h>

#include <sstream>

#include "com/Component.h"
#include "com/ExpectedText.h"
#include "platform/windows/WideText.h"

namespace quorvel::test {
namespace {

using windows::FromWide;

std::string TextOf(const GUID& identifier) {
  wchar_t text[40];
  StringFromGUID2(identifier, text, 40);
  return FromWide(text);
}

std::string NameOf(ITypeInfo& type, MEMBERID member = MEMBERID_NIL) {
  Bstr name;
  type.GetDocumentation(member, name.Put(), nullptr, nullptr, nullptr);
  return name.Text();
}

std::string TypeText(ITypeInfo& type, const TYPEDESC& described) {
  switch (described.vt) {
    case VT_PTR:
      return TypeText(type, *described.lptdesc) + "*";
    case VT_USERDEFINED: {
      ComPtr<ITypeInfo> used;
      type.GetRefTypeInfo(described.hreftype, used.Put());
      return used ? NameOf(*used.get()) : "?";
    }
    case VT_I4:
      return "long";
    case VT_R4:
      return "float";
    case VT_BSTR:
      return "BSTR";
    case VT_BOOL:
      return "VARIANT_BOOL";
    case VT_VARIANT:
      return "VARIANT";
    case VT_DISPATCH:
      return "IDispatch*";
    case VT_UNKNOWN:
      return "IUnknown*";
    case VT_VOID:
      return "void";
    case VT_HRESULT:
      return "HRESULT";
    default:
      return "vt" + std::to_string(described.vt);
  }
}

std::string FlagsText(USHORT flags) {
  std::string text;
  if ((flags & PARAMFLAG_FIN) != 0) text += "in ";
  if ((flags & PARAMFLAG_FOUT) != 0) text += "out ";
  if ((flags & PARAMFLAG_FOPT) != 0) text += "optional ";
  if ((flags & PARAMFLAG_FRETVAL) != 0) text += "retval ";
  return text;
}

const char* KindOf(INVOKEKIND kind) {
  return kind == INVOKE_PROPERTYGET ? "get " : kind == INVOKE_PROPERTYPUT ? "put " : "";
}

void AppendFunction(std::ostream& text, ITypeInfo& type, UINT number) {
  FUNCDESC* function = nullptr;
  if (FAILED(type.GetFuncDesc(number, &function))) return;
  BSTR raw[16] = {};
  UINT count = 0;
  type.GetNames(function->memid, raw, 16, &count);
  Bstr names[16];
  for (UINT i = 0; i < count; ++i) *names[i].Put() = raw[i];
  text << "  " << function->memid << " " << KindOf(function->invkind) << names[0].Text() << "(";
  for (SHORT i = 0; i < function->cParams; ++i) {
    const ELEMDESC& parameter = function->lprgelemdescParam[i];
    text << (i > 0 ? ", " : "") << FlagsText(parameter.paramdesc.wParamFlags) << TypeText(type, parameter.tdesc);
    if (function->invkind == INVOKE_FUNC && static_cast<UINT>(i) + 1 < count) text << " " << names[i + 1].Text();
  }
  text << ") " << TypeText(type, function->elemdescFunc.tdesc);
  if ((function->wFuncFlags & FUNCFLAG_FRESTRICTED) != 0) text << " restricted";
  text << "\n";
  type.ReleaseFuncDesc(function);
}

void AppendVariable(std::ostream& text, ITypeInfo& type, UINT number) {
  VARDESC* variable = nullptr;
  if (FAILED(type.GetVarDesc(number, &variable))) return;
  text << "  " << NameOf(type, variable->memid);
  if (variable->varkind == VAR_CONST) {
    text << " = " << variable->lpvarValue->lVal;
  } else {
    text << " " << TypeText(type, variable->elemdescVar.tdesc);
  }
  text << "\n";
  type.ReleaseVarDesc(variable);
}

void AppendImplemented(std::ostream& text, ITypeInfo& type, UINT number) {
  HREFTYPE reference = 0;
  INT flags = 0;
  ComPtr<ITypeInfo> implemented;
  type.GetRefTypeOfImplType(number, &reference);
  type.GetImplTypeFlags(number, &flags);
  type.GetRefTypeInfo(reference, implemented.Put());
  text << "  is " << NameOf(*implemented.get()) << ((flags & IMPLTYPEFLAG_FDEFAULT) != 0 ? " default" : "")
       << ((flags & IMPLTYPEFLAG_FSOURCE) != 0 ? " source" : "") << "\n";
}

void AppendType(std::ostream& text, ITypeInfo& type) {
  static const char* const kKinds[] = {"enum", "record", "module", "interface", "dispatch", "class", "alias", "union"};
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(type.GetTypeAttr(&attributes), S_OK);
  text << kKinds[attributes->typekind] << " " << NameOf(type) << " " << TextOf(attributes->guid)
       << ((attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0 ? " dual" : "")
       << ((attributes->wTypeFlags & TYPEFLAG_FCONTROL) != 0 ? " control" : "") << "\n";
  for (UINT i = 0; i < attributes->cVars; ++i) AppendVariable(text, type, i);
  // The first seven of a dual interface seen as a dispatch interface are those of IDispatch.
  const UINT first = attributes->typekind == TKIND_DISPATCH && (attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0 ? 7 : 0;
  for (UINT i = first; i < attributes->cFuncs; ++i) AppendFunction(text, type, i);
  if (attributes->typekind == TKIND_COCLASS) {
    for (UINT i = 0; i < attributes->cImplTypes; ++i) AppendImplemented(text, type, i);
  }
  type.ReleaseTypeAttr(attributes);
}

TEST(TypeLibraryTest, StaysAsHostsKnowIt) {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(Library(), path, MAX_PATH);
  ComPtr<ITypeLib> library;
  ASSERT_EQ(LoadTypeLibEx(path, REGKIND_NONE, library.Put()), S_OK);
  TLIBATTR* attributes = nullptr;
  ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
  std::ostringstream text;
  text << "library " << TextOf(attributes->guid) << " " << attributes->wMajorVerNum << "." << attributes->wMinorVerNum
       << "\n";
  library->ReleaseTLibAttr(attributes);
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> type;
    ASSERT_EQ(library->GetTypeInfo(i, type.Put()), S_OK);
    AppendType(text, *type.get());
  }
  ExpectText("type_library", text.str());
}

}  // namespace
}  // namespace quorvel::test

// SPDX-FileCopyrightText: The KOBTraduction authors
#include "InterfaceText.h"

#include "LoadedServer.h"

#include <vector>

namespace kob::testing {

namespace {

std::string textOf(REFGUID id) {
  wchar_t text[40] = {};
  StringFromGUID2(id, text, 40);
  return toUtf8(TextView(reinterpret_cast<const char16_t*>(text)));
}

std::string nameOf(ITypeInfo& info) {
  BSTR name = nullptr;
  info.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  return toUtf8(take(name));
}

std::string typeText(ITypeInfo& info, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_PTR:
      return typeText(info, *type.lptdesc) + "*";
    case VT_USERDEFINED: {
      ComPtr<ITypeInfo> other;
      info.GetRefTypeInfo(type.hreftype, other.out());
      return nameOf(*other.get());
    }
    case VT_BSTR:
      return "BSTR";
    case VT_VARIANT:
      return "VARIANT";
    case VT_BOOL:
      return "VARIANT_BOOL";
    case VT_I4:
      return "long";
    case VT_R8:
      return "double";
    case VT_DISPATCH:
      return "IDispatch*";
    case VT_UNKNOWN:
      return "IUnknown*";
    case VT_HRESULT:
      return "HRESULT";
    default:
      return "type " + std::to_string(type.vt);
  }
}

std::string parameterText(ITypeInfo& info, const ELEMDESC& parameter, const std::string& name) {
  const USHORT flags = parameter.paramdesc.wParamFlags;
  std::string text;
  text += (flags & PARAMFLAG_FIN) != 0 ? "in " : "";
  text += (flags & PARAMFLAG_FOUT) != 0 ? "out " : "";
  text += (flags & PARAMFLAG_FRETVAL) != 0 ? "retval " : "";
  text += (flags & PARAMFLAG_FOPT) != 0 ? "optional " : "";
  text += typeText(info, parameter.tdesc) + " " + name;
  if ((flags & PARAMFLAG_FHASDEFAULT) != 0) {
    Variant value;
    VariantCopy(value.get(), &parameter.paramdesc.pparamdescex->varDefaultValue);
    const bool isText = value.type() == VT_BSTR;
    text += std::string(" = ") + (isText ? "\"" : "") + toUtf8(value.text()) + (isText ? "\"" : "");
  }
  return text;
}

const char* kindText(INVOKEKIND kind) {
  switch (kind) {
    case INVOKE_PROPERTYGET:
      return "get ";
    case INVOKE_PROPERTYPUT:
      return "put ";
    case INVOKE_PROPERTYPUTREF:
      return "putref ";
    default:
      return "";
  }
}

std::string memberText(ITypeInfo& info, const FUNCDESC& member) {
  std::vector<BSTR> names(static_cast<std::size_t>(member.cParams) + 1, nullptr);
  UINT count = 0;
  info.GetNames(member.memid, names.data(), static_cast<UINT>(names.size()), &count);
  std::string text = "  " + std::to_string(static_cast<unsigned>(member.oVft) / sizeof(void*)) + " id " +
                     std::to_string(member.memid) + " " + kindText(member.invkind) + toUtf8(take(names[0])) +
                     "(";
  for (SHORT i = 0; i < member.cParams; ++i) {
    const BSTR given = names[static_cast<std::size_t>(i) + 1];
    const std::string name = given != nullptr ? toUtf8(take(given)) : "value";
    text += (i > 0 ? ", " : "") + parameterText(info, member.lprgelemdescParam[i], name);
  }
  return text + ")\n";
}

/// A dual interface is described twice; this is how it lies in memory.
ComPtr<ITypeInfo> tableOf(const ComPtr<ITypeInfo>& info) {
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> table;
  if (SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference))) {
    info->GetRefTypeInfo(reference, table.out());
  }
  return table;
}

std::string membersText(ITypeInfo& info) {
  TYPEATTR* attributes = nullptr;
  info.GetTypeAttr(&attributes);
  const UINT count = attributes->cFuncs;
  info.ReleaseTypeAttr(attributes);
  std::string text;
  for (UINT i = 0; i < count; ++i) {
    FUNCDESC* member = nullptr;
    info.GetFuncDesc(i, &member);
    text += memberText(info, *member);
    info.ReleaseFuncDesc(member);
  }
  return text;
}

std::string classText(ITypeInfo& info, UINT interfaces) {
  std::string text;
  for (UINT i = 0; i < interfaces; ++i) {
    HREFTYPE reference = 0;
    ComPtr<ITypeInfo> implemented;
    info.GetRefTypeOfImplType(i, &reference);
    info.GetRefTypeInfo(reference, implemented.out());
    text += "  " + nameOf(*implemented.get()) + "\n";
  }
  return text;
}

}  // namespace

std::string interfaceText(ITypeLib& library) {
  TLIBATTR* about = nullptr;
  library.GetLibAttr(&about);
  std::string text = "library " + textOf(about->guid) + " " + std::to_string(about->wMajorVerNum) + "." +
                     std::to_string(about->wMinorVerNum) + "\n";
  library.ReleaseTLibAttr(about);
  for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> info;
    library.GetTypeInfo(i, info.out());
    TYPEATTR* attributes = nullptr;
    info->GetTypeAttr(&attributes);
    const bool isClass = attributes->typekind == TKIND_COCLASS;
    text +=
        std::string(isClass ? "class " : "interface ") + nameOf(*info.get()) + " " + textOf(attributes->guid);
    text += isClass && (attributes->wTypeFlags & TYPEFLAG_FCANCREATE) == 0 ? " not creatable\n" : "\n";
    text += isClass ? classText(*info.get(), attributes->cImplTypes) : membersText(*tableOf(info).get());
    info->ReleaseTypeAttr(attributes);
  }
  return text;
}

}  // namespace kob::testing

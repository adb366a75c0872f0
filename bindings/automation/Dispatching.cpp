// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Dispatching.h"

#include "TypeLibrary.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace kob::automation {

namespace {

/// The arguments of a call by position, with the ones between that the host left out: not every system's
/// DispInvoke copes with an argument that is left out in front of a named one.
class ByPosition {
 public:
  /// `given` must outlive this.
  explicit ByPosition(const DISPPARAMS& given) : parameters_(given) {
    if (given.cNamedArgs == 0 || given.rgdispidNamedArgs[0] < 0) {
      return;
    }
    const DISPID* const names = given.rgdispidNamedArgs;
    const UINT positional = given.cArgs - given.cNamedArgs;
    const DISPID last = *std::max_element(names, names + given.cNamedArgs);
    if (last > mostArguments ||
        *std::min_element(names, names + given.cNamedArgs) < static_cast<DISPID>(positional)) {
      // Nobody's argument, or one that is given twice.
      isValid_ = false;
      return;
    }
    VARIANT missing{};
    V_VT(&missing) = VT_ERROR;
    V_ERROR(&missing) = DISP_E_PARAMNOTFOUND;
    // Arguments stand in reverse order, and are the host's own also here.
    arguments_.assign(static_cast<std::size_t>(last) + 1, missing);
    std::copy_backward(given.rgvarg + given.cNamedArgs, given.rgvarg + given.cArgs, arguments_.end());
    for (UINT i = 0; i < given.cNamedArgs; ++i) {
      arguments_[static_cast<std::size_t>(last - names[i])] = given.rgvarg[i];
    }
    parameters_ = {arguments_.data(), nullptr, static_cast<UINT>(arguments_.size()), 0};
  }
  ByPosition(const ByPosition&) = delete;
  ByPosition& operator=(const ByPosition&) = delete;

  bool isValid() const noexcept { return isValid_; }
  DISPPARAMS* get() noexcept { return &parameters_; }

 private:
  static constexpr DISPID mostArguments = 31;

  bool isValid_ = true;
  std::vector<VARIANT> arguments_;
  DISPPARAMS parameters_;
};

}  // namespace

HRESULT typeInfo(REFIID id, UINT index, ITypeInfo** info) noexcept {
  if (info == nullptr) {
    return E_POINTER;
  }
  *info = nullptr;
  if (index != 0) {
    return DISP_E_BADINDEX;
  }
  *info = ComRef<ITypeInfo>(typeInfoOf(id)).detach();
  return *info != nullptr ? S_OK : TYPE_E_CANTLOADLIBRARY;
}

HRESULT idsOfNames(REFIID id, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
  ITypeInfo* const info = typeInfoOf(id);
  return info != nullptr ? DispGetIDsOfNames(info, names, count, ids) : TYPE_E_CANTLOADLIBRARY;
}

HRESULT invoke(REFIID id, void* object, DISPID member, WORD flags, DISPPARAMS* parameters, VARIANT* result,
               EXCEPINFO* exception, UINT* wrongArgument) noexcept {
  // What an earlier call left must not pass for this one's.
  SetErrorInfo(0, nullptr);
  ITypeInfo* const info = typeInfoOf(id);
  if (info == nullptr) {
    return TYPE_E_CANTLOADLIBRARY;
  }
  constexpr WORD reading = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  if ((flags & reading) != 0) {
    flags |= reading;
  }
  if (parameters == nullptr) {
    return E_INVALIDARG;
  }
  ByPosition arguments(*parameters);
  if (!arguments.isValid()) {
    return DISP_E_PARAMNOTFOUND;
  }
  const auto attempt = [&](WORD as) {
    return DispInvoke(object, info, member, as, arguments.get(), result, exception, wrongArgument);
  };
  HRESULT done = attempt(flags);
  if (done == DISP_E_MEMBERNOTFOUND && flags == DISPATCH_PROPERTYPUT) {
    // Some hosts write `cell.ColCell = list` for what others write `Set cell.ColCell = list`.
    done = attempt(DISPATCH_PROPERTYPUTREF);
  }
  // An argument that is an object of another class than the member takes.
  return done == E_NOINTERFACE ? DISP_E_TYPEMISMATCH : done;
}

}  // namespace kob::automation

// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Base.h"

/// IDispatch of an object with a dual interface, by the type library.
namespace kob::automation {

HRESULT typeInfo(REFIID id, UINT index, ITypeInfo** info) noexcept;

HRESULT idsOfNames(REFIID id, LPOLESTR* names, UINT count, DISPID* ids) noexcept;

/// `object` points at the interface `id`. Hosts differ in how they ask: reading as a method or as a property,
/// and assigning an object with or without a reference, are the same here.
HRESULT invoke(REFIID id, void* object, DISPID member, WORD flags, DISPPARAMS* parameters, VARIANT* result,
               EXCEPINFO* exception, UINT* wrongArgument) noexcept;

}  // namespace kob::automation

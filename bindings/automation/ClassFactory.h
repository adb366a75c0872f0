// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Apartment.h"
#include "Com.h"

namespace kob::automation {

using MakeShell = ComRef<IUnknown> (*)();

/// Makes objects of one class.
class ClassFactory final : public IClassFactory {
 public:
  explicit ClassFactory(MakeShell make) : make_(make) {}
  ClassFactory(const ClassFactory&) = delete;
  ClassFactory& operator=(const ClassFactory&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 private:
  ~ClassFactory() = default;

  LONG references_ = 1;
  Inhabitant inhabitant_;
  MakeShell make_;
};

}  // namespace kob::automation

// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Errors.h"

#include "Com.h"

#include <exception>
#include <new>
#include <string>

namespace kob::automation {

namespace {

/// The facility under which automation hosts keep their own run-time errors.
constexpr unsigned long runTimeErrors = 0x800A0000UL;
constexpr int internalError = 51;

HRESULT runTimeError(int number) noexcept {
  return static_cast<HRESULT>(runTimeErrors + static_cast<unsigned long>(number));
}

void leaveErrorInformation(const wchar_t* className, const wchar_t* member, const char* what) {
  ComRef<ICreateErrorInfo> created;
  if (FAILED(CreateErrorInfo(created.put()))) {
    return;
  }
  std::wstring source = std::wstring(L"KOBTraduction.") + className;
  std::wstring description = std::wstring(member) + L": ";
  // The descriptions of failures are ASCII.
  for (const char* letter = what; *letter != '\0'; ++letter) {
    description += static_cast<wchar_t>(static_cast<unsigned char>(*letter));
  }
  created->SetSource(source.data());
  created->SetDescription(description.data());
  if (const ComRef<IErrorInfo> information = query<IErrorInfo>(created.get())) {
    SetErrorInfo(0, information.get());
  }
}

HRESULT report(HRESULT result, const wchar_t* className, const wchar_t* member, const char* what) noexcept {
  try {
    leaveErrorInformation(className, member, what);
  } catch (const std::bad_alloc&) {
    SetErrorInfo(0, nullptr);
  }
  return result;
}

}  // namespace

HRESULT resultOf(FailureKind kind) noexcept {
  return runTimeError(static_cast<int>(kind));
}

HRESULT reportFailure(const wchar_t* className, const wchar_t* member) noexcept {
  try {
    throw;
  } catch (const Failure& failure) {
    return report(resultOf(failure.kind()), className, member, failure.what());
  } catch (const SystemFailure& failure) {
    return report(failure.result(), className, member, "the system refused the call");
  } catch (const std::bad_alloc&) {
    return report(E_OUTOFMEMORY, className, member, "out of memory");
  } catch (const std::exception& failure) {
    return report(runTimeError(internalError), className, member, failure.what());
  } catch (...) {
    return report(runTimeError(internalError), className, member, "internal error");
  }
}

}  // namespace kob::automation

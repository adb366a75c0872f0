// SPDX-FileCopyrightText: The KOBTraduction authors
#include "HostStream.h"

#include "CellShell.h"
#include "EntryShell.h"
#include "Shells.h"
#include "VariantValue.h"

#include <memory>
#include <optional>

namespace kob::automation {

namespace {

void mustSucceed(HRESULT result) {
  if (FAILED(result)) {
    SetErrorInfo(0, nullptr);
    throw Failure(FailureKind::PropertyMissing);
  }
}

ComRef<IDispatch> objectFor(const PersistRef& object) {
  if (const auto cell = std::dynamic_pointer_cast<KOBCellTraduction>(object)) {
    return ComRef<IDispatch>(shellOf(cell).get());
  }
  if (const auto entry = std::dynamic_pointer_cast<KOBTraductionObj>(object)) {
    return ComRef<IDispatch>(shellOf(entry).get());
  }
  return {};
}

PersistRef partFor(IUnknown* object) {
  if (object == nullptr) {
    return nullptr;
  }
  if (const ComRef<CellShell> cell = unwrap<CellShell>(object)) {
    return cell->part();
  }
  if (const ComRef<EntryShell> entry = unwrap<EntryShell>(object)) {
    return entry->part();
  }
  throw Failure(FailureKind::TypeMismatch);
}

void store(VARIANT& place, const PersistValue& value) {
  switch (value.type()) {
    case PersistType::SmallInteger:
      V_VT(&place) = VT_I2;
      V_I2(&place) = static_cast<SHORT>(value.integer());
      break;
    case PersistType::Long:
      putLong(place, value.integer());
      break;
    case PersistType::Double:
      V_VT(&place) = VT_R8;
      V_R8(&place) = value.number();
      break;
    case PersistType::String:
      putText(place, value.text());
      break;
    case PersistType::Object:
      putObject(place, objectFor(value.object()).detach());
      break;
    case PersistType::Boolean:
      V_VT(&place) = VT_BOOL;
      V_BOOL(&place) = value.integer() != 0 ? VARIANT_TRUE : VARIANT_FALSE;
      break;
  }
}

}  // namespace

HostStream::HostStream(IDispatch* stream) : stream_(stream), typed_(query<IKOBVBStream>(stream)) {
  if (stream == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
}

DISPID HostStream::memberOf(TextView name) const {
  const std::optional<DISPID> member = stream_.find(Bstr(name));
  if (!member) {
    throw Failure(FailureKind::PropertyMissing);
  }
  return *member;
}

std::int32_t HostStream::Version() {
  if (typed_) {
    LONG version = 0;
    mustSucceed(typed_->get_Version(&version));
    return version;
  }
  Variant version;
  mustSucceed(stream_.read(memberOf(u"Version"), *version));
  return longOf(*version);
}

void HostStream::setVersion(std::int32_t version) {
  if (typed_) {
    mustSucceed(typed_->put_Version(version));
    return;
  }
  Variant value;
  putLong(*value, version);
  mustSucceed(stream_.assign(memberOf(u"Version"), *value));
}

void HostStream::WriteValue(const PersistValue& value) {
  Variant given;
  store(*given, value);
  if (typed_) {
    mustSucceed(typed_->WriteValue(*given));
    return;
  }
  DISPPARAMS parameters{given.get(), nullptr, 1, 0};
  mustSucceed(stream_.call(memberOf(u"WriteValue"), DISPATCH_METHOD, parameters, nullptr));
}

const PersistValue& HostStream::ReadValue() {
  Variant read;
  if (typed_) {
    mustSucceed(typed_->ReadValue(read.get()));
  } else {
    DISPPARAMS none{};
    mustSucceed(
        stream_.call(memberOf(u"ReadValue"), DISPATCH_METHOD | DISPATCH_PROPERTYGET, none, read.get()));
  }
  const VARIANT& found = resolved(*read);
  switch (V_VT(&found)) {
    case VT_I2:
      value_ = PersistValue::smallInteger(V_I2(&found));
      break;
    case VT_I4:
      value_ = PersistValue::ofLong(V_I4(&found));
      break;
    case VT_BOOL:
      value_ = PersistValue::ofBoolean(V_BOOL(&found) != VARIANT_FALSE);
      break;
    case VT_BSTR:
      text_ = viewOf(V_BSTR(&found));
      value_ = PersistValue::string(text_);
      break;
    case VT_DISPATCH:
    case VT_UNKNOWN:
      value_ = PersistValue::object(partFor(V_UNKNOWN(&found)));
      break;
    default:
      value_ = PersistValue::ofDouble(doubleOf(found));
      break;
  }
  return value_;
}

}  // namespace kob::automation

// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFunctions.h"

#include "LibraryClass.h"

#include <oleauto.h>
#include <tests/doubles/Lines.h>
#include <tests/doubles/Utf8.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace kob::hosts {

namespace {

/// What a failed expectation raises: a number of the range that scripts keep for their own errors.
constexpr HRESULT failedExpectation = static_cast<HRESULT>(0x800A2328);

[[noreturn]] void fail(const Text& why) {
  throw ComError{failedExpectation, failedExpectation, why};
}

bool isObject(const Variant& value) {
  return value.type() == VT_DISPATCH || value.type() == VT_UNKNOWN;
}

const void* identityOf(const Variant& value) {
  const ComPtr<IDispatch> object = value.object();
  ComPtr<IUnknown> identity;
  if (object) {
    object->QueryInterface(IID_IUnknown, identity.outVoid());
  }
  return identity.get();
}

/// Texts are equal to texts only, Booleans to Booleans and objects to themselves; numbers by what they are.
bool areEqual(const Variant& one, const Variant& other) {
  if (isObject(one) || isObject(other)) {
    return isObject(one) && isObject(other) && identityOf(one) == identityOf(other);
  }
  const auto isOneKind = [&](VARTYPE type) { return (one.type() == type) == (other.type() == type); };
  if (!isOneKind(VT_BSTR) || !isOneKind(VT_BOOL) || !isOneKind(VT_EMPTY) || !isOneKind(VT_NULL)) {
    return false;
  }
  if (one.type() == VT_BSTR) {
    return one.text() == other.text();
  }
  return one.type() == VT_EMPTY || one.type() == VT_NULL ||
         VarCmp(const_cast<VARIANT*>(one.get()), const_cast<VARIANT*>(other.get()), LOCALE_INVARIANT, 0) ==
             VARCMP_EQ;
}

Text described(const Variant& value) {
  if (isObject(value)) {
    return identityOf(value) == nullptr ? u"nothing" : u"an object";
  }
  switch (value.type()) {
    case VT_EMPTY:
      return u"empty";
    case VT_NULL:
      return u"null";
    case VT_BSTR:
      return testing::fromUtf8(testing::quoted(value.text()));
    default:
      return value.text();
  }
}

Variant assertEqual(const Arguments& arguments) {
  const Variant& expected = argumentAt(arguments, 0);
  const Variant& seen = argumentAt(arguments, 1);
  if (!areEqual(expected, seen)) {
    const Text what = arguments.size() > 2 ? arguments[2].text() + u": " : Text();
    fail(what + u"expected " + described(expected) + u", seen " + described(seen));
  }
  return {};
}

}  // namespace

std::wstring wideOf(TextView text) {
  return std::wstring(reinterpret_cast<const wchar_t*>(text.data()), text.size());
}

Text readTextFile(const std::wstring& file) {
  std::ifstream stream(std::filesystem::path(file), std::ios::binary);
  if (!stream) {
    throw ComError{STG_E_FILENOTFOUND, STG_E_FILENOTFOUND,
                   u"the file cannot be read: " + textOf(file.c_str())};
  }
  const std::string bytes(std::istreambuf_iterator<char>(stream), {});
  try {
    Text text = testing::fromUtf8(bytes);
    return text.starts_with(u'\uFEFF') ? text.substr(1) : text;
  } catch (const std::exception&) {
    throw ComError{E_INVALIDARG, E_INVALIDARG, u"the file is no UTF-8: " + textOf(file.c_str())};
  }
}

TestFunctions::TestFunctions(std::vector<Text> arguments, std::function<void(const std::string&)> print,
                             BoxWatcher& boxes)
    : arguments_(std::move(arguments)), print_(std::move(print)), boxes_(boxes) {}

Variant TestFunctions::quit(const Arguments& arguments) {
  const std::int32_t status = arguments.empty() ? 0 : arguments[0].number();
  std::fflush(nullptr);
  // Nothing that the script still says may run, not even where it ignores errors.
  ExitProcess(static_cast<UINT>(status));
}

ComPtr<IDispatch> TestFunctions::object() {
  const Function print = [this](const Arguments& arguments) {
    std::string line;
    for (const Variant& one : arguments) {
      line += (line.empty() ? "" : " ") + testing::toUtf8(one.text());
    }
    print_(line + "\n");
    return Variant();
  };
  const Function argument = [this](const Arguments& arguments) {
    const auto place = static_cast<std::size_t>(argumentAt(arguments, 0).number());
    if (place < 1 || place > arguments_.size()) {
      fail(u"the script was not given so many arguments");
    }
    return Variant(TextView(arguments_[place - 1]));
  };
  const Function answerBox = [this](const Arguments& arguments) {
    boxes_.answer(argumentAt(arguments, 0).boolean());
    return Variant();
  };
  return namedFunctions({
      {u"Print", print},
      {u"Fail", [](const Arguments& arguments) -> Variant { fail(argumentAt(arguments, 0).text()); }},
      {u"AssertEqual", assertEqual},
      {u"Argument", argument},
      {u"ArgumentCount",
       [this](const Arguments&) { return Variant(static_cast<std::int32_t>(arguments_.size())); }},
      {u"CreateFromFile",
       [](const Arguments& arguments) {
         return Variant(
             createFromFile(wideOf(argumentAt(arguments, 0).text()), argumentAt(arguments, 1).text()).get());
       }},
      {u"NewList", [](const Arguments&) { return Variant(listObject().get()); }},
      {u"ReadText",
       [](const Arguments& arguments) {
         return Variant(TextView(readTextFile(wideOf(argumentAt(arguments, 0).text()))));
       }},
      {u"AnswerBox", answerBox},
      {u"Boxes", [this](const Arguments&) { return Variant(TextView(testing::fromUtf8(boxes_.take()))); }},
      {u"Quit", [this](const Arguments& arguments) { return quit(arguments); }},
  });
}

}  // namespace kob::hosts

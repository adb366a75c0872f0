// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ScriptEngine.h"

#include "Counted.h"

#include <activscp.h>

#include <algorithm>
#include <cstdio>
#include <map>

namespace kob::hosts {

namespace {

constexpr CLSID vbScriptClass = {
    0xB54F3741, 0x5B07, 0x11CF, {0xA4, 0xB0, 0x00, 0xAA, 0x00, 0x4A, 0x55, 0xE8}};
constexpr CLSID jScriptClass = {0xF414C260, 0x6AC0, 0x11CF, {0xB6, 0xD1, 0x00, 0xAA, 0x00, 0xBB, 0xBB, 0x58}};

#ifdef _WIN64
using ActiveScriptParse = IActiveScriptParse64;
#else
using ActiveScriptParse = IActiveScriptParse32;
#endif

Text lineOf(TextView source, std::uint32_t number) {
  for (std::uint32_t line = 1; line < number; ++line) {
    const std::size_t end = source.find(u'\n');
    source.remove_prefix(end == TextView::npos ? source.size() : end + 1);
  }
  Text text(source.substr(0, source.find(u'\n')));
  text.erase(std::remove(text.begin(), text.end(), u'\r'), text.end());
  return text;
}

Text ascii(const char* text) {
  return Text(text, text + std::char_traits<char>::length(text));
}

}  // namespace

std::optional<ScriptLanguage> languageOf(const std::wstring& file) {
  const std::size_t dot = file.rfind(L'.');
  const std::wstring extension = dot == std::wstring::npos ? L"" : file.substr(dot);
  if (_wcsicmp(extension.c_str(), L".vbs") == 0) {
    return ScriptLanguage::VBScript;
  }
  return _wcsicmp(extension.c_str(), L".js") == 0 ? std::optional(ScriptLanguage::JScript) : std::nullopt;
}

Text ScriptError::message(TextView file) const {
  char place[80];
  std::snprintf(place, sizeof place, "(%u,%u): error %08lX: ", line, column,
                static_cast<unsigned long>(number));
  return Text(file) + ascii(place) + description + u"\n    " + sourceLine;
}

/// What the engine knows of its host.
class ScriptEngine::Site final : public Counted<IActiveScriptSite, IActiveScriptSiteWindow> {
 public:
  void open(ScriptLanguage language) {
    check(CoCreateInstance(language == ScriptLanguage::VBScript ? vbScriptClass : jScriptClass, nullptr,
                           CLSCTX_INPROC_SERVER, IID_IActiveScript, engine.outVoid()),
          u"the script engine is not installed");
    check(engine->QueryInterface(__uuidof(ActiveScriptParse), parser.outVoid()), u"the engine takes no text");
    check(engine->SetScriptSite(this), u"the engine takes no host");
    check(parser->InitNew(), u"the engine does not begin");
  }

  void close() {
    parser = {};
    if (engine) {
      engine->Close();
    }
    engine = {};
    objects.clear();
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (id == IID_IActiveScriptSiteWindow) {
      return answer(static_cast<IActiveScriptSiteWindow*>(this), object);
    }
    const bool known = id == IID_IUnknown || id == IID_IActiveScriptSite;
    return answer(known ? static_cast<IActiveScriptSite*>(this) : nullptr, object);
  }
  HRESULT STDMETHODCALLTYPE GetLCID(LCID* locale) override {
    // The same texts and numbers on every machine.
    *locale = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name, DWORD wanted, IUnknown** object,
                                        ITypeInfo** type) override {
    const auto found = objects.find(textOf(name));
    if (found == objects.end()) {
      return TYPE_E_ELEMENTNOTFOUND;
    }
    if ((wanted & SCRIPTINFO_ITYPEINFO) != 0) {
      *type = nullptr;
    }
    if ((wanted & SCRIPTINFO_IUNKNOWN) != 0) {
      *object = found->second.get();
      (*object)->AddRef();
    }
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override {
    EXCEPINFO exception = {};
    error->GetExceptionInfo(&exception);
    DWORD context = 0;
    ULONG line = 0;
    LONG column = 0;
    error->GetSourcePosition(&context, &line, &column);
    lastError = ScriptError{exception.scode,
                            static_cast<std::uint32_t>(line) + 1,
                            static_cast<std::uint32_t>(column) + 1,
                            textOf(exception.bstrDescription),
                            {}};
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override {
    *window = nullptr;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }

  ComPtr<IActiveScript> engine;
  ComPtr<ActiveScriptParse> parser;
  std::map<Text, ComPtr<IDispatch>> objects;
  std::optional<ScriptError> lastError;
};

ScriptEngine::ScriptEngine(ScriptLanguage language) : site_(new Site) {
  try {
    site_->open(language);
  } catch (...) {
    end();
    throw;
  }
}

ScriptEngine::~ScriptEngine() {
  end();
}

void ScriptEngine::end() {
  site_->close();
  site_->Release();
}

void ScriptEngine::add(TextView name, IDispatch* object, bool isGlobal) {
  site_->objects[Text(name)] = object;
  const Text terminated(name);
  check(site_->engine->AddNamedItem(reinterpret_cast<LPCOLESTR>(terminated.c_str()),
                                    SCRIPTITEM_ISVISIBLE | (isGlobal ? SCRIPTITEM_GLOBALMEMBERS : 0)),
        name);
}

std::optional<ScriptError> ScriptEngine::run(TextView source) {
  const Text terminated(source);
  site_->lastError.reset();
  check(site_->engine->SetScriptState(SCRIPTSTATE_STARTED), u"the engine does not start");
  EXCEPINFO exception = {};
  const HRESULT result =
      site_->parser->ParseScriptText(reinterpret_cast<LPCOLESTR>(terminated.c_str()), nullptr, nullptr,
                                     nullptr, 0, 0, SCRIPTTEXT_ISVISIBLE, nullptr, &exception);
  if (SUCCEEDED(result)) {
    return std::nullopt;
  }
  ScriptError error = site_->lastError.value_or(ScriptError{result, 1, 1, u"the engine gave no reason", {}});
  error.sourceLine = lineOf(source, error.line);
  return error;
}

Variant ScriptEngine::variable(TextView name) {
  ComPtr<IDispatch> names;
  check(site_->engine->GetScriptDispatch(nullptr, names.out()), u"the engine has no variables");
  return get(names.get(), name);
}

}  // namespace kob::hosts

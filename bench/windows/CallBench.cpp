// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Benches.h"
#include "Contest.h"
#include "DoNothingModel.h"

#include <bindings/automation/DispatchObject.h>
#include <tests/automation/hosts/scripting/LibraryClass.h>
#include <tests/automation/hosts/scripting/ScriptEngine.h>

#include <dispex.h>

#include <optional>
#include <vector>

namespace kob::bench {

namespace {

using hosts::ComPtr;
using hosts::Variant;

constexpr int calls = 20000;
constexpr int rounds = 11;

/// A call by number, prepared once.
class Prepared {
 public:
  Prepared(IDispatch* object, TextView member, WORD how, const std::vector<Variant>& arguments)
      : object_(object), how_(how), arguments_(arguments) {
    hosts::check(hosts::memberId(object, member, id_), member);
    for (auto argument = arguments_.rbegin(); argument != arguments_.rend(); ++argument) {
      raw_.push_back(*argument->get());
    }
  }
  Prepared(const Prepared&) = delete;
  Prepared& operator=(const Prepared&) = delete;

  void repeat(int times) {
    DISPID put = DISPID_PROPERTYPUT;
    const bool isPut = how_ == DISPATCH_PROPERTYPUT;
    for (int i = 0; i < times; ++i) {
      DISPPARAMS parameters = {raw_.data(), isPut ? &put : nullptr, static_cast<UINT>(raw_.size()),
                               isPut ? 1U : 0U};
      Variant result;
      hosts::check(object_->Invoke(id_, IID_NULL, LOCALE_NEUTRAL, how_, &parameters,
                                   isPut ? nullptr : result.get(), nullptr, nullptr),
                   u"call");
    }
  }

 private:
  ComPtr<IDispatch> object_;
  WORD how_;
  DISPID id_ = 0;
  std::vector<Variant> arguments_;
  std::vector<VARIANT> raw_;
};

void fill(IDispatch* model) {
  hosts::call(hosts::call(model, u"Racine").object().get(), u"AddMessage",
              {Variant(u"m"), Variant(u"Bonjour")});
}

void benchFromCpp(IDispatch* model, IDispatch* nothing) {
  const auto contest = [&](const char* job, TextView member, WORD how,
                           const std::vector<Variant>& arguments) {
    Prepared ours(model, member, how, arguments);
    Prepared theirs(nothing, member, how, arguments);
    compete(
        std::string("In, from C++ by number: ") + job, calls, rounds,
        {{"KOBTraduction", [&] { ours.repeat(calls); }}, {"does nothing", [&] { theirs.repeat(calls); }}});
  };
  constexpr WORD read = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  contest("NbLangues (a number)", u"NbLangues", read, {});
  contest("Fichier = text", u"Fichier", DISPATCH_PROPERTYPUT, {Variant(u"C:\\app\\app.trad")});
  contest("GetTraduction(path, 2)", u"GetTraduction", read, {Variant(u"m"), Variant(std::int32_t{2})});
  contest("GetCell(path) (an object)", u"GetCell", read, {Variant(u"m")});
}

void benchFromScript(IDispatch* model, IDispatch* nothing) {
  hosts::ScriptEngine engine(hosts::ScriptLanguage::VBScript);
  const auto error = engine.run(
      u"Class Loops\n"
      u"  Public Sub Count(o, n)\n    Dim i, x\n    For i = 1 To n\n      x = o.NbLangues\n    Next\n  End "
      u"Sub\n"
      u"  Public Sub Text(o, n)\n    Dim i, x\n    For i = 1 To n\n      x = o.GetTraduction(\"m\", 2)\n    "
      u"Next\n"
      u"  End Sub\n"
      u"End Class\n"
      u"Dim work\nSet work = New Loops\n");
  if (error) {
    throw hosts::ComError{E_FAIL, error->number, error->description};
  }
  const ComPtr<IDispatch> loops = engine.variable(u"work").object();
  const auto contest = [&](const char* job, TextView loop) {
    const auto with = [&, loop](IDispatch* object) {
      return [&, loop, object] {
        hosts::call(loops.get(), loop, {Variant(object), Variant(std::int32_t{calls})});
      };
    };
    compete(std::string("In, from a loop in VBScript: ") + job, calls, rounds,
            {{"KOBTraduction", with(model)}, {"does nothing", with(nothing)}});
  };
  contest("NbLangues", u"Count");
  contest("GetTraduction(path, 2)", u"Text");
}

/// The same call without anything around it.
void askBare(IDispatchEx* object, BSTR name) {
  DISPID id = 0;
  hosts::check(object->GetDispID(name, fdexNameCaseInsensitive, &id), u"name");
  DISPPARAMS none = {};
  Variant result;
  hosts::check(object->Invoke(id, IID_NULL, LOCALE_NEUTRAL, DISPATCH_PROPERTYGET, &none, result.get(),
                              nullptr, nullptr),
               u"read");
}

void benchOut() {
  hosts::ScriptEngine engine(hosts::ScriptLanguage::VBScript);
  const auto error = engine.run(
      u"Class Control\n  Public Caption\n  Public Left\nEnd Class\n"
      u"Dim c\nSet c = New Control\nc.Caption = \"Valider la commande\"\nc.Left = 120\n");
  if (error) {
    throw hosts::ComError{E_FAIL, error->number, error->description};
  }
  const ComPtr<IDispatch> control = engine.variable(u"c").object();
  ComPtr<IDispatchEx> extended;
  hosts::check(control->QueryInterface(__uuidof(IDispatchEx), extended.outVoid()), u"IDispatchEx");
  const auto contest = [&](const char* job, TextView name, Property property) {
    const BSTR asked = hosts::bstrOf(name);
    compete(std::string("Out, a script's property by name: ") + job, calls, rounds,
            {{"as the engine asks, a new object each time",
              [&] {
                for (int i = 0; i < calls; ++i) {
                  automation::DispatchObject(control.get()).get(property);
                }
              }},
             {"GetDispID and Invoke", [&] {
                for (int i = 0; i < calls; ++i) {
                  askBare(extended.get(), asked);
                }
              }}});
    SysFreeString(asked);
  };
  contest("Caption (a text)", u"Caption", Property::Caption);
  contest("left (a number)", u"left", Property::Left);
}

}  // namespace

void benchCalls(const std::wstring& server) {
  const ComPtr<IDispatch> model = hosts::createFromFile(server, u"KOBModeleTraduction");
  const ComPtr<IDispatch> nothing = doNothingModel(server);
  fill(model.get());
  benchFromCpp(model.get(), nothing.get());
  benchFromScript(model.get(), nothing.get());
  benchOut();
}

}  // namespace kob::bench

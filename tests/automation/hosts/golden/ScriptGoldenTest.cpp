// SPDX-FileCopyrightText: The KOBTraduction authors
// The cases of tests/golden, their forms made of script objects, their operations performed by the DLL.

#include "../scripting/BoxWatcher.h"
#include "../scripting/LibraryClass.h"
#include "../scripting/TestFunctions.h"
#include "CaseScript.h"
#include "ModelMirror.h"

#include <gtest/gtest.h>
#include <objbase.h>
#include <tests/doubles/Utf8.h>
#include <tests/golden/GoldenCase.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <thread>

namespace kob::hosts {
namespace {

using testing::fromUtf8;
using testing::Line;
using testing::toUtf8;
using testing::Word;

/// The folder of this program, where the DLL is too.
std::filesystem::path ownFolder() {
  std::wstring name(1024, L'\0');
  name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
  return std::filesystem::path(name).parent_path();
}

/// Run-time errors arrive as 0x800A0000 + their number.
bool isRunTimeError(HRESULT number) {
  return (static_cast<std::uint32_t>(number) & 0xFFFF0000U) == 0x800A0000U;
}

class ScriptSubject final : public testing::CaseSubject {
 public:
  ScriptSubject(const ScriptStyle& style, std::string_view formText, std::string_view treeText)
      : style_(style),
        form_(formText),
        functions_(
            {}, [](const std::string&) {}, boxes_),
        engine_(style.language) {
    model_ = createFromFile((ownFolder() / L"KOBTraduction.dll").wstring(), u"KOBModeleTraduction");
    file_ = (std::filesystem::temp_directory_path() /
             (L"case" + std::to_wstring(GetCurrentThreadId()) + L".trad"))
                .wstring();
    engine_.add(u"Host", functions_.object().get(), true);
    engine_.add(u"model", model_.get());
    tabbed_ = makeForm(engine_, form_.objects(), style_);
    if (!treeText.empty()) {
      growModel(model_.get(), treeText, file_);
    }
  }
  ~ScriptSubject() override {
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
  }

  void perform(const Line& line) override {
    const std::vector<Word> words = testing::wordsOf(line);
    const std::string& operation = words.front().key;
    try {
      if (operation == "answer") {
        boxes_.answer(words.at(1).key == "Yes");
      } else if (operation == "set") {
        const Value value = testing::valueOf(words.at(3));
        const Text place = fromUtf8(form_.variable(words.at(1).key) + "." + words.at(2).key);
        say((value.isNothing() && isVb() ? u"Set " : u"") + place + u" = " +
            literalOf(value, style_.language));
      } else if (operation.starts_with("Change")) {
        change(line, words);
      } else {
        performOnModel(line, words);
      }
    } catch (const ComError& error) {
      if (!isRunTimeError(error.number)) {
        throw std::runtime_error(line.text + ": " + toUtf8(error.description));
      }
      note(line, "failure " + std::to_string(error.number & 0xFFFF));
    }
  }

  std::string form() const override {
    return form_.print(
        [this](const std::string& variable) { return engine_.variable(fromUtf8(variable)).object(); });
  }
  std::string tree() const override { return printModel(model_.get(), file_); }
  std::string messages() override {
    notes_ += boxes_.take();
    return notes_ + (boxes_.hasUnusedAnswers() ? "an answer is left over\n" : "");
  }

 private:
  bool isVb() const { return style_.language == ScriptLanguage::VBScript; }

  void say(TextView statement) {
    if (const std::optional<ScriptError> error = engine_.run(statement)) {
      throw ComError{error->number, error->number, error->message(u"script")};
    }
  }

  void note(const Line& line, const std::string& result) {
    notes_ += boxes_.take() + line.text + " -> " + result + "\n";
  }

  /// A call of the model in the script's language; what it returns goes to the variable `answer`.
  void callModel(const std::string& name, const std::vector<Text>& arguments, bool hasAnswer) {
    Text list;
    for (const Text& argument : arguments) {
      list += (list.empty() ? u"" : u", ") + argument;
    }
    const Text member = u"model." + fromUtf8(name);
    if (isVb()) {
      say(hasAnswer ? u"answer = " + member + u"(" + list + u")" : member + u" " + list);
    } else {
      say((hasAnswer ? u"var answer = " : u"") + member + u"(" + list + u");");
    }
  }

  void performOnModel(const Line& line, const std::vector<Word>& words) {
    const std::string& operation = words.front().key;
    const auto object = [this, &words](std::size_t place) {
      return fromUtf8(form_.variable(words.at(place).key));
    };
    const auto number = [&words](std::size_t place) { return words.at(place).value; };
    const auto literal = [this, &words](std::size_t place) {
      return literalOf(Value(words.at(place).value), style_.language);
    };
    if (operation == "UpdateWithForm") {
      callModel(operation, withOptions({formVariable()}, words, true), false);
    } else if (operation == "UpdateWithCtrl") {
      callModel(operation, withOptions({object(1)}, words, false), false);
    } else if (operation == "TraduitDialog") {
      callModel(operation, withOptions({formVariable(), number(1)}, words, true), false);
    } else if (operation == "TraduitControle") {
      callModel(operation, withOptions({object(1), number(2)}, words, false), false);
    } else if (operation == "GetPath") {
      callModel(operation, withOptions({object(1)}, words, false), true);
      note(line, testing::quoted(engine_.variable(u"answer").text()));
    } else if (operation == "GetTraduction") {
      callModel(operation, {literal(1), number(2)}, true);
      note(line, testing::quoted(engine_.variable(u"answer").text()));
    } else if (operation == "UpdateTestLangue" || operation == "ClearLangue") {
      callModel(operation, {number(1)}, false);
    } else if (operation == "NbLangues") {
      say(u"model.NbLangues = " + number(1));
    } else if (operation == "AddNoeuds") {
      call(cell(line, words).get(), u"AddNoeuds", {Variant(TextView(words.at(2).value))});
    } else if (operation == "AddMessage") {
      call(cell(line, words).get(), u"AddMessage",
           {Variant(TextView(words.at(2).value)), Variant(TextView(words.at(3).value))});
    } else {
      testing::badLine(line, "no operation");
    }
  }

  Text formVariable() const { return fromUtf8(form_.form()); }

  /// The arguments that may be left out, up to the last one that is given.
  std::vector<Text> withOptions(std::vector<Text> arguments, const std::vector<Word>& words,
                                bool isForForm) const {
    const auto find = [&words](std::string_view key) {
      return std::find_if(words.begin() + 1, words.end(),
                          [key](const Word& one) { return !one.isText && one.key == key; });
    };
    const auto module = std::find_if(words.begin() + 1, words.end(),
                                     [](const Word& one) { return one.hasValue && one.key == "module"; });
    const auto visible = find("onlyVisible");
    const auto container = std::find_if(words.begin() + 1, words.end(), [](const Word& one) {
      return one.hasValue && one.key == "OnlyContainer";
    });
    const bool hasMore = isForForm && (visible != words.end() || container != words.end());
    if (module != words.end() || hasMore) {
      arguments.push_back(literalOf(Value(module == words.end() ? Text() : module->value), style_.language));
    }
    if (hasMore) {
      arguments.push_back(literalOf(Value(visible != words.end()), style_.language));
    }
    if (isForForm && container != words.end()) {
      arguments.push_back(fromUtf8(form_.variable(toUtf8(container->value))));
    }
    return arguments;
  }

  ComPtr<IDispatch> cell(const Line& line, const std::vector<Word>& words) const {
    ComPtr<IDispatch> found = call(model_.get(), u"GetCell", {Variant(TextView(words.at(1).value))}).object();
    if (!found) {
      testing::badLine(line, "there is no such cell");
    }
    return found;
  }

  void change(const Line& line, const std::vector<Word>& words) {
    const ComPtr<IDispatch> target = cell(line, words);
    if (words.front().key != "ChangeTraduction") {
      call(target.get(), words.front().value,
           {Variant(testing::valueOf(words.at(3)).asDouble().value()), Variant(std::stoi(words.at(2).key))});
      return;
    }
    const ComPtr<IDispatch> entries = call(target.get(), u"ColTraduction").object();
    for (std::int32_t i = 1; i <= call(entries.get(), u"Count").number(); ++i) {
      const ComPtr<IDispatch> entry = call(entries.get(), u"Item", {Variant(i)}).object();
      if (equalUpper(call(entry.get(), u"nom").text(), words.at(2).value)) {
        call(entry.get(), u"ChangeTraduction",
             {Variant(TextView(words.at(4).value)), Variant(std::stoi(words.at(3).key))});
      }
    }
  }

  ScriptStyle style_;
  CaseForm form_;
  BoxWatcher boxes_;
  TestFunctions functions_;
  mutable ScriptEngine engine_;
  std::unique_ptr<ScriptEngine> tabbed_;
  ComPtr<IDispatch> model_;
  std::wstring file_;
  std::string notes_;
};

struct NamedStyle {
  std::string name;
  ScriptStyle style;
};

using Collections = ScriptStyle::Collections;

const std::vector<NamedStyle>& styles() {
  static const std::vector<NamedStyle> all{
      {"VBScript", {ScriptLanguage::VBScript, Collections::OwnClass, false}},
      {"VBScriptEnumerated", {ScriptLanguage::VBScript, Collections::Enumerated, false}},
      {"VBScriptArrayRaising", {ScriptLanguage::VBScript, Collections::Array, true}},
      {"JScript", {ScriptLanguage::JScript, Collections::OwnClass, false}},
      {"JScriptArray", {ScriptLanguage::JScript, Collections::Array, false}},
  };
  return all;
}

class ScriptGoldenTest : public ::testing::TestWithParam<std::tuple<std::string, NamedStyle>> {};

TEST_P(ScriptGoldenTest, Case) {
  const auto& [name, style] = GetParam();
  std::string failure;
  // A thread of its own: the language count never shrinks.
  std::thread([&failure, &caseName = name, &named = style] {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    try {
      const testing::MakeSubject make = [&named](std::string_view formText, std::string_view treeText) {
        return std::make_unique<ScriptSubject>(named.style, formText, treeText);
      };
      failure = testing::runGoldenCase(caseName, make, false);
    } catch (const ComError& error) {
      failure = toUtf8(error.description);
    } catch (const std::exception& error) {
      failure = error.what();
    }
    CoUninitialize();
  }).join();
  EXPECT_TRUE(failure.empty()) << failure;
}

INSTANTIATE_TEST_SUITE_P(Golden, ScriptGoldenTest,
                         ::testing::Combine(::testing::ValuesIn(testing::goldenCases("scripted")),
                                            ::testing::ValuesIn(styles())),
                         [](const auto& param) {
                           std::string name = std::get<0>(param.param);
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name + "_" + std::get<1>(param.param).name;
                         });

}  // namespace
}  // namespace kob::hosts

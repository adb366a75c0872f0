// SPDX-FileCopyrightText: The KOBTraduction authors
// Turns form files into live forms of script objects and hands them to the component, as a host application
// would:
//   kobfrm harvest DLL JOBS OUTPUT    harvests each form into a new model, gives it texts, saves it
//   kobfrm apply DLL JOBS OUTPUT      loads each model and applies languages to a fresh form
// JOBS (README.md) has a form a line; OUTPUT gets a line of JSON for each. Status 0 when it came to the end
// of JOBS.

#include "../scripting/LibraryClass.h"
#include "../scripting/TestFunctions.h"
#include "FormFile.h"
#include "Json.h"

#include <objbase.h>
#include <tests/doubles/Lines.h>
#include <tests/doubles/Utf8.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

namespace kob::hosts {
namespace {

using testing::fromUtf8;
using testing::toUtf8;
using testing::Word;

/// A form of the job file, and the lines below it.
struct Job {
  std::map<std::string, Text> settings;
  Text file;
  ElsewhereTexts elsewhere;
  std::vector<std::vector<Word>> steps;
};

std::vector<Job> readJobs(const std::wstring& file) {
  std::vector<Job> jobs;
  const std::string text = toUtf8(readTextFile(file));
  for (const testing::Line& line : testing::linesOf(text)) {
    std::vector<Word> words = testing::wordsOf(line);
    if (words.front().key == "form") {
      jobs.emplace_back().file = words.at(1).value;
      for (std::size_t i = 2; i < words.size(); ++i) {
        jobs.back().settings[words[i].key] = words[i].value;
      }
    } else if (words.front().key == "elsewhere") {
      jobs.back().elsewhere[words.at(1).value] = words.at(2).value;
    } else {
      jobs.back().steps.push_back(std::move(words));
    }
  }
  return jobs;
}

ScriptStyle styleOf(const Job& job) {
  ScriptStyle style;
  if (job.settings.at("language") == u"jscript") {
    style.language = ScriptLanguage::JScript;
  }
  const Text& collections = job.settings.at("collections");
  style.collections = collections == u"array"        ? ScriptStyle::Collections::Array
                      : collections == u"enumerated" ? ScriptStyle::Collections::Enumerated
                                                     : ScriptStyle::Collections::OwnClass;
  return style;
}

/// The live form of a job, and a new model that its script knows.
class Session {
 public:
  Session(const Job& job, const std::wstring& library, TestFunctions& functions)
      : style_(styleOf(job)), engine_(style_.language) {
    std::ifstream stream(std::filesystem::path(wideOf(job.file)), std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(stream), {});
    objects_ = liveForm(*readFormFile(bytes), job.elsewhere);
    model_ = createFromFile(library, u"KOBModeleTraduction");
    engine_.add(u"Host", functions.object().get(), true);
    engine_.add(u"model", model_.get());
    tabbed_ = makeForm(engine_, objects_, style_);
  }

  IDispatch* model() const { return model_.get(); }

  /// A statement of the script; throws its error.
  void run(TextView statement) {
    if (const std::optional<ScriptError> error = engine_.run(statement)) {
      throw std::runtime_error(toUtf8(error->message(u"script")));
    }
  }

  /// A call of the model, written as the language writes it.
  void callModel(const Text& name, const std::vector<Text>& arguments) {
    const bool isVb = style_.language == ScriptLanguage::VBScript;
    Text statement = u"model." + name + (isVb ? u" " : u"(");
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      statement += (i > 0 ? u", " : u"") + arguments[i];
    }
    run(statement + (isVb ? u"" : u");"));
  }

  Text form() const { return fromUtf8(objects_.front().variable); }
  Text literal(const Value& value) const { return literalOf(value, style_.language); }

  /// What the application sees of its form now.
  std::string state() {
    Json all;
    for (const ScriptObject& object : objects_) {
      const ComPtr<IDispatch> live = engine_.variable(fromUtf8(object.variable)).object();
      Json one;
      one.add(nameOf(live.get()));
      for (const char16_t* const key : {u"Caption", u"ToolTipText", u"tag"}) {
        one.addRaw(object.tabs && key != std::u16string_view(u"tag") ? "null" : textOrNull(live.get(), key));
      }
      if (!object.tabs || object.tabs->empty()) {
        one.addRaw("null");
      } else {
        Json titles;
        for (std::int32_t i = 0; i < static_cast<std::int32_t>(object.tabs->size()); ++i) {
          titles.add(get(live.get(), u"TabCaption", {Variant(i)}).text());
        }
        one.addRaw(titles.array());
      }
      all.addRaw(one.array());
    }
    return all.array();
  }

 private:
  static std::string textOrNull(IDispatch* object, TextView name) {
    DISPID id = 0;
    return SUCCEEDED(memberId(object, name, id)) ? Json::quoted(get(object, name).text()) : "null";
  }

  static Text nameOf(IDispatch* object) {
    DISPID id = 0;
    if (FAILED(memberId(object, u"Name", id))) {
      return get(object, u"Key").text();
    }
    const Text name = get(object, u"Name").text();
    return FAILED(memberId(object, u"Index", id)) ? name : name + u"(" + get(object, u"Index").text() + u")";
  }

  ScriptStyle style_;
  ScriptEngine engine_;
  std::unique_ptr<ScriptEngine> tabbed_;
  std::vector<ScriptObject> objects_;
  ComPtr<IDispatch> model_;
};

/// The items of one of the component's lists; none for nothing.
std::vector<Variant> itemsOf(const ComPtr<IDispatch>& list) {
  std::vector<Variant> items;
  const std::int32_t count = list ? call(list.get(), u"Count").number() : 0;
  for (std::int32_t i = 1; i <= count; ++i) {
    items.push_back(call(list.get(), u"Item", {Variant(i)}));
  }
  return items;
}

std::string describedEntries(IDispatch* cell) {
  if (call(cell, u"TypeFeuille").number() != 2) {
    return "null";
  }
  Json entries;
  for (const Variant& entry : itemsOf(call(cell, u"ColTraduction").object())) {
    Json texts;
    for (const Variant& text : itemsOf(call(entry.object().get(), u"ColTraduction").object())) {
      texts.add(text.text());
    }
    Json one;
    one.add(call(entry.object().get(), u"nom").text());
    one.addRaw(texts.array());
    entries.addRaw(one.array());
  }
  return entries.array();
}

std::string describedCell(IDispatch* cell) {
  Json below;
  for (const Variant& child : itemsOf(call(cell, u"ColCell").object())) {
    below.addRaw(describedCell(child.object().get()));
  }
  const bool isNode = call(cell, u"TypeCell").number() == 1;
  Json one;
  one.addRaw("\"name\": " + Json::quoted(call(cell, u"nom").text()));
  one.addRaw(std::string("\"node\": ") + (isNode ? "true" : "false"));
  one.addRaw("\"left\": " + std::to_string(call(cell, u"m_left").number()));
  one.addRaw("\"width\": " + std::to_string(call(cell, u"m_width").number()));
  one.addRaw("\"entries\": " + describedEntries(cell));
  one.addRaw("\"cells\": " + below.array());
  return one.object();
}

void changeText(IDispatch* model, const std::vector<Word>& words) {
  const ComPtr<IDispatch> cell = call(model, u"GetCell", {Variant(TextView(words.at(1).value))}).object();
  if (!cell) {
    throw std::runtime_error("there is no cell " + words.at(1).key);
  }
  for (const Variant& entry : itemsOf(call(cell.get(), u"ColTraduction").object())) {
    if (call(entry.object().get(), u"nom").text() == words.at(2).value) {
      call(entry.object().get(), u"ChangeTraduction",
           {Variant(TextView(words.at(4).value)), Variant(std::stoi(words.at(3).key))});
      return;
    }
  }
  throw std::runtime_error("there is no entry " + words.at(2).key + " in " + words.at(1).key);
}

void requireTrue(const Variant& answer, const char* what) {
  if (!answer.boolean()) {
    throw std::runtime_error(what);
  }
}

void harvest(Session& session, const Job& job, Json& answer) {
  session.callModel(u"UpdateWithForm", {session.form()});
  for (const std::vector<Word>& words : job.steps) {
    if (words.front().key == "text") {
      changeText(session.model(), words);
    }
  }
  answer.addRaw("\"cells\": " + describedCell(call(session.model(), u"Racine").object().get()));
  answer.addRaw("\"state\": " + session.state());
  requireTrue(call(session.model(), u"Save", {Variant(TextView(job.settings.at("model")))}),
              "the model is not saved");
}

void apply(Session& session, const Job& job, Json& answer) {
  requireTrue(call(session.model(), u"Load", {Variant(TextView(job.settings.at("model")))}),
              "the model is not loaded");
  Json states;
  for (const std::vector<Word>& words : job.steps) {
    const std::string& step = words.front().key;
    if (step == "test") {
      session.callModel(u"UpdateTestLangue", {words.at(1).value});
    } else if (step == "apply") {
      session.callModel(u"TraduitDialog", {session.form(), words.at(1).value});
      states.addRaw(session.state());
    }
  }
  answer.addRaw("\"states\": " + states.array());
}

std::string perform(bool isHarvest, const Job& job, const std::wstring& library, TestFunctions& functions,
                    BoxWatcher& boxes) {
  Json answer;
  answer.addRaw("\"form\": " + Json::quoted(job.file));
  try {
    Session session(job, library, functions);
    (isHarvest ? harvest : apply)(session, job, answer);
  } catch (const ComError& error) {
    answer.addRaw("\"error\": " + Json::quoted(error.description));
  } catch (const std::exception& error) {
    answer.addRaw("\"error\": " + Json::quoted(fromUtf8(error.what())));
  }
  answer.addRaw("\"messages\": " + Json::quoted(fromUtf8(boxes.take())));
  return answer.object();
}

int run(const std::vector<std::wstring>& words) {
  if (words.size() != 5) {
    std::fputs("kobfrm harvest|apply DLL JOBS OUTPUT\n", stderr);
    return 2;
  }
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  int status = 0;
  try {
    BoxWatcher boxes;
    TestFunctions functions(
        {}, [](const std::string&) {}, boxes);
    std::ofstream output(std::filesystem::path(words[4]), std::ios::binary);
    for (const Job& job : readJobs(words[3])) {
      output << perform(words[1] == L"harvest", job, words[2], functions, boxes) << "\n" << std::flush;
    }
  } catch (const ComError& error) {
    std::fputs((toUtf8(error.description) + "\n").c_str(), stderr);
    status = 2;
  }
  CoUninitialize();
  return status;
}

}  // namespace
}  // namespace kob::hosts

int wmain(int count, wchar_t** words) {
  return kob::hosts::run(std::vector<std::wstring>(words, words + count));
}

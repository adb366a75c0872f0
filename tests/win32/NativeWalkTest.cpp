// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeDesk.h"
#include "tests/editor/RandomWalk.h"

#include <kobtraduction/editor/LineEnds.h>
#include <kobtraduction/editor/TextBox.h>

#include <cstdlib>

namespace kob::testing {
namespace {

/// The editor on native controls. The dialog for a file name is the system's and not told what to answer
/// here.
class NativeToolkit {
 public:
  using Person = NativePerson;

  void whenShown(DialogKind kind, NativeScript script) { desk_.whenShown(kind, std::move(script)); }
  void dropScripts(DialogKind kind) { desk_.dropScripts(kind); }
  static TreeView::Node nodes(const Person& person) { return person.tree().count(); }
  static bool isShownModified(const Person& person) {
    return win32::windowText(person.window.handle()).back() == L'*';
  }
  static Screen seen(const Person& person);

 private:
  NativeDesk desk_;
};

/// What a field shows, as the editor writes it: the widget's own text, which the control must show.
Text textOf(const NativePerson& person, TextView name, std::int32_t index = -1) {
  const auto& box = person.the<TextBox>(name, index);
  std::wstring wanted;
  const bool hasLines = (GetWindowLongW(person.control(name, index), GWL_STYLE) & ES_MULTILINE) != 0;
  for (const char16_t unit : shownInDocument(box.text())) {
    wanted += unit != paragraphSeparator ? std::wstring(1, static_cast<wchar_t>(unit))
              : hasLines                 ? L"\r\n"
                                         : L"\u2424";
  }
  EXPECT_EQ(person.shownText(name, index), wanted);
  return box.text();
}

Screen NativeToolkit::seen(const NativePerson& person) {
  Screen screen;
  for (TreeView::Node node = 1; node <= person.tree().count(); ++node) {
    screen.nodes.push_back({win32::textOf(person.nodeText(node)), person.tree().tag(node),
                            person.nodeImage(node), static_cast<std::size_t>(person.tree().parent(node))});
  }
  screen.selected = static_cast<std::size_t>(person.selectedNode());
  // Of the control itself, whether or not what it stands in is shown.
  const auto isVisible = [&person](TextView name, std::int32_t index = -1) {
    return (GetWindowLongW(person.control(name, index), GWL_STYLE) & WS_VISIBLE) != 0;
  };
  screen.seesButtons = isVisible(u"bAdd") && isVisible(u"bSupp");
  screen.seesName = isVisible(u"FrName");
  screen.seesMessage = isVisible(u"FrMessage");
  screen.seesControl = isVisible(u"FrControl");
  screen.nom = textOf(person, u"tbNom");
  screen.alias = textOf(person, u"tbAlias");
  screen.contextName = textOf(person, u"tbContexte");
  screen.seesContextName = isVisible(u"tbContexte") && isVisible(u"lContexte");
  screen.kind = person.chosen(u"OptTypFeuille");
  screen.isContext = person.isChecked(u"chkContexte");
  screen.names = person.lines(u"LstNomTrad");
  screen.name = person.line(u"LstNomTrad");
  screen.isPositioned = person.isChecked(u"chkPosition");
  for (std::size_t i = 0; i < 6; ++i) {
    const auto index = static_cast<std::int32_t>(i);
    screen.messageTexts[i] = textOf(person, u"tbTradMessage", index);
    screen.controlTexts[i] = textOf(person, u"tbTradCtrl", index);
    screen.seesLeft[i] = isVisible(u"sldLeft", index);
    screen.seesWidth[i] = isVisible(u"sldwidth", index);
    screen.left[i] = person.value(u"sldLeft", index);
    screen.width[i] = person.value(u"sldwidth", index);
  }
  screen.tellsNotRecorded = !person.shownText(u"lbStatus").empty();
  return screen;
}

TEST(NativeEditorRandomWalk, ActionsShowAndRecordWhatTheRulesSay) {
  // Under Wine an action takes some 36 ms: ten thousand are for a whole run.
  const int wanted = std::getenv("KOB_WHOLE") != nullptr ? 10'000 : 1'000;
  int done = 0;
  for (std::uint32_t seed = 1; done < wanted && !::testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    done += Walk<NativeToolkit>(seed).run(60);
  }
  RecordProperty("actions", done);
}

}  // namespace
}  // namespace kob::testing

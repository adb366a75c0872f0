// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RandomWalk.h"
#include "tests/doubles/Person.h"

namespace kob::testing {

namespace {

/// Windows that are shown to a script.
class ScriptedToolkit {
 public:
  using Person = kob::testing::Person;

  void whenShown(DialogKind kind, Script script) { widgets_.whenShown(kind, std::move(script)); }
  void dropScripts(DialogKind kind) { widgets_.dropScripts(kind); }
  static void saveAs(Person& person, const Text& text) {
    person.window.saveFileDialog().answers = {text};
    person.chooseMenu(u"m_SaveAs");
  }
  static TreeView::Node nodes(const Person& person) { return person.tree().count(); }
  static bool isShownModified(const Person& person) { return person.window.isShownModified; }
  static Screen seen(const Person& person);

 private:
  ScriptedWidgetSet widgets_;
};

/// What is on the screen of the editor itself.
Screen ScriptedToolkit::seen(const Person& person) {
  Screen screen;
  const auto& tree = person.tree();
  for (TreeView::Node node = 1; node <= tree.count(); ++node) {
    screen.nodes.push_back({tree.shown(node).text, tree.tag(node), tree.shown(node).image,
                            static_cast<std::size_t>(tree.parent(node))});
  }
  screen.selected = static_cast<std::size_t>(tree.shownSelected);
  const auto isVisible = [&person](TextView name, std::int32_t index = -1) {
    return person.the<Widget>(name, index).isVisible();
  };
  screen.seesButtons = isVisible(u"bAdd") && isVisible(u"bSupp");
  screen.seesName = isVisible(u"FrName");
  screen.seesMessage = isVisible(u"FrMessage");
  screen.seesControl = isVisible(u"FrControl");
  screen.nom = person.the<ScriptedTextBox>(u"tbNom").shownText;
  screen.alias = person.the<ScriptedTextBox>(u"tbAlias").shownText;
  screen.contextName = person.the<ScriptedTextBox>(u"tbContexte").shownText;
  screen.seesContextName = isVisible(u"tbContexte") && isVisible(u"lContexte");
  screen.kind = person.chosen(u"OptTypFeuille");
  screen.isContext = person.the<ScriptedCheckBox>(u"chkContexte").isShownChecked;
  screen.names = person.lines(u"LstNomTrad");
  screen.name = person.the<ScriptedListBox>(u"LstNomTrad").shownIndex;
  screen.isPositioned = person.the<ScriptedCheckBox>(u"chkPosition").isShownChecked;
  for (std::size_t i = 0; i < 6; ++i) {
    const auto index = static_cast<std::int32_t>(i);
    screen.messageTexts[i] = person.the<ScriptedTextBox>(u"tbTradMessage", index).shownText;
    screen.controlTexts[i] = person.the<ScriptedTextBox>(u"tbTradCtrl", index).shownText;
    screen.seesLeft[i] = isVisible(u"sldLeft", index);
    screen.seesWidth[i] = isVisible(u"sldwidth", index);
    screen.left[i] = person.the<ScriptedSlider>(u"sldLeft", index).shownValue;
    screen.width[i] = person.the<ScriptedSlider>(u"sldwidth", index).shownValue;
  }
  screen.tellsNotRecorded = !person.caption(u"lbStatus").empty();
  return screen;
}

TEST(EditorRandomWalk, TenThousandActionsShowAndRecordWhatTheRulesSay) {
  int done = 0;
  for (std::uint32_t seed = 1; done < 10000 && !::testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    done += Walk<ScriptedToolkit>(seed).run(60);
  }
  RecordProperty("actions", done);
}

}  // namespace

}  // namespace kob::testing

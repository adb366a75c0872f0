// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"
#include "SampleModel.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QStyleFactory>

#include <cstdio>

/// Writes a picture of every window of the editor in each of its states into a folder:
/// qt_editor_pictures FOLDER [dark]. Take QT_SCALE_FACTOR=2 for sharp screens.
namespace kob::qt::testing {
namespace {

class PictureRun {
 public:
  explicit PictureRun(const QDir& folder) : folder_(folder) { fillSample(model_); }

  int run() {
    editor("empty", 0, u"");
    editor("node", 0, u"App\\FrmClient");
    editor("control", 0, u"App\\FrmClient\\btnEnregistrer");
    editor("control-without-position", 0, u"App\\FrmClient\\btnAnnuler");
    editor("context", 0, u"App\\FrmClient\\lblVille");
    editor("scripts", 0, u"App\\FrmClient\\lblArabe");
    editor("message", 0, u"App\\Messages\\Confirmation");
    editor("restricted-control", 1, u"App\\FrmClient\\btnEnregistrer");
    editor("restricted-message", 1, u"App\\Messages\\Confirmation");
    sized("small", {560, 420});
    sized("large", {1600, 1000});
    after("modified", [](const Window& window) { window.type("tbTradCtrl(1)", QStringLiteral("Save!")); });
    after("node-kinds", [](const Window& window) { window.tree().expandAll(); });
    over("add-node-empty", "bAdd", [](const Window&) {});
    over("add-node-message", "bAdd", [](const Window& window) { window.press("OptTypFeuille(1)"); });
    over("add-node-control", "bAdd", [](const Window& window) { window.press("OptTypFeuille(2)"); });
    over("add-translation", "bAddTrad", [](const Window&) {});
    search();
    return failures_;
  }

 private:
  void grab(const Window& window, const char* name) {
    QTest::qWait(30);
    if (!window.widget().grab().save(folder_.filePath(QLatin1String(name) + QStringLiteral(".png")))) {
      std::fprintf(stderr, "the picture %s cannot be written\n", name);
      ++failures_;
    }
  }
  void editor(const char* name, std::int32_t mode, TextView path) {
    desk_.whenOpen([this, name](const Window& window) { grab(window, name); });
    model_.Show(mode, path);
  }
  void sized(const char* name, QSize size) {
    desk_.whenOpen([this, name, size](const Window& window) {
      window.widget().resize(size);
      grab(window, name);
    });
    model_.Show(0, u"App\\FrmClient\\btnEnregistrer");
  }
  void after(const char* name, const Script& act) {
    desk_.whenOpen([this, name, act](const Window& window) {
      act(window);
      grab(window, name);
    });
    model_.Show(0, u"App\\FrmClient\\btnEnregistrer");
  }
  void over(const char* name, const char* button, const Script& act) {
    desk_.whenOpen([this, name, button, act](const Window& window) {
      desk_.whenOpen([this, name, act](const Window& small) {
        act(small);
        grab(small, name);
      });
      window.press(button);
    });
    model_.Show(0, u"App\\FrmClient\\btnEnregistrer");
  }
  void search() {
    desk_.whenOpen([this](const Window& window) {
      desk_.whenOpen([this](const Window& small) {
        small.type("tbSearchString", QStringLiteral("r"));
        small.press("bNewSearch");
        grab(small, "search");
        small.clickLine("List1", 0);
      });
      window.key(Qt::Key_F, Qt::ControlModifier);
      grab(window, "after-search");
    });
    model_.Show(0, u"");
  }

  QDir folder_;
  QtWidgetSet widgets_;
  KOBModeleTraduction model_;
  Desk desk_;
  int failures_ = 0;
};

void setDark() {
  const QColor window(45, 45, 48);
  const QColor base(30, 30, 32);
  const QColor text(225, 225, 225);
  QPalette dark(window);
  dark.setColor(QPalette::Window, window);
  dark.setColor(QPalette::WindowText, text);
  dark.setColor(QPalette::Base, base);
  dark.setColor(QPalette::AlternateBase, window);
  dark.setColor(QPalette::Text, text);
  dark.setColor(QPalette::Button, window);
  dark.setColor(QPalette::ButtonText, text);
  dark.setColor(QPalette::Highlight, QColor(42, 110, 180));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    dark.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
  }
  QApplication::setPalette(dark);
}

}  // namespace
}  // namespace kob::qt::testing

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 2 || !QDir().mkpath(arguments[1])) {
    std::fprintf(stderr, "usage: qt_editor_pictures FOLDER [dark]\n");
    return 2;
  }
  if (arguments.contains(QStringLiteral("dark"))) {
    kob::qt::testing::setDark();
  }
  return kob::qt::testing::PictureRun(QDir(arguments[1])).run();
}

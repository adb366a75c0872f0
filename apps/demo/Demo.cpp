// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Demo.h"

#include "Languages.h"
#include "LoansPage.h"
#include "MembersPage.h"
#include "Messages.h"
#include "ToolsPage.h"

#include <kobtraduction/base/Failure.h>
#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/QtWidgetSet.h>

#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

// Which rows the demo opens with: one tool that is on its shelf, one that is out.
constexpr int availableTool = 0;
constexpr int lentTool = 1;

}  // namespace

Demo::Demo()
    : data_(sampleData()),
      window_(data_),
      loanDialog_(data_, &window_),
      memberDialog_(&window_),
      switcher_(model_) {
  Messages::record(model_);
  showMessages();
  window_.checkLanguage(switcher_.language());
  window_.tools().chooseTool(availableTool);
  window_.members().chooseMember(0);
  loanDialog_.chooseTool(availableTool);
  loanDialog_.chooseDuration(1);
  memberDialog_.showMember(data_.members.front());
  connectWindow();
}

bool Demo::load(const QString& file) {
  if (!model_.Load(qt::toText(file))) {
    return false;
  }
  // The file may be older than the demo: fewer languages, fewer messages.
  model_.setNbLangues(static_cast<std::int32_t>(languages.size()));
  Messages::record(model_);
  showMessages();
  return true;
}

Filled Demo::harvest() {
  for (QWidget* const form : std::initializer_list<QWidget*>{&window_, &loanDialog_, &memberDialog_}) {
    model_.UpdateWithForm(qt::hostForm(form));
  }
  // The texts of the other context are on the form only while such a tool is chosen.
  window_.tools().chooseTool(lentTool);
  model_.UpdateWithCtrl(qt::hostControl(window_.tools().lendButton()));
  window_.tools().chooseTool(availableTool);
  return countTexts(model_);
}

Filled Demo::fillFrom(TextTable table, Fill what) {
  Filled filled = fill(model_, table, what);
  for (QWidget* const form : std::initializer_list<QWidget*>{&window_, &loanDialog_, &memberDialog_}) {
    switcher_.addForm(form);
  }
  connect(&window_.tools(), &ToolsPage::contextChanged, this, [this](QWidget* control) {
    model_.TraduitControle(qt::hostControl(control), switcher_.language());
  });
  return filled;
}

bool Demo::save(const QString& file) {
  // The editor saves there, too.
  model_.setFichier(qt::toText(file));
  return model_.Save(model_.Fichier());
}

void Demo::translate() {
  qt::QtWidgetSet widgets;
  try {
    model_.Show(0);
  } catch (const Failure& failure) {
    window_.tell(QString::fromLatin1(failure.what()));
  }
  switcher_.refresh();
  refresh();
}

void Demo::connectWindow() {
  connect(&switcher_, &qt::LanguageSwitcher::languageChanged, this, [this](int language) {
    showMessages();
    window_.checkLanguage(language);
  });
  connect(&window_, &MainWindow::languageChosen, &switcher_, &qt::LanguageSwitcher::setLanguage);
  connect(&window_, &MainWindow::translationRequested, this, &Demo::translate);
  connect(&window_, &MainWindow::lendRequested, this, &Demo::lend);
  connect(&window_, &MainWindow::returnRequested, this, &Demo::takeBack);
  connect(&window_, &MainWindow::extensionRequested, this, [this] { extend(window_.tools().chosenTool()); });
  connect(&window_.loans(), &LoansPage::extensionRequested, this, &Demo::extend);
  connect(&window_.loans(), &LoansPage::reminderRequested, this, &Demo::remind);
  connect(&window_, &MainWindow::remindersRequested, this, [this] {
    const auto late = std::find_if(data_.tools.begin(), data_.tools.end(),
                                   [](const Tool& tool) { return tool.isLent() && tool.due < today(); });
    remind(late == data_.tools.end() ? -1 : static_cast<int>(late - data_.tools.begin()));
  });
  connect(&window_, &MainWindow::memberRequested, this, [this] { editMember(-1); });
  connect(&window_.members(), &MembersPage::sheetRequested, this, &Demo::editMember);
  connect(&window_, &MainWindow::printRequested, this, [this] { window_.tell(message("Imprime")); });
  connect(&window_, &MainWindow::refreshRequested, this, &Demo::refresh);
  connect(&window_, &MainWindow::aboutRequested, this,
          [this] { QMessageBox::about(&window_, u"L’Établi du canal"_s, message("APropos")); });
}

QString Demo::message(const char* name) const {
  return Messages(model_, switcher_.language())(name);
}

void Demo::showMessages() {
  window_.showMessages(Messages(model_, switcher_.language()));
}

void Demo::refresh() {
  showMessages();
}

void Demo::lend(int duration) {
  const int chosen = window_.tools().chosenTool();
  loanDialog_.chooseTool(chosen);
  loanDialog_.chooseDuration(duration);
  if (loanDialog_.exec() == QDialog::Accepted && loanDialog_.tool() >= 0) {
    Tool& tool = data_.tools[static_cast<std::size_t>(loanDialog_.tool())];
    tool.borrower = loanDialog_.borrower();
    tool.lent = today();
    tool.due = loanDialog_.due();
    refresh();
  }
}

void Demo::takeBack() {
  const int chosen = window_.tools().chosenTool();
  if (chosen >= 0) {
    Tool& tool = data_.tools[static_cast<std::size_t>(chosen)];
    tool.borrower.clear();
    tool.lent = tool.due = {};
    refresh();
  }
}

void Demo::extend(int tool) {
  if (tool >= 0 && data_.tools[static_cast<std::size_t>(tool)].isLent()) {
    QDate& due = data_.tools[static_cast<std::size_t>(tool)].due;
    due = due.addDays(7);
    refresh();
  }
}

void Demo::remind(int tool) {
  if (tool >= 0) {
    window_.tell(message("RappelEnvoye").arg(data_.tools[static_cast<std::size_t>(tool)].borrower));
  }
}

void Demo::editMember(int member) {
  if (member >= 0) {
    memberDialog_.showMember(data_.members[static_cast<std::size_t>(member)]);
  } else {
    memberDialog_.clear();
  }
  memberDialog_.exec();
}

std::vector<Demo::View> Demo::views() {
  const auto page = [this](int number, int tool) {
    return [this, number, tool] {
      window_.showPage(number);
      window_.tools().chooseTool(tool);
    };
  };
  return {
      {u"FrmPrincipale-Outils"_s, &window_, page(0, availableTool)},
      {u"FrmPrincipale-OutilSorti"_s, &window_, page(0, lentTool)},
      {u"FrmPrincipale-Adherents"_s, &window_, page(1, availableTool)},
      {u"FrmPrincipale-Prets"_s, &window_, page(2, availableTool)},
      {u"DlgPret"_s, &loanDialog_, [] {}},
      {u"DlgAdherent"_s, &memberDialog_, [] {}},
  };
}

}  // namespace kob::demo

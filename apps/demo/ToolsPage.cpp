// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ToolsPage.h"

#include "FormParts.h"
#include "Icons.h"
#include "Messages.h"
#include "Tables.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

enum Column { Number, Name, Kind, State, Columns };

constexpr const char* dateFormat = "dd/MM/yyyy";

QString orDash(const QString& text) {
  return text.isEmpty() ? u"–"_s : text;
}

}  // namespace

ToolsPage::ToolsPage(const std::vector<Tool>& tools) : tools_(tools) {
  setObjectName(u"pageOutils"_s);
  table_ = rowTable("tabOutils", Columns, Name);
  table_->setRowCount(static_cast<int>(tools.size()));
  auto* const left = new QVBoxLayout;
  left->setSpacing(10);
  left->addWidget(searchBox());
  left->addWidget(table_, 1);
  auto* const page = new QHBoxLayout(this);
  page->setContentsMargins(12, 12, 12, 12);
  page->setSpacing(14);
  page->addLayout(left, 1);
  page->addWidget(sheet());
  connect(table_, &QTableWidget::itemSelectionChanged, this, &ToolsPage::showSheet);
}

QWidget* ToolsPage::searchBox() {
  auto* const box = part<QGroupBox>("grpRecherche", u"Recherche"_s);
  search_ = part<QLineEdit>("txtMotCle", u"Nom ou numéro"_s);
  search_->setMinimumWidth(150);
  categories_ = part<QComboBox>("cboCategorie");
  auto* const clear = part<QPushButton>("cmdEffacer", u"Effacer"_s, u"Afficher de nouveau tous les outils"_s);
  clear->setMinimumWidth(108);
  auto* const row = new QHBoxLayout(box);
  row->addWidget(part<QLabel>("lblMotCle", u"Mot-clé"_s));
  row->addWidget(search_, 1);
  row->addSpacing(6);
  row->addWidget(categories_);
  row->addWidget(clear);
  connect(search_, &QLineEdit::textChanged, this, &ToolsPage::filter);
  connect(categories_, &QComboBox::currentIndexChanged, this, &ToolsPage::filter);
  connect(clear, &QPushButton::clicked, this, [this] {
    search_->clear();
    categories_->setCurrentIndex(0);
  });
  return box;
}

QWidget* ToolsPage::sheet() {
  auto* const box = part<QGroupBox>("grpFiche", u"Fiche de l’outil"_s);
  box->setFixedWidth(300);
  name_ = dataLabel("lblNomOutil");
  QFont bold = name_->font();
  bold.setPixelSize(16);
  bold.setBold(true);
  name_->setFont(bold);
  name_->setWordWrap(true);

  auto* const frame = part<QFrame>("fraEtat");
  frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  auto* const facts = new QFormLayout(frame);
  facts->setHorizontalSpacing(14);
  facts->addRow(part<QLabel>("lblEtat", u"État"_s), state_ = dataLabel("lblEtatOutil"));
  facts->addRow(part<QLabel>("lblEmprunteur", u"Emprunteur"_s), borrower_ = dataLabel("lblNomEmprunteur"));
  facts->addRow(part<QLabel>("lblRetour", u"À rendre le"_s), due_ = dataLabel("lblDateRetour"));
  facts->addRow(part<QLabel>("lblCaution", u"Caution"_s, u"Rendue au retour de l’outil en bon état"_s),
                deposit_ = dataLabel("lblMontant"));

  auto* const kit = part<QGroupBox>("grpAccessoires", u"Accessoires fournis"_s);
  auto* const kitRows = new QVBoxLayout(kit);
  const QString names[] = {u"Mallette de transport"_s, u"Mode d’emploi"_s, u"Chargeur et deux batteries"_s,
                           u"Lunettes de protection"_s};
  for (int i = 0; i < 4; ++i) {
    accessories_.push_back(member<QCheckBox>("chkAccessoire", i, names[i]));
    kitRows->addWidget(accessories_.back());
  }

  lendButton_ = part<QPushButton>("cmdPreter");
  setContext(false);
  connect(lendButton_, &QPushButton::clicked, this, [this] {
    const int tool = chosenTool();
    if (tool >= 0) {
      emit(tools_[static_cast<std::size_t>(tool)].isLent() ? returnRequested() : lendRequested());
    }
  });

  auto* const column = new QVBoxLayout(box);
  column->setSpacing(10);
  column->addWidget(name_);
  column->addWidget(frame);
  column->addWidget(kit);
  column->addStretch(1);
  column->addWidget(lendButton_);
  return box;
}

void ToolsPage::setContext(bool isLent) {
  setTag(*lendButton_, isLent ? "Sorti" : "");
  lendButton_->setIcon(icon(isLent ? Drawing::Return : Drawing::Lend));
  lendButton_->setText(isLent ? u"Rendre cet outil…"_s : u"Prêter cet outil…"_s);
  lendButton_->setToolTip(isLent ? u"Enregistrer le retour et rendre la caution"_s
                                 : u"Remplir une fiche de prêt pour l’outil choisi"_s);
  emit contextChanged(lendButton_);
}

void ToolsPage::showMessages(const Messages& messages) {
  available_ = messages("EtatDisponible");
  out_ = messages("EtatSorti");
  table_->setHorizontalHeaderLabels(
      {messages("ColNumero"), messages("ColOutil"), messages("ColCategorie"), messages("ColEtat")});
  for (int row = 0; row < table_->rowCount(); ++row) {
    const Tool& tool = tools_[static_cast<std::size_t>(row)];
    const QByteArray category = "Categorie" + QByteArray::number(static_cast<int>(tool.category));
    setRow(*table_, row,
           {tool.number, tool.name, messages(category.constData()), tool.isLent() ? out_ : available_});
  }
  const QSignalBlocker quiet(categories_);
  const int chosen = qMax(0, categories_->currentIndex());
  categories_->clear();
  categories_->addItem(messages("CategorieToutes"));
  for (const char* const name : {"Categorie0", "Categorie1", "Categorie2", "Categorie3"}) {
    categories_->addItem(messages(name));
  }
  categories_->setCurrentIndex(chosen);
  showSheet();
}

void ToolsPage::chooseTool(int row) {
  table_->selectRow(row);
}

int ToolsPage::chosenTool() const {
  return table_->currentRow();
}

void ToolsPage::setAvailableOnly(bool availableOnly) {
  availableOnly_ = availableOnly;
  filter();
}

void ToolsPage::showSheet() {
  const int row = chosenTool();
  if (row < 0) {
    return;
  }
  const Tool& tool = tools_[static_cast<std::size_t>(row)];
  name_->setText(tool.name);
  state_->setText(tool.isLent() ? out_ : available_);
  borrower_->setText(orDash(tool.borrower));
  due_->setText(orDash(tool.due.toString(QLatin1String(dateFormat))));
  deposit_->setText(u"%1 €"_s.arg(tool.deposit));
  for (std::size_t i = 0; i < accessories_.size(); ++i) {
    accessories_[i]->setChecked((tool.accessories & (1U << i)) != 0);
  }
  const bool wasLent = !lendButton_->property("tag").toString().isEmpty();
  if (wasLent != tool.isLent()) {
    setContext(tool.isLent());
  }
}

void ToolsPage::filter() {
  for (int row = 0; row < table_->rowCount(); ++row) {
    const Tool& tool = tools_[static_cast<std::size_t>(row)];
    const int category = categories_->currentIndex() - 1;
    const bool fits = (category < 0 || static_cast<int>(tool.category) == category) &&
                      (!availableOnly_ || !tool.isLent()) &&
                      (tool.name.contains(search_->text(), Qt::CaseInsensitive) ||
                       tool.number.contains(search_->text(), Qt::CaseInsensitive));
    table_->setRowHidden(row, !fits);
  }
}

}  // namespace kob::demo

// SPDX-FileCopyrightText: The KOBTraduction authors
#include "UiKeys.h"

#include "XmlText.h"

#include <pugixml.hpp>

#include <QRegularExpression>

#include <algorithm>
#include <string_view>

namespace kob::fidelity {

namespace {

QString attribute(const pugi::xml_node& node, const char* name) {
  return QString::fromUtf8(node.attribute(name).value());
}

/// The name of a cell without the index that tells objects of one name apart; the index goes to `index`.
QString withoutIndex(const QString& name, int* index) {
  static const QRegularExpression pattern(QStringLiteral("^(.*)\\((\\d+)\\)$"),
                                          QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpressionMatch match = pattern.match(name);
  *index = match.hasMatch() ? match.captured(2).toInt() : -1;
  return match.hasMatch() ? match.captured(1) : name;
}

/// How many of the containers agree, counted from the inside.
int sharedContainers(const QStringList& chain, const QStringList& path) {
  int shared = 0;
  for (qsizetype c = chain.size() - 2, p = path.size() - 2; c >= 0 && p >= 0; --p) {
    int index = -1;
    if (chain[c] == path[p] || chain[c] == withoutIndex(path[p], &index)) {
      ++shared;
      --c;
    } else {
      break;
    }
  }
  return shared;
}

}  // namespace

bool UiKeys::read(const QString& path, QString* error) {
  pugi::xml_document document;
  if (!loadXml(document, path, error)) {
    return false;
  }
  const pugi::xml_node ui = document.child("ui");
  const pugi::xml_node form = ui.child("widget");
  if (!form) {
    *error = QStringLiteral("no form: there is no widget in a ui element");
    return false;
  }
  formClass_ = xmlText(ui.child("class"));
  isIdBased_ = std::string_view(ui.attribute("idbasedtr").value()) == "true";
  for (const pugi::xml_node& custom : ui.child("customwidgets").children("customwidget")) {
    extends_.insert(xmlText(custom.child("class")), xmlText(custom.child("extends")));
  }
  visit(form, -1, nullptr);
  return true;
}

void UiKeys::visit(const pugi::xml_node& node, int parent, int* page) {
  const int element = addElement(node, parent);
  for (const pugi::xml_node& property : node.children("property")) {
    addText(property, element, -1);
  }
  if (page != nullptr) {
    // What stands on the tab of a page belongs to the tabbed widget.
    for (const pugi::xml_node& label : node.children("attribute")) {
      addText(label, parent, *page);
    }
    ++*page;
  }

  int ownPage = 0;
  // Layouts, their items and action groups are no objects with texts: what is in them belongs to the element.
  const auto descend = [&](const auto& self, const pugi::xml_node& holder, bool isDirect) -> void {
    for (const pugi::xml_node& child : holder.children()) {
      const std::string_view name = child.name();
      if (name == "widget" || name == "action") {
        visit(child, element, isDirect && name == "widget" ? &ownPage : nullptr);
      } else if (name == "layout" || name == "item" || name == "actiongroup") {
        self(self, child, false);
      }
    }
  };
  descend(descend, node, true);
}

int UiKeys::addElement(const pugi::xml_node& node, int parent) {
  UiElement element;
  element.className = std::string_view(node.name()) == "action" ? QStringLiteral("QAction")
                                                                : baseClass(attribute(node, "class"));
  if (parent >= 0) {
    element.chain = elements_[static_cast<std::size_t>(parent)].chain;
  }
  const QString name = attribute(node, "name");
  element.chain.append(name.isEmpty() ? element.className : name);
  const int position = static_cast<int>(elements_.size());
  elementsByName_.insert(element.chain.last(), position);
  elements_.push_back(std::move(element));
  return position;
}

void UiKeys::addText(const pugi::xml_node& property, int element, int page) {
  const pugi::xml_node text = property.child("string");
  if (!text) {
    return;
  }
  UiText entry;
  entry.element = element;
  entry.property = attribute(property, "name");
  entry.page = page;
  entry.key = {formClass_, xmlText(text), attribute(text, "comment"), QString()};
  if (isIdBased_) {
    entry.key.id = attribute(text, "id");
    entry.key.source = entry.key.id;
  }
  const std::string_view notr = text.attribute("notr").value();
  entry.translatable = notr != "true" && notr != "yes";
  textsByName_.insert(elements_[static_cast<std::size_t>(element)].chain.last(),
                      static_cast<int>(texts_.size()));
  texts_.push_back(std::move(entry));
}

QString UiKeys::baseClass(QString className) const {
  // A class that claims to extend itself must not hold us up.
  for (qsizetype step = 0; step < extends_.size() && extends_.contains(className); ++step) {
    className = extends_.value(className);
  }
  return className;
}

const UiText* UiKeys::find(const QStringList& path, Entry entry, const QString& reference) const {
  if (path.size() >= 2 && entry == Entry::Caption) {
    int page = -1;
    if (withoutIndex(path.last(), &page) == path[path.size() - 2] && page >= 0) {
      const QStringList tabbed = path.first(path.size() - 1);
      if (const UiText* text =
              best(tabbed, {QStringLiteral("title"), QStringLiteral("label")}, page, reference)) {
        return text;
      }
    }
  }
  if (entry == Entry::ToolTip) {
    return best(path, {QStringLiteral("toolTip")}, -1, reference);
  }
  return best(path,
              {QStringLiteral("placeholderText"), QStringLiteral("text"), QStringLiteral("title"),
               QStringLiteral("windowTitle")},
              -1, reference);
}

const UiText* UiKeys::best(const QStringList& path, const QStringList& properties, int page,
                           const QString& reference) const {
  int index = -1;
  const QString stripped = withoutIndex(path.last(), &index);
  QString name = path.last();
  if (!elementsByName_.contains(name)) {
    name = stripped;
  }

  // The element that the index counts, among those of the same name in the same containers.
  const auto isCounted = [&](int element) {
    const QStringList& chain = elements_[static_cast<std::size_t>(element)].chain;
    int before = 0;
    for (int other = 0; other < element; ++other) {
      before += elements_[static_cast<std::size_t>(other)].chain == chain ? 1 : 0;
    }
    return before == index;
  };

  const UiText* found = nullptr;
  int foundScore = -1;
  const QList<int> candidates = textsByName_.values(name);
  for (auto position = candidates.crbegin(); position != candidates.crend(); ++position) {
    const UiText& text = texts_[static_cast<std::size_t>(*position)];
    const qsizetype rank = properties.indexOf(text.property);
    if (rank < 0 || text.page != page || text.key.source != reference) {
      continue;
    }
    const int shared = sharedContainers(elements_[static_cast<std::size_t>(text.element)].chain, path);
    const int score = shared * 16 + (index >= 0 && isCounted(text.element) ? 8 : 0) +
                      static_cast<int>(properties.size() - rank);
    if (score > foundScore) {
      found = &text;
      foundScore = score;
    }
  }
  return found;
}

QString UiKeys::toolkitContext(const QStringList& path) const {
  if (path.size() < 2) {
    return {};
  }
  int index = -1;
  QString holder = path[path.size() - 2];
  if (!elementsByName_.contains(holder)) {
    holder = withoutIndex(holder, &index);
  }
  const QList<int> holders = elementsByName_.values(holder);
  const bool isButtonBox = std::any_of(holders.begin(), holders.end(), [this](int element) {
    return elements_[static_cast<std::size_t>(element)].className == QLatin1String("QDialogButtonBox");
  });
  return isButtonBox ? QStringLiteral("QPlatformTheme") : QString();
}

}  // namespace kob::fidelity

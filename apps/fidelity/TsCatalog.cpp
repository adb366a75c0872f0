// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TsCatalog.h"

#include "XmlText.h"

#include <pugixml.hpp>

#include <string_view>

namespace kob::fidelity {

namespace {

/// U+0000 cannot stand in an XML file, so joined parts cannot be mistaken for others.
QString joined(const QString& context, const QString& source, const QString& comment) {
  return context + QChar(0) + source + QChar(0) + comment;
}

/// A text with a count has several forms, one without a count shows the first; variants by length are kept in
/// one text, as the toolkit keeps them.
QString translationText(const pugi::xml_node& translation) {
  const pugi::xml_node numerus = translation.child("numerusform");
  const pugi::xml_node holder = numerus ? numerus : translation;
  if (std::string_view(holder.attribute("variants").value()) != "yes") {
    return xmlText(holder);
  }
  QString text;
  for (const pugi::xml_node& variant : holder.children("lengthvariant")) {
    text += (text.isEmpty() ? QString() : QString(QChar(0x9C))) + xmlText(variant);
  }
  return text;
}

bool isReleased(const pugi::xml_node& translation) {
  const std::string_view type = translation.attribute("type").value();
  return type != "vanished" && type != "obsolete";
}

}  // namespace

bool TsCatalog::add(const QString& path, QString* error) {
  pugi::xml_document document;
  if (!loadXml(document, path, error)) {
    return false;
  }
  const pugi::xml_node ts = document.child("TS");
  if (!ts) {
    *error = QStringLiteral("no translation file: there is no TS element");
    return false;
  }
  if (language_.isEmpty()) {
    language_ = QString::fromUtf8(ts.attribute("language").value());
  }

  for (const pugi::xml_node& context : ts.children("context")) {
    const QString contextName = xmlText(context.child("name"));
    for (const pugi::xml_node& message : context.children("message")) {
      const QString source = xmlText(message.child("source"));
      const QString comment = xmlText(message.child("comment"));
      const QString bare = joined(contextName, source, QString());
      // An entry without a comment keeps those with one apart even when it has no translation itself.
      if (comment.isEmpty()) {
        hasBare_.insert(bare);
      }

      const pugi::xml_node translation = message.child("translation");
      const QString text = translationText(translation);
      if (text.isEmpty() || !isReleased(translation)) {
        continue;
      }
      if (const QString id = QString::fromUtf8(message.attribute("id").value());
          !id.isEmpty() && !byId_.contains(id)) {
        byId_.insert(id, text);
      }
      if (const QString key = joined(contextName, source, comment); !entries_.contains(key)) {
        entries_.insert(key, text);
      }
      if (!comment.isEmpty() && !contextName.isEmpty() && !firstCommented_.contains(bare)) {
        firstCommented_.insert(bare, text);
      }
    }
  }
  return true;
}

std::optional<QString> TsCatalog::translate(const TextKey& key) const {
  if (!key.id.isEmpty()) {
    const auto found = byId_.constFind(key.id);
    return found != byId_.cend() ? std::optional(*found) : std::nullopt;
  }
  if (const auto exact = entries_.constFind(joined(key.context, key.source, key.comment));
      exact != entries_.cend()) {
    return *exact;
  }
  const QString bare = joined(key.context, key.source, QString());
  if (const auto found = entries_.constFind(bare); found != entries_.cend()) {
    return *found;
  }
  if (hasBare_.contains(bare)) {
    return std::nullopt;
  }
  const auto first = firstCommented_.constFind(bare);
  return first != firstCommented_.cend() ? std::optional(*first) : std::nullopt;
}

}  // namespace kob::fidelity

// SPDX-FileCopyrightText: The KOBTraduction authors
#include "XmlText.h"

#include <pugixml.hpp>

#include <QFile>

#include <string_view>

namespace kob::fidelity {

bool loadXml(pugi::xml_document& document, const QString& path, QString* error) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    *error = QStringLiteral("cannot be read: %1").arg(file.errorString());
    return false;
  }
  const QByteArray bytes = file.readAll();
  const pugi::xml_parse_result result = document.load_buffer(
      bytes.constData(), static_cast<std::size_t>(bytes.size()), pugi::parse_default | pugi::parse_ws_pcdata);
  if (!result) {
    *error = QStringLiteral("not well-formed: %1 at byte %2")
                 .arg(QString::fromUtf8(result.description()))
                 .arg(static_cast<qlonglong>(result.offset));
    return false;
  }
  return true;
}

QString xmlText(const pugi::xml_node& element) {
  QString text;
  for (const pugi::xml_node& piece : element.children()) {
    if (piece.type() == pugi::node_pcdata || piece.type() == pugi::node_cdata) {
      text += QString::fromUtf8(piece.value());
    } else if (std::string_view(piece.name()) == "byte") {
      const QString number = QString::fromUtf8(piece.attribute("value").value());
      const bool isHex = number.startsWith(QLatin1Char('x'));
      text += QChar((isHex ? number.mid(1) : number).toUShort(nullptr, isHex ? 16 : 10));
    }
  }
  return text;
}

}  // namespace kob::fidelity

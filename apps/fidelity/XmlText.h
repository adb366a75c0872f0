// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>

namespace pugi {
class xml_document;
class xml_node;
}  // namespace pugi

namespace kob::fidelity {

/// Reads an XML file with every blank of its texts kept. False, and a sentence in `error`, when it cannot be
/// read or is not well-formed.
bool loadXml(pugi::xml_document& document, const QString& path, QString* error);

/// The text inside an element, as the toolkit's readers see it: all of its pieces, with `<byte value="x1b"/>`
/// standing for a character that XML cannot hold.
QString xmlText(const pugi::xml_node& element);

}  // namespace kob::fidelity

// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace bench {

/// One translated text for the catalogs of the other translation systems. UTF-8.
struct Message {
  std::string context;
  std::string source;
  std::string translation;
};

/// Compiles a Qt catalog (.qm) with lrelease into `folder`; the file's name, or "" when that tool is missing
/// or fails.
QString compileQtCatalog(const std::vector<Message>& messages, const QString& folder, const QString& name);

/// Compiles a gettext catalog (.mo) with msgfmt as `folder`/LANGUAGE/LC_MESSAGES/`domain`.mo, the key being
/// the source alone; whether that went well.
bool compileGettextCatalog(const std::vector<Message>& messages, const QString& folder,
                           const QString& language, const QString& domain);

/// Writes both versions of one language as sources of catalogs for the two merge commands below, the context
/// of each text as its context there.
bool writeMergeCatalogs(const std::vector<Message>& own, const std::vector<Message>& other,
                        const QString& folder);
/// Fill the first version's gaps from the second, into a third file; whether that went well.
bool runMsgmerge(const QString& folder);
bool runLconvert(const QString& folder);
/// Runs a command to its end; whether it ended with status 0. What it says is shown when not.
bool runTool(const QString& tool, const QStringList& arguments);

}  // namespace bench

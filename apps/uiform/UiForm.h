// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QByteArray>
#include <QString>
#include <QWidget>

#include <memory>

namespace kob {

/// A live form from a Qt Designer file, as the toolkit's loader makes it: translated by what is installed,
/// promoted widgets as the class that they extend. Null, and a sentence in `error` (which may be null), when
/// the file cannot be read or the loader makes no form of it. GUI thread only.
std::unique_ptr<QWidget> loadUiForm(const QString& path, QString* error = nullptr);

/// The file with fully scoped enumerators ("Qt::Orientation::Vertical") in the short spelling
/// ("Qt::Vertical") that every version of the loader reads.
QByteArray withShortEnumerators(const QByteArray& ui);

}  // namespace kob

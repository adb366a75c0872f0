// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QImage>
#include <QStringList>

class QWidget;

namespace kob::qt::testing {

/// What is wrong with how a window looks, a sentence for each fault: a widget that is cut off or smaller than
/// what stands on it, widgets that overlap, a text that cannot be read on its ground, a blank picture.
/// `picture` is the window's, in any scale.
QStringList faultsOf(const QWidget& window, const QImage& picture);

}  // namespace kob::qt::testing

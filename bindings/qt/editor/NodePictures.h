// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/ImageList.h>

#include <QIcon>

namespace kob::qt {

/// The picture of a node by its number in the image list, drawn anew for every size; none for another number.
/// Its colours stand out from light and from dark.
QIcon nodePicture(int number);

/// The pictures of the nodes are the same for all trees.
class QtImageList final : public ImageList {};

}  // namespace kob::qt

// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Controls.h"

namespace kob::win32 {

/// The side of a picture, in pixels at a scaling of 100 %.
inline constexpr int nodePictureSize = 16;

/// The pictures of the nodes of a tree (ImageList.h), picture n at n - 1, so many pixels wide; null without
/// memory for them. The caller destroys the list.
HIMAGELIST nodePictures(const Controls& controls, int size);

}  // namespace kob::win32

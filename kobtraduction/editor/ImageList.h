// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>

namespace kob {

/// The pictures of the nodes of a tree, numbered from 1; the toolkit draws them. In the editor:
///
///   1 a cell without texts, and every top-level cell   2 a control   3 a control with Contexte
///   4 a message   5 a message with Contexte
class KOB_EXPORT ImageList {
 public:
  ImageList() = default;
  ImageList(const ImageList&) = delete;
  ImageList& operator=(const ImageList&) = delete;
  virtual ~ImageList();
};

}  // namespace kob

// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/LineEnds.h>

#include <algorithm>
#include <cstddef>

namespace kob {

namespace {

constexpr char16_t symbolOfNul = 0x2400;

bool isLineEnd(char16_t unit) {
  // The last two mark the frames of a document.
  return unit == u'\r' || unit == u'\n' || unit == paragraphSeparator || unit == 0xfdd0 || unit == 0xfdd1;
}

/// How many units the character or line end at a place has.
std::size_t lengthAt(TextView text, std::size_t place) {
  return text[place] == u'\r' && place + 1 < text.size() && text[place + 1] == u'\n' ? 2 : 1;
}

std::size_t lengthBefore(TextView text, std::size_t end) {
  return text[end - 1] == u'\n' && end > 1 && text[end - 2] == u'\r' ? 2 : 1;
}

char16_t shownUnit(char16_t unit) {
  if (unit == u'\0') {
    return symbolOfNul;
  }
  return isLineEnd(unit) ? paragraphSeparator : unit;
}

TextView firstLineEnd(TextView text, TextView otherwise) {
  for (std::size_t place = 0; place < text.size(); ++place) {
    if (text[place] == u'\r' || text[place] == u'\n') {
      return text.substr(place, lengthAt(text, place));
    }
  }
  return otherwise;
}

}  // namespace

Text shownInDocument(TextView text) {
  Text shown;
  shown.reserve(text.size());
  for (std::size_t place = 0; place < text.size(); place += lengthAt(text, place)) {
    shown += shownUnit(text[place]);
  }
  return shown;
}

Text editedInDocument(TextView before, TextView shown, TextView newLineEnd) {
  std::size_t head = 0;
  std::size_t shownHead = 0;
  while (head < before.size() && shownHead < shown.size() && shownUnit(before[head]) == shown[shownHead]) {
    head += lengthAt(before, head);
    ++shownHead;
  }
  std::size_t tail = before.size();
  std::size_t shownTail = shown.size();
  while (tail > head && shownTail > shownHead && shownUnit(before[tail - 1]) == shown[shownTail - 1]) {
    tail -= lengthBefore(before, tail);
    --shownTail;
  }
  const TextView lineEnd = firstLineEnd(before, newLineEnd);
  Text edited(before.substr(0, head));
  for (const char16_t unit : shown.substr(shownHead, shownTail - shownHead)) {
    if (unit == paragraphSeparator) {
      edited += lineEnd;
    } else {
      edited += unit;
    }
  }
  edited += before.substr(tail);
  return edited;
}

}  // namespace kob

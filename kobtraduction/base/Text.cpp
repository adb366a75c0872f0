// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Text.h>

#include <algorithm>
#include <cstring>

namespace kob {

namespace {

/// Four code units side by side, so that ordinary (ASCII) names are folded and compared four at a time.
using Word = std::uint64_t;
constexpr std::size_t unitsPerWord = sizeof(Word) / sizeof(char16_t);
constexpr Word everyUnit = 0x0001'0001'0001'0001;

Word loadWord(const char16_t* units) noexcept {
  Word word = 0;
  std::memcpy(&word, units, sizeof word);
  return word;
}

bool isAscii(Word word) noexcept {
  return (word & (everyUnit * 0xFF80)) == 0;
}

/// Upper-cases four ASCII units: bit 7 of a unit is set where it is at least 'a' and not beyond 'z', and
/// clearing 0x20 there turns the letter over. No sum carries into the next unit.
Word upperAscii(Word word) noexcept {
  const Word atLeastA = word + everyUnit * (0x80 - u'a');
  const Word beyondZ = word + everyUnit * (0x80 - (u'z' + 1));
  const Word isLower = (atLeastA & ~beyondZ) & (everyUnit * 0x80);
  return word ^ (isLower >> 2);
}

Word upperOther(const char16_t* units) noexcept {
  char16_t folded[unitsPerWord];
  std::transform(units, units + unitsPerWord, folded, upperUnit);
  return loadWord(folded);
}

inline Word upperWord(const char16_t* units) noexcept {
  const Word word = loadWord(units);
  return isAscii(word) ? upperAscii(word) : upperOther(units);
}

/// The units behind the last whole word of a text: the last word's worth of a text that has one, else what
/// there is, filled up with zeros.
Word tail(TextView text) noexcept {
  if (text.size() >= unitsPerWord) {
    return loadWord(text.data() + text.size() - unitsPerWord);
  }
  char16_t units[unitsPerWord] = {};
  std::copy(text.begin(), text.end(), units);
  return loadWord(units);
}

/// The same, upper-cased.
Word upperTail(TextView text) noexcept {
  const Word word = tail(text);
  if (isAscii(word)) {
    return upperAscii(word);
  }
  char16_t units[unitsPerWord];
  std::memcpy(units, &word, sizeof word);
  return upperOther(units);
}

bool equalWord(const char16_t* a, const char16_t* b) noexcept {
  // Most texts that are compared are spelled alike.
  return loadWord(a) == loadWord(b) || upperWord(a) == upperWord(b);
}

/// Four units as a hash sees them: the same for words that are equal once upper-cased. It need not tell all
/// others apart, so every letter is taken over to the lower case by its bit, whatever else has that bit.
Word foldedWord(const char16_t* units) noexcept {
  const Word word = loadWord(units);
  return (isAscii(word) ? word : upperOther(units)) | everyUnit * 0x20;
}

Word mix(Word hash, Word word) noexcept {
  hash = (hash ^ word) * 0x9E37'79B9'7F4A'7C15;
  return hash ^ (hash >> 29);
}

}  // namespace

Text upper(TextView text) {
  Text result(text.size(), u'\0');
  std::transform(text.begin(), text.end(), result.begin(), upperUnit);
  return result;
}

bool equalUpper(TextView a, TextView b) noexcept {
  if (a.size() != b.size()) {
    return false;
  }
  const std::size_t whole = a.size() - a.size() % unitsPerWord;
  for (std::size_t i = 0; i < whole; i += unitsPerWord) {
    if (!equalWord(a.data() + i, b.data() + i)) {
      return false;
    }
  }
  return whole == a.size() || upperTail(a) == upperTail(b);
}

bool equalToUpper(TextView text, TextView uppered) noexcept {
  if (text.size() != uppered.size()) {
    return false;
  }
  const std::size_t whole = text.size() - text.size() % unitsPerWord;
  for (std::size_t i = 0; i < whole; i += unitsPerWord) {
    if (upperWord(text.data() + i) != loadWord(uppered.data() + i)) {
      return false;
    }
  }
  return whole == text.size() || upperTail(text) == tail(uppered);
}

bool lessUpper(TextView a, TextView b) noexcept {
  // Siblings often begin alike.
  const std::size_t common = std::min(a.size(), b.size());
  std::size_t i = 0;
  while (i + unitsPerWord <= common && equalWord(a.data() + i, b.data() + i)) {
    i += unitsPerWord;
  }
  for (; i < common; ++i) {
    if (a[i] != b[i] && upperUnit(a[i]) != upperUnit(b[i])) {
      return upperUnit(a[i]) < upperUnit(b[i]);
    }
  }
  return a.size() < b.size();
}

std::uint32_t hashUpper(TextView text) noexcept {
  Word hash = text.size();
  const std::size_t whole = text.size() - text.size() % unitsPerWord;
  for (std::size_t i = 0; i < whole; i += unitsPerWord) {
    hash = mix(hash, foldedWord(text.data() + i));
  }
  if (whole != text.size()) {
    hash = mix(hash, text.size() > unitsPerWord ? foldedWord(text.data() + text.size() - unitsPerWord)
                                                : upperTail(text) | everyUnit * 0x20);
  }
  return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

Text decimal(std::int64_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

std::string toUtf8(TextView text) {
  std::string result;
  const auto put = [&result](unsigned byte) { result.push_back(static_cast<char>(byte)); };
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t point = text[i];
    if (point >= 0xD800 && point <= 0xDFFF) {
      const bool isPair =
          point < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
      point = isPair ? 0x10000 + ((point - 0xD800) << 10) + (text[i + 1] - 0xDC00) : 0xFFFD;
      i += isPair ? 1 : 0;
    }
    if (point < 0x80) {
      put(point);
    } else if (point < 0x800) {
      put(0xC0 | (point >> 6));
      put(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
      put(0xE0 | (point >> 12));
      put(0x80 | ((point >> 6) & 0x3F));
      put(0x80 | (point & 0x3F));
    } else {
      put(0xF0 | (point >> 18));
      put(0x80 | ((point >> 12) & 0x3F));
      put(0x80 | ((point >> 6) & 0x3F));
      put(0x80 | (point & 0x3F));
    }
  }
  return result;
}

}  // namespace kob

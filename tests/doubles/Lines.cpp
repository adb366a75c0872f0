// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Lines.h"

#include "Utf8.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace kob::testing {

namespace {

std::vector<std::string> rawLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string line(text.substr(0, end));
    while (!line.empty() && (line.back() == ' ' || line.back() == '\r')) {
      line.pop_back();
    }
    lines.push_back(std::move(line));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

std::size_t indentation(const std::string& line) {
  return std::min(line.find_first_not_of(' '), line.size());
}

/// Reads one word from the front of `rest`.
class WordReader {
 public:
  WordReader(const Line& line, std::string_view& rest) : line_(line), rest_(rest) {}

  Word read() {
    Word word;
    if (rest_.front() == '"') {
      word.isText = true;
      word.value = quotedText();
      word.key = toUtf8(word.value);
      return word;
    }
    const std::size_t end = std::min(rest_.find_first_of(" ="), rest_.size());
    word.key = rest_.substr(0, end);
    rest_.remove_prefix(end);
    if (rest_.empty() || rest_.front() == ' ') {
      word.value = fromUtf8(word.key);
      return word;
    }
    rest_.remove_prefix(1);
    word.hasValue = true;
    if (!rest_.empty() && rest_.front() == '"') {
      word.isText = true;
      word.value = quotedText();
    } else {
      const std::size_t valueEnd = std::min(rest_.find(' '), rest_.size());
      word.value = fromUtf8(rest_.substr(0, valueEnd));
      rest_.remove_prefix(valueEnd);
    }
    return word;
  }

 private:
  Text quotedText() {
    rest_.remove_prefix(1);
    Text text;
    std::string plain;
    for (;;) {
      if (rest_.empty()) {
        badLine(line_, "a quote does not end");
      }
      const char first = take();
      if (first == '"') {
        return text + fromUtf8(plain);
      }
      if (first != '\\') {
        plain.push_back(first);
        continue;
      }
      text += fromUtf8(plain);
      plain.clear();
      text += escaped();
    }
  }

  char take() {
    if (rest_.empty()) {
      badLine(line_, "the line ends within a text");
    }
    const char first = rest_.front();
    rest_.remove_prefix(1);
    return first;
  }

  char16_t escaped() {
    switch (const char letter = take()) {
      case 'n':
        return u'\n';
      case 'r':
        return u'\r';
      case 't':
        return u'\t';
      case 'u':
        return unit();
      default:
        return static_cast<unsigned char>(letter);
    }
  }

  char16_t unit() {
    unsigned value = 0;
    const std::size_t end = rest_.find('}');
    if (rest_.empty() || rest_.front() != '{' || end == std::string_view::npos ||
        std::from_chars(rest_.data() + 1, rest_.data() + end, value, 16).ptr != rest_.data() + end) {
      badLine(line_, "\\u needs {hexadecimal digits}");
    }
    rest_.remove_prefix(end + 1);
    return static_cast<char16_t>(value);
  }

  const Line& line_;
  std::string_view& rest_;
};

bool isOneWord(TextView name) {
  return !name.empty() && name.front() != u'"' && name.front() != u'#' && name.front() != u'.' &&
         name.front() != u'(' && std::all_of(name.begin(), name.end(), [](char16_t unit) {
           return unit > u' ' && unit != u'=' && (unit < 0xD800 || unit > 0xDFFF) && unit != u'\\';
         });
}

}  // namespace

std::vector<Line> linesOf(std::string_view text) {
  std::vector<Line> lines;
  std::vector<std::size_t> above;
  int number = 0;
  for (const std::string& raw : rawLines(text)) {
    ++number;
    const std::size_t indent = indentation(raw);
    if (indent == raw.size() || raw[indent] == '#') {
      continue;
    }
    while (!above.empty() && above.back() >= indent) {
      above.pop_back();
    }
    lines.push_back({number, static_cast<int>(above.size()), raw.substr(indent)});
    above.push_back(indent);
  }
  return lines;
}

std::string dedent(std::string_view text) {
  std::vector<std::string> lines = rawLines(text);
  while (!lines.empty() && lines.front().empty()) {
    lines.erase(lines.begin());
  }
  while (!lines.empty() && lines.back().empty()) {
    lines.pop_back();
  }
  std::size_t common = std::string::npos;
  for (const std::string& line : lines) {
    common = line.empty() ? common : std::min(common, indentation(line));
  }
  std::string result;
  for (const std::string& line : lines) {
    result += line.empty() ? line : line.substr(common);
    result += '\n';
  }
  return result;
}

std::vector<Word> wordsOf(const Line& line) {
  std::vector<Word> words;
  std::string_view rest = line.text;
  WordReader reader(line, rest);
  while (true) {
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    if (rest.empty()) {
      return words;
    }
    words.push_back(reader.read());
  }
}

std::string quoted(TextView text) {
  std::string result = "\"";
  Text plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    const bool startsPair = unit >= 0xD800 && unit < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
                            text[i + 1] < 0xE000;
    if (startsPair) {
      plain += text.substr(i++, 2);
      continue;
    }
    if (unit >= u' ' && unit != u'"' && unit != u'\\' && (unit < 0xD800 || unit > 0xDFFF)) {
      plain += unit;
      continue;
    }
    result += toUtf8(plain);
    plain.clear();
    switch (unit) {
      case u'"':
        result += "\\\"";
        break;
      case u'\\':
        result += "\\\\";
        break;
      case u'\n':
        result += "\\n";
        break;
      case u'\r':
        result += "\\r";
        break;
      case u'\t':
        result += "\\t";
        break;
      default: {
        char digits[8];
        const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<unsigned>(unit), 16);
        result += "\\u{" + std::string(digits, end.ptr) + "}";
      }
    }
  }
  return result + toUtf8(plain) + "\"";
}

std::string nameText(TextView name) {
  return isOneWord(name) ? toUtf8(name) : quoted(name);
}

std::string valueText(const Value& value) {
  if (value.isNothing()) {
    return "nothing";
  }
  if (const Text* const text = value.text()) {
    return quoted(*text);
  }
  const std::optional<Text> text = value.asText();
  if (!text) {
    return "(object)";
  }
  return *text == u"True" ? "true" : *text == u"False" ? "false" : toUtf8(*text);
}

Value valueOf(const Word& word) {
  if (word.isText) {
    return word.value;
  }
  const std::string text = toUtf8(word.value);
  if (text == "nothing") {
    return {};
  }
  if (text == "true" || text == "false") {
    return text == "true";
  }
  const char* const end = text.data() + text.size();
  std::int32_t integer = 0;
  if (const auto read = std::from_chars(text.data(), end, integer);
      read.ec == std::errc() && read.ptr == end) {
    return integer;
  }
  double number = 0;
  if (const auto read = std::from_chars(text.data(), end, number);
      read.ec == std::errc() && read.ptr == end) {
    return number;
  }
  throw std::runtime_error("no value: " + text + " (texts stand in quotes)");
}

void badLine(const Line& line, std::string_view why) {
  throw std::runtime_error("line " + std::to_string(line.number) + ": " + std::string(why) + ": " +
                           line.text);
}

}  // namespace kob::testing

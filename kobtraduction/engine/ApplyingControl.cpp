// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Fetch.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/engine/HostModes.h>
#include <kobtraduction/model/KOBCellTraduction.h>

#include <cmath>
#include <cstring>
#include <exception>
#include <limits>
#include <vector>

namespace kob {

namespace {

/// The text of an entry in a language, or its reference text when that is "".
TextView textOf(const KOBTraductionObj& entry, std::int32_t langue) {
  const TextList& texts = entry.texts();
  const TextView text = texts.Item(langue);
  return text.empty() ? texts.Item(1) : text;
}

enum class TextRole : std::uint8_t { Caption, ToolTip, Other };

/// What an entry's name, case ignored, says of its text. Most are spelled as the component spells them.
TextRole roleOf(TextView name) {
  constexpr TextView caption = u"Caption";
  constexpr TextView toolTip = u"ToolTip";
  if (name.size() != caption.size()) {
    return TextRole::Other;
  }
  // Lengths that the compiler knows make each comparison a few instructions.
  static_assert(caption.size() == toolTip.size());
  constexpr std::size_t bytes = caption.size() * sizeof(char16_t);
  if (std::memcmp(name.data(), caption.data(), bytes) == 0) {
    return TextRole::Caption;
  }
  if (std::memcmp(name.data(), toolTip.data(), bytes) == 0) {
    return TextRole::ToolTip;
  }
  if (equalToUpper(name, u"CAPTION")) {
    return TextRole::Caption;
  }
  return equalToUpper(name, u"TOOLTIP") ? TextRole::ToolTip : TextRole::Other;
}

/// A text that stays whatever becomes of the model.
class Copy {
 public:
  explicit Copy(TextView text) {
    if (text.size() > usualLength) {
      long_ = text;
      text_ = long_;
    } else {
      text.copy(short_, text.size());
      text_ = TextView(short_, text.size());
    }
  }
  Copy(const Copy&) = delete;
  Copy& operator=(const Copy&) = delete;

  TextView text() const noexcept { return text_; }

 private:
  /// Tool tips are seldom longer, and are then copied without an allocation.
  static constexpr std::size_t usualLength = 120;

  char16_t short_[usualLength];
  Text long_;
  TextView text_;
};

/// The texts that a cell, and then its context cell, have for one control.
struct ControlTexts {
  TextView caption;
  TextView toolTip;
  bool hasCaption = false;
  bool hasToolTip = false;

  /// A later entry of the same name overrides an earlier one.
  void readFrom(const KOBCellTraduction& cell, std::int32_t langue) {
    for (const auto& entry : mustBeSet(cell.entries())) {
      const TextRole role = roleOf(mustBeSet(entry).nom());
      if (role == TextRole::Caption) {
        hasCaption = true;
        caption = textOf(*entry, langue);
      } else if (role == TextRole::ToolTip) {
        hasToolTip = true;
        toolTip = textOf(*entry, langue);
      }
    }
  }
};

/// The captions that a cell's children `stem(0)`, `stem(1)`, ... have for the tabs; others are left as they
/// are.
void readTabs(const KOBCellTraduction& cell, TextView stem, std::int32_t langue, std::int32_t count,
              std::vector<Text>& captions) {
  for (std::int32_t i = 0; i < count; ++i) {
    const auto tabCell = cell.GetCell(Text(stem) + u'(' + decimal(i) + u')');
    if (tabCell == nullptr) {
      continue;
    }
    // Tool tips are read too, and written nowhere: a text that cannot be read still ends the call.
    ControlTexts texts;
    texts.readFrom(*tabCell, langue);
    if (texts.hasCaption) {
      captions.resize(std::max<std::size_t>(captions.size(), static_cast<std::size_t>(i) + 1));
      captions[static_cast<std::size_t>(i)] = texts.caption;
    }
  }
}

void translateTabs(const KOBCellTraduction& cell, const HostRef& control, std::int32_t langue,
                   TextView context, bool keepCaption) {
  const std::int32_t count = must(readLong(control, Property::Tabs));
  std::vector<Text> captions;
  readTabs(cell, cell.nom(), langue, count, captions);
  if (!context.empty()) {
    if (const auto contextCell = cell.GetCell(context)) {
      readTabs(*contextCell, cell.nom(), langue, count, captions);
    }
  }
  const std::int32_t last = must(readLong(control, Property::Tabs));
  for (std::int32_t i = 0; i < last && !keepCaption; ++i) {
    if (i >= count) {
      throw Failure(FailureKind::InvalidIndex);
    }
    // A tab for which the model has nothing is blanked: a strip shows the model's captions or none.
    const auto position = static_cast<std::size_t>(i);
    must(control->setIndexed(Property::TabCaption, i,
                             position < captions.size() ? captions[position] : Text()));
  }
}

/// Multiplies what the control has now, so that applying twice scales twice; hosts rely on it.
void scale(const HostRef& control, Property property, double factor) {
  if (factor <= 0 || factor == 1.0) {
    return;
  }
  const std::optional<double> current = readDouble(control, property);
  if (!current) {
    return;
  }
  const double product = std::trunc(*current * factor);
  const bool isLong = product >= std::numeric_limits<std::int32_t>::min() &&
                      product <= std::numeric_limits<std::int32_t>::max();
  write(control, property, isLong ? Value(static_cast<std::int32_t>(product)) : Value(product));
}

void translate(const KOBCellTraduction& cell, const HostRef& control, std::int32_t langue, TextView context,
               bool keepToolTip, bool keepCaption) {
  // Skip mode.
  double tabs = 0;
  if (mayHave(control, Property::Tabs)) {
    skip(tabs, readDouble(control, Property::Tabs));
  }

  // Handler mode, up to the writes.
  if (tabs > 0) {
    translateTabs(cell, control, langue, context, keepCaption);
    return;
  }
  if (cell.TypeFeuille() != 2) {
    return;
  }
  ControlTexts texts;
  texts.readFrom(cell, langue);
  double leftFactor = cell.leftFactor(langue).value();
  double widthFactor = cell.widthFactor(langue).value();
  std::shared_ptr<KOBCellTraduction> contextCell;
  if (!context.empty()) {
    contextCell = cell.GetCell(context);
    if (contextCell != nullptr) {
      texts.readFrom(*contextCell, langue);
      leftFactor = contextCell->leftFactor(langue).value();
      widthFactor = contextCell->widthFactor(langue).value();
    }
  }

  // Skip mode. The host may change the model while it takes the caption, so the tool tip is copied before.
  fetch(texts.caption.data());
  const Copy toolTip(texts.toolTip);
  if (!keepCaption && texts.hasCaption) {
    write(control, Property::Caption, texts.caption);
  }
  if (!keepToolTip && texts.hasToolTip) {
    write(control, Property::ToolTipText, toolTip.text());
  }
  scale(control, Property::Left, leftFactor);
  scale(control, Property::Width, widthFactor);
}

}  // namespace

void KOBCellTraduction::TraduitCtrl(const HostRef& Ctrl, std::int32_t langue, TextView contexte,
                                    bool keepToolTip, bool keepCaption) const {
  try {
    translate(*this, Ctrl, langue, contexte, keepToolTip, keepCaption);
  } catch (const std::exception&) {
    Global_Util::messageBoxes().notice(u"Erreur Traduit Controle");
  }
}

}  // namespace kob

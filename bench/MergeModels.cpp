// SPDX-FileCopyrightText: The KOBTraduction authors
#include "MergeModels.h"

#include "Words.h"

#include <QString>

#include <cstdint>

namespace bench {

namespace {

constexpr int perFrame = 10;
constexpr int perForm = 100;

/// A number that looks random and is the same in each run.
std::uint32_t scrambled(std::uint32_t number) {
  number = (number ^ (number >> 16)) * 0x7FEB352D;
  number = (number ^ (number >> 15)) * 0x846CA68B;
  return number ^ (number >> 16);
}

bool isMissing(MergeModels::Version version, int entry, int language) {
  if (language == 1) {
    return false;
  }
  const bool isOwn = version == MergeModels::Version::Own;
  const auto seed = static_cast<std::uint32_t>(entry) * 16 + static_cast<std::uint32_t>(language) * 2;
  return scrambled(seed + (isOwn ? 0 : 1)) % 4 == 0;
}

std::string formName(int entry) {
  return "FrmCustomer" + std::to_string(entry / perForm);
}

std::string frameName(int entry) {
  return "fraAddress" + std::to_string(entry % perForm / perFrame);
}

std::string controlName(int entry) {
  return "cmdAction" + std::to_string(entry % perFrame);
}

}  // namespace

kob::Text utf16(const std::string& text) {
  return QString::fromStdString(text).toStdU16String();
}

int MergeModels::number(int entry) const {
  return static_cast<int>(scrambled(static_cast<std::uint32_t>(entry)) %
                          static_cast<std::uint32_t>((entries_ + 1) / 2));
}

std::string MergeModels::path(int entry) const {
  return formName(entry) + '\\' + frameName(entry) + '\\' + controlName(entry);
}

std::string MergeModels::text(Version version, int entry, int language) const {
  if (isMissing(version, entry, language)) {
    return {};
  }
  const int own = number(entry);
  return textFor(own % 2 == 0 ? TextKind::Caption : TextKind::ToolTip, own, language);
}

std::unique_ptr<kob::KOBModeleTraduction> MergeModels::model(Version version) const {
  auto model = std::make_unique<kob::KOBModeleTraduction>();
  std::shared_ptr<kob::KOBCellTraduction> form;
  std::shared_ptr<kob::KOBCellTraduction> frame;
  for (int i = 0; i < entries_; ++i) {
    if (i % perForm == 0) {
      form = model->Racine()->AddNoeuds(utf16(formName(i)));
    }
    if (i % perFrame == 0) {
      frame = form->AddNoeuds(utf16(frameName(i)));
    }
    std::int32_t failed = 0;
    const auto control =
        frame->AddCtrl(utf16(controlName(i)), {}, utf16(text(version, i, 1)), 1, 1, failed, {}, {});
    const auto entry = control->ColTraduction()->Item(1);
    for (int language = 2; language <= languages; ++language) {
      entry->ChangeTraduction(utf16(text(version, i, language)), language);
    }
  }
  return model;
}

std::vector<Message> MergeModels::messages(Version version, int language) const {
  std::vector<Message> messages;
  messages.reserve(static_cast<std::size_t>(entries_));
  for (int i = 0; i < entries_; ++i) {
    messages.push_back({path(i), text(version, i, 1), text(version, i, language)});
  }
  return messages;
}

MergeRecords::MergeRecords(const MergeModels& models, MergeModels::Version version)
    : version_(version), records_(static_cast<std::size_t>(models.entries())) {
  for (int i = 0; i < models.entries(); ++i) {
    Record& record = records_[static_cast<std::size_t>(i)];
    record.path = utf16(models.path(i));
    for (int language = 1; language <= MergeModels::languages; ++language) {
      record.texts[static_cast<std::size_t>(language) - 1] = utf16(models.text(version, i, language));
    }
  }
}

void MergeRecords::restore() {
  for (std::size_t i = 0; i < records_.size(); ++i) {
    for (int language = 2; language <= MergeModels::languages; ++language) {
      if (isMissing(version_, static_cast<int>(i), language)) {
        records_[i].texts[static_cast<std::size_t>(language) - 1] = kob::Text();
      }
    }
  }
}

}  // namespace bench

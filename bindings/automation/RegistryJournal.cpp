// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RegistryJournal.h"

#include "Registry.h"

#include <utility>

namespace kob::automation {

RegistryJournal::~RegistryJournal() {
  for (auto step = steps_.rbegin(); step != steps_.rend(); ++step) {
    try {
      if (!step->name) {
        RegDeleteKeyW(root_, step->key.c_str());
        continue;
      }
      const RegistryKey key = RegistryKey::open(root_, step->key, KEY_WRITE);
      if (step->before) {
        key.setText(*step->name, *step->before);
      } else {
        RegDeleteValueW(key.get(), step->name->c_str());
      }
    } catch (...) {
      // The others can be put back all the same.
    }
  }
}

void RegistryJournal::make(const std::wstring& key) {
  // One level after the other, so that it is known which were made.
  for (std::size_t end = key.find(L'\\');; end = key.find(L'\\', end + 1)) {
    const std::wstring upper = key.substr(0, end);
    if (!RegistryKey::open(root_, upper)) {
      RegistryKey::make(root_, upper);
      steps_.push_back({upper, std::nullopt, std::nullopt});
    }
    if (end == std::wstring::npos) {
      return;
    }
  }
}

void RegistryJournal::set(const std::wstring& key, const std::wstring& name, const std::wstring& value) {
  make(key);
  const RegistryKey opened = RegistryKey::open(root_, key, KEY_READ | KEY_WRITE);
  std::optional<std::wstring> before = opened.text(name);
  opened.setText(name, value);
  steps_.push_back({key, name, std::move(before)});
}

}  // namespace kob::automation

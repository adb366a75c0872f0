// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/engine/GatheredControls.h>
#include <kobtraduction/engine/HostModes.h>
#include <kobtraduction/model/KOBCtrlTraduction.h>

#include <algorithm>
#include <memory>

namespace kob {

namespace {

std::shared_ptr<KOBCtrlTraduction> makeRecord(const HostRef& target, const HostRef& container,
                                              RecordBinding binding) {
  auto record = std::make_shared<KOBCtrlTraduction>();
  record->setCaption(must(readText(target, Property::Caption)));
  record->setToolTipText(must(readText(target, Property::ToolTipText)));
  record->Name = must(readText(target, Property::Key));
  if (binding == RecordBinding::Bound) {
    record->m_Ctrl = target;
  }
  record->Container = container;
  return record;
}

HostRef mustBeObject(const std::optional<Value>& value) {
  return must(must(value).asObject());
}

void gatherButtons(const HostRef& toolBar, const HostRef& buttons, RecordBinding binding,
                   std::vector<HostRef>& gathered) {
  const std::int32_t count = must(readLong(buttons, Property::Count));
  for (std::int32_t i = 1; i <= count; ++i) {
    const HostRef button = mustBeObject(buttons->item(i));
    const std::shared_ptr<KOBCtrlTraduction> record = makeRecord(button, toolBar, binding);
    gathered.push_back(record);
    const HostRef menus = must(readObject(button, Property::ButtonMenus));
    const std::int32_t menuCount = must(readLong(menus, Property::Count));
    for (std::int32_t j = 1; j <= menuCount; ++j) {
      const HostRef menu = mustBeObject(button->getIndexed(Property::ButtonMenus, j));
      gathered.push_back(makeRecord(menu, record, binding));
    }
  }
}

bool mayHaveMembers(const HostRef& control) noexcept {
  return mayHave(control, Property::Controls) || mayHave(control, Property::Buttons);
}

}  // namespace

std::vector<HostRef> gatherControls(const HostRef& form, RecordBinding binding) {
  std::vector<HostRef> gathered;
  HostRef controls;
  skip(controls, readObject(form, Property::Controls));
  std::vector<HostRef> members;
  if (controls != nullptr) {
    skip(members, controls->enumerate());
  }
  if (std::none_of(members.begin(), members.end(), mayHaveMembers)) {
    return members;
  }
  gathered.reserve(members.size());
  for (HostRef& control : members) {
    HostRef subControls;
    HostRef buttons;
    if (mayHaveMembers(control)) {
      skip(subControls, readObject(control, Property::Controls));
      skip(buttons, readObject(control, Property::Buttons));
    }
    if (buttons == nullptr) {
      gathered.push_back(std::move(control));
    } else {
      gathered.push_back(control);
    }
    if (subControls != nullptr) {
      const std::vector<HostRef> inner = must(subControls->enumerate());
      gathered.insert(gathered.end(), inner.begin(), inner.end());
    }
    if (buttons != nullptr) {
      gatherButtons(control, buttons, binding, gathered);
    }
  }
  return gathered;
}

}  // namespace kob

// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TranslatedModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <algorithm>
#include <cstddef>
#include <stdexcept>

namespace bench {

namespace {

kob::Text utf16(const std::string& text) {
  return kob::qt::toText(QString::fromStdString(text));
}

void fillIn(kob::KOBCellTraduction& cell, int number) {
  for (const auto& entry : *cell.ColTraduction()) {
    const TextKind kind = entry->nom() == u"Caption" ? TextKind::Caption : TextKind::ToolTip;
    for (int language = 2; language <= 3; ++language) {
      entry->ChangeTraduction(utf16(textFor(kind, number, language)), language);
    }
  }
}

}  // namespace

std::vector<kob::HostRef> hostControls(const WidgetForm& form) {
  const auto controls = kob::qt::hostForm(form.window())->get(kob::Property::Controls)->asObject();
  std::vector<kob::HostRef> hosts = (*controls)->enumerate().value();
  bool isSame = hosts.size() == form.parts().size();
  for (std::size_t i = 0; isSame && i < hosts.size(); ++i) {
    isSame =
        hosts[i]->get(kob::Property::Name)->asText() == kob::qt::toText(form.parts()[i].widget->objectName());
  }
  if (!isSame) {
    throw std::runtime_error("the binding shows other controls than the form has");
  }
  return hosts;
}

void recordTranslated(kob::KOBModeleTraduction& model, const WidgetForm& form) {
  model.UpdateWithForm(kob::qt::hostForm(form.window()));
  fillIn(*model.GetCell(u"FrmBench"), 0);
  int number = 0;
  for (const kob::HostRef& control : hostControls(form)) {
    fillIn(*model.GetCell(model.GetPath(control)), number++);
  }
}

bool showsLanguage(const WidgetForm& form, int language) {
  int number = 0;
  return form.window()->windowTitle() == titleFor(language) &&
         std::all_of(form.parts().begin(), form.parts().end(), [&](const Part& part) {
           const int own = number++;
           return part.caption() == QString::fromStdString(textFor(TextKind::Caption, own, language)) &&
                  part.widget->toolTip() == QString::fromStdString(textFor(TextKind::ToolTip, own, language));
         });
}

}  // namespace bench

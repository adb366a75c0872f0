// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/engine/ControlCells.h>
#include <kobtraduction/engine/ControlPath.h>
#include <kobtraduction/engine/GatheredControls.h>
#include <kobtraduction/engine/HostModes.h>
#include <kobtraduction/engine/TagMarkers.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <exception>
#include <utility>
#include <vector>

namespace kob {

namespace {

constexpr TextView failureText = u"ERREUR";

void traduitControle(const KOBModeleTraduction& model, const HostRef& control, std::int32_t langue,
                     TextView module) {
  // Skip mode.
  Text tag;
  appendText(tag, control, Property::Tag);
  const TagMarkers markers = readMarkers(tag);
  if (isExcluded(markers.context)) {
    return;
  }
  if (!markers.context.empty()) {
    write(control, Property::Tag, TextView());
  }
  // Handler mode. The tag is written back also when it was not blanked, so a control without a tag ends here.
  const Text path = ControlPaths(module).pathOf(control);
  must(write(control, Property::Tag, tag));
  if (const auto cell = model.GetCell(path)) {
    cell->TraduitCtrl(control, langue, markers.context, markers.keepToolTip, markers.keepCaption);
  }
}

void traduitDialog(const KOBModeleTraduction& model, const HostRef& form, std::int32_t langue,
                   TextView module, bool onlyVisible, const HostRef& onlyContainer) {
  // Handler mode. The module's cell is looked for as one name; that it is there is all that is asked of it.
  if (!module.empty() && model.Racine()->GetCell(module) == nullptr) {
    return;
  }
  ControlPaths paths(module);
  Text wantedStart;
  if (onlyContainer != nullptr) {
    wantedStart = paths.pathOf(onlyContainer);
  }
  // The form's tag is taken as it stands: no marker is removed and it stays in place while the path is
  // written.
  if (!isExcluded(must(readText(form, Property::Tag)))) {
    const auto cell = model.GetCell(paths.pathOf(form));
    if (cell != nullptr && onlyContainer == nullptr) {
      cell->TraduitCtrl(form, langue, {}, false, false);
    }
  }
  std::vector<HostRef> controls = gatherControls(form, RecordBinding::Bound);

  ControlCells cells(model, paths, langue);
  HostRef control;
  HostRef previous;
  // Skip mode to the end.
  for (HostRef& next : controls) {
    fetchBehind(controls, next);
    // A control is let go of soon after its turn: its memory is still at hand then.
    previous = std::exchange(control, std::move(next));
    bool shown = true;
    if (onlyVisible) {
      skip(shown, readBoolean(control, Property::Visible));
    }
    // A control without a tag has neither markers nor a context, and nothing to blank meanwhile.
    if (const auto known = onlyContainer == nullptr ? cells.find(control) : std::nullopt) {
      if (*known != nullptr && shown) {
        (*known)->TraduitCtrl(control, langue, {}, false, false);
      }
      continue;
    }
    Text tag;
    appendText(tag, control, Property::Tag);
    const TagMarkers markers = readMarkers(tag);
    if (isExcluded(markers.context)) {
      continue;
    }
    write(control, Property::Tag, TextView());
    const Text& path = paths.pathOf(control);
    write(control, Property::Tag, tag);
    // Character for character, so that Frame10 passes for Frame1.
    if (onlyContainer != nullptr && !TextView(path).starts_with(wantedStart)) {
      continue;
    }
    const auto cell = model.GetCell(path);
    if (cell != nullptr && shown) {
      cell->TraduitCtrl(control, langue, markers.context, markers.keepToolTip, markers.keepCaption);
    }
  }
}

}  // namespace

void KOBModeleTraduction::TraduitControle(const HostRef& Ctrl, std::int32_t langue, TextView module) {
  try {
    traduitControle(*this, Ctrl, langue, module);
  } catch (const std::exception&) {
    Global_Util::messageBoxes().notice(failureText);
  }
}

void KOBModeleTraduction::TraduitDialog(const HostRef& dlg, std::int32_t langue, TextView module,
                                        bool onlyVisible, const HostRef& OnlyContainer) {
  try {
    traduitDialog(*this, dlg, langue, module, onlyVisible, OnlyContainer);
  } catch (const std::exception&) {
    Global_Util::messageBoxes().notice(failureText);
  }
}

}  // namespace kob

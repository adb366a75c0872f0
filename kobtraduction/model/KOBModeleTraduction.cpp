// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraduction/model/PathMemo.h>
#include <kobtraduction/model/PathSteps.h>

namespace kob {

namespace {

/// What every model starts with, and the least that a thread counts once it has a model.
constexpr std::int32_t initialLanguages = 6;

}  // namespace

KOBModeleTraduction::KOBModeleTraduction()
    : racine_(KOBCellTraduction::createNode()), known_(std::make_unique<PathMemo>()) {
  racine_->setnom(u"RACINE");
  setNbLangues(initialLanguages);
}

KOBModeleTraduction::~KOBModeleTraduction() = default;

std::int32_t KOBModeleTraduction::NbLangues() const noexcept {
  return Global_Util::NbLangues();
}

void KOBModeleTraduction::setNbLangues(std::int32_t count) {
  if (count <= Global_Util::NbLangues()) {
    return;
  }
  Global_Util::setNbLangues(count);
  racine_->UpdateNbLangues();
}

void KOBModeleTraduction::UpdateTestLangue(std::int32_t langue) {
  if (langue > 1 && langue <= NbLangues()) {
    racine_->UpdateTestLangue(langue);
  }
}

void KOBModeleTraduction::ClearLangue(std::int32_t langue) {
  if (langue > 1 && langue <= NbLangues()) {
    racine_->ClearLangue(langue);
  }
}

KOBCellTraduction* KOBModeleTraduction::findCell(TextView path) const {
  const std::size_t separator = path.rfind(u'\\');
  const bool isChildOfRoot = separator == TextView::npos;
  const TextView above = isChildOfRoot ? TextView() : path.substr(0, separator);
  const TextView name = isChildOfRoot ? path : path.substr(separator + 1);
  if (name.empty()) {
    return walkTo(path);
  }
  if (const PathMemo::Node* const known = known_->find(above)) {
    return known->find(name);
  }
  KOBCellTraduction* const parent = walkTo(above);
  if (parent == nullptr) {
    return nullptr;
  }
  known_->remember(above, *parent);
  return parent->findCell(name);
}

KOBCellTraduction* KOBModeleTraduction::walkTo(TextView path) const {
  KOBCellTraduction* cell = racine_.get();
  while (cell != nullptr) {
    const TextView segment = takeSegment(path);
    if (segment.empty()) {
      break;
    }
    cell = cell->findCell(segment);
  }
  return cell;
}

std::shared_ptr<KOBCellTraduction> KOBModeleTraduction::GetCell(TextView path) const {
  KOBCellTraduction* const cell = findCell(path);
  return cell != nullptr ? cell->shared_from_this() : nullptr;
}

Text KOBModeleTraduction::GetTraduction(TextView path, std::int32_t langue, TextView /*nom*/) const {
  const std::shared_ptr<KOBCellTraduction> cell = GetCell(path);
  // Only message cells are answered; who wants a control's texts reads the cell's ColTraduction.
  if (cell == nullptr || cell->TypeFeuille() != 1) {
    return {};
  }
  const KOBTraductionObj* const entry = cell->message();
  if (entry == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  const TextList& texts = entry->texts();
  const TextView text = texts.Item(langue);
  return Text(text.empty() ? texts.Item(1) : text);
}

}  // namespace kob

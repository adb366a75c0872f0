// SPDX-FileCopyrightText: The KOBTraduction authors
// What a cell holds by its kind: a message, or the entries and factors of a control.
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBCellTraduction.h>

#include <algorithm>
#include <utility>

namespace kob {

namespace {

template <class Pointer>
auto& required(const Pointer& object) {
  if (object == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return *object;
}

std::shared_ptr<FactorList> unchangedFactors(std::int32_t count) {
  auto list = std::make_shared<FactorList>();
  list->Reserve(count);
  for (std::int32_t i = count; i > 0; --i) {
    list->Add(Factor());
  }
  return list;
}

void changeFactor(const std::shared_ptr<FactorList>& factors, double value, std::int32_t position) {
  if (position < 1 || position > Global_Util::NbLangues()) {
    return;
  }
  FactorList& list = required(factors);
  list.Remove(position);
  if (position > list.Count()) {
    list.Add(Factor(value));
  } else {
    list.Add(Factor(value), position);
  }
}

}  // namespace

void KOBCellTraduction::setTypeFeuille(std::int32_t kind) {
  if (kind < 0 || kind > 2 || kind == typeFeuille_) {
    return;
  }
  clearTranslations();
  typeFeuille_ = static_cast<std::int8_t>(kind);
  if (kind != 0) {
    untouched_ = std::max(Global_Util::NbLangues(), 0);
  }
  if (kind == 2) {
    colTraduction_.renew();
  }
}

void KOBCellTraduction::clearTranslations() noexcept {
  entriesChanged();
  untouched_ = -1;
  traduction_ = nullptr;
  colTraduction_.drop();
  dropFactors();
}

void KOBCellTraduction::dropFactors() noexcept {
  if (rare_ != nullptr) {
    rare_->colWidth = nullptr;
    rare_->colLeft = nullptr;
  }
}

void KOBCellTraduction::makeMessage() const {
  if (typeFeuille_ == 1 && untouched_ >= 0) {
    traduction_ = std::make_shared<KOBTraductionObj>(untouched_);
    untouched_ = -1;
  }
}

void KOBCellTraduction::makeFactors() const {
  if (typeFeuille_ == 2 && untouched_ >= 0) {
    rare().colWidth = unchangedFactors(untouched_);
    rare().colLeft = unchangedFactors(untouched_);
    untouched_ = -1;
  }
}

KOBTraductionObj* KOBCellTraduction::message() const {
  makeMessage();
  return traduction_.get();
}

std::shared_ptr<KOBTraductionObj> KOBCellTraduction::Traduction() const {
  makeMessage();
  return traduction_;
}

void KOBCellTraduction::setTraduction(std::shared_ptr<KOBTraductionObj> entry) {
  entriesChanged();
  if (typeFeuille_ == 1) {
    untouched_ = -1;
  }
  traduction_ = std::move(entry);
}

std::shared_ptr<FactorList> KOBCellTraduction::ColLeft() const {
  makeFactors();
  return rare_ != nullptr ? rare_->colLeft : nullptr;
}

void KOBCellTraduction::setColLeft(std::shared_ptr<FactorList> factors) {
  makeFactors();
  rare().colLeft = std::move(factors);
}

std::shared_ptr<FactorList> KOBCellTraduction::ColWidth() const {
  makeFactors();
  return rare_ != nullptr ? rare_->colWidth : nullptr;
}

void KOBCellTraduction::setColWidth(std::shared_ptr<FactorList> factors) {
  makeFactors();
  rare().colWidth = std::move(factors);
}

Factor KOBCellTraduction::factor(std::shared_ptr<FactorList> Rare::*factors, std::int32_t langue) const {
  if (typeFeuille_ == 2 && untouched_ >= 0) {
    if (langue < 1 || langue > untouched_) {
      throw Failure(FailureKind::InvalidIndex);
    }
    return Factor();
  }
  if (rare_ == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return required((*rare_).*factors).Item(langue);
}

Factor KOBCellTraduction::leftFactor(std::int32_t langue) const {
  return factor(&Rare::colLeft, langue);
}

Factor KOBCellTraduction::widthFactor(std::int32_t langue) const {
  return factor(&Rare::colWidth, langue);
}

void KOBCellTraduction::ChangeWidth(double width, std::int32_t Index) {
  changeFactor(ColWidth(), width, Index);
}

void KOBCellTraduction::ChangeLeft(double left, std::int32_t Index) {
  changeFactor(ColLeft(), left, Index);
}

}  // namespace kob

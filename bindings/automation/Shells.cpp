// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Shells.h"

#include "CellShell.h"
#include "EntryShell.h"
#include "ListShell.h"
#include "Lists.h"
#include "ModelShell.h"

#include <utility>

namespace kob::automation {

namespace {

/// The object that stands for a part already, or a new one.
template <class Interface, class Part, class Make>
ComRef<Interface> findOrMake(const std::shared_ptr<Part>& part, Make make) {
  if (part == nullptr) {
    return {};
  }
  const Inhabitant here;
  if (IUnknown* const known = here.apartment().find(part.get())) {
    return ComRef<Interface>(static_cast<Interface*>(known));
  }
  return ComRef<Interface>::adopt(make());
}

template <class List>
ComRef<_KOBCollection> shellOfList(const std::shared_ptr<List>& list) {
  return findOrMake<_KOBCollection>(list,
                                    [&] { return new ListShell(std::make_unique<ListPart<List>>(list)); });
}

template <class List>
std::shared_ptr<List> listOf(IUnknown* object) {
  const ComRef<ListShell> shell = argument<ListShell>(object);
  if (!shell) {
    return nullptr;
  }
  const auto* const part = dynamic_cast<const ListPart<List>*>(&shell->part());
  if (part == nullptr) {
    throw Failure(FailureKind::TypeMismatch);
  }
  return part->list();
}

template <class Shell>
auto partOf(IUnknown* object) {
  const ComRef<Shell> shell = argument<Shell>(object);
  using Part = std::decay_t<decltype(shell->part())>;
  return shell ? shell->part() : Part();
}

}  // namespace

ComRef<_KOBCellTraduction> shellOf(const std::shared_ptr<KOBCellTraduction>& cell) {
  return findOrMake<_KOBCellTraduction>(cell, [&] { return new CellShell(cell); });
}

ComRef<_KOBTraductionObj> shellOf(const std::shared_ptr<KOBTraductionObj>& entry) {
  return findOrMake<_KOBTraductionObj>(entry, [&] { return new EntryShell(entry); });
}

ComRef<_KOBCollection> shellOf(const std::shared_ptr<CellList>& list) {
  return shellOfList(list);
}

ComRef<_KOBCollection> shellOf(const std::shared_ptr<EntryList>& list) {
  return shellOfList(list);
}

ComRef<_KOBCollection> shellOf(const std::shared_ptr<FactorList>& list) {
  return shellOfList(list);
}

ComRef<_KOBCollection> shellOf(const std::shared_ptr<TextList>& list) {
  return shellOfList(list);
}

ComRef<_KOBCollection> shellOf(const std::shared_ptr<ProgIdTable>& list) {
  return shellOfList(list);
}

std::shared_ptr<KOBModeleTraduction> modelOf(IUnknown* object) {
  return partOf<ModelShell>(object);
}

std::shared_ptr<KOBCellTraduction> cellOf(IUnknown* object) {
  return partOf<CellShell>(object);
}

std::shared_ptr<KOBTraductionObj> entryOf(IUnknown* object) {
  return partOf<EntryShell>(object);
}

std::shared_ptr<CellList> cellListOf(IUnknown* object) {
  return listOf<CellList>(object);
}

std::shared_ptr<EntryList> entryListOf(IUnknown* object) {
  return listOf<EntryList>(object);
}

std::shared_ptr<FactorList> factorListOf(IUnknown* object) {
  return listOf<FactorList>(object);
}

std::shared_ptr<TextList> textListOf(IUnknown* object) {
  return listOf<TextList>(object);
}

ComRef<IUnknown> newModel() {
  return ComRef<IUnknown>::adopt(static_cast<_KOBModeleTraduction*>(new ModelShell));
}

ComRef<IUnknown> newCell() {
  return ComRef<IUnknown>::adopt(shellOf(KOBCellTraduction::create()).detach());
}

ComRef<IUnknown> newEntry() {
  return ComRef<IUnknown>::adopt(shellOf(std::make_shared<KOBTraductionObj>()).detach());
}

}  // namespace kob::automation

// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Com.h"

#include <KOBTraduction.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <memory>

/// The objects that stand for the parts of a model. A part that is asked for while the host holds its object
/// is that object; nothing is Nothing. An argument gives the part back; one that is not of ours fails with
/// TypeMismatch.
namespace kob::automation {

ComRef<_KOBCellTraduction> shellOf(const std::shared_ptr<KOBCellTraduction>& cell);
ComRef<_KOBTraductionObj> shellOf(const std::shared_ptr<KOBTraductionObj>& entry);
ComRef<_KOBCollection> shellOf(const std::shared_ptr<CellList>& list);
ComRef<_KOBCollection> shellOf(const std::shared_ptr<EntryList>& list);
ComRef<_KOBCollection> shellOf(const std::shared_ptr<FactorList>& list);
ComRef<_KOBCollection> shellOf(const std::shared_ptr<TextList>& list);
ComRef<_KOBCollection> shellOf(const std::shared_ptr<ProgIdTable>& list);

std::shared_ptr<KOBModeleTraduction> modelOf(IUnknown* object);
std::shared_ptr<KOBCellTraduction> cellOf(IUnknown* object);
std::shared_ptr<KOBTraductionObj> entryOf(IUnknown* object);
std::shared_ptr<CellList> cellListOf(IUnknown* object);
std::shared_ptr<EntryList> entryListOf(IUnknown* object);
std::shared_ptr<FactorList> factorListOf(IUnknown* object);
std::shared_ptr<TextList> textListOf(IUnknown* object);

/// New objects, as a host creates them.
ComRef<IUnknown> newModel();
ComRef<IUnknown> newCell();
ComRef<IUnknown> newEntry();

}  // namespace kob::automation

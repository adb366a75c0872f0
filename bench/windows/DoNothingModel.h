// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <tests/automation/hosts/scripting/Com.h>

#include <string>

namespace kob::bench {

/// An object with the model's interface and type library whose members do nothing: what every late-bound call
/// of such an object costs.
hosts::ComPtr<IDispatch> doNothingModel(const std::wstring& server);

}  // namespace kob::bench

// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "../scripting/Com.h"

#include <string>
#include <string_view>

namespace kob::hosts {

/// The tree of a model behind automation as tests/golden writes it. Everything is read by the public members;
/// whether a cell is a context, which no member says, is read from a file that the model saves at `file`.
std::string printModel(IDispatch* model, const std::wstring& file);

/// Gives an empty model the tree of a text, by way of a file.
void growModel(IDispatch* model, std::string_view treeText, const std::wstring& file);

}  // namespace kob::hosts

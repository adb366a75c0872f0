// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <string>
#include <string_view>

/// The tree of a model as text, all fields of it: a cell per line, its entries (after a ".") and its children
/// indented below it. The root has no line of its own.
///
///   FrmMain node control left=0 width=1
///     .Caption "Accueil" 2="Home"
///     Label1 control left=1 width=1 width[2]=1.5
///       .Caption "Nom"
///   Achats node
///     Titre message
///       . "Bonjour"
///
/// A cell is a leaf unless its line says "node", and holds no translation unless it says "control" or
/// "message". "context" is Contexte; alias= stands when it is not the name; left[i] and width[i] are factors
/// other than 1; left= and width= are the indicators. "(nothing)" is an item that is nothing. What only a
/// damaged or outgrown tree shows is printed too: factors= and texts= for lists that do not have one item per
/// language, "astray" for a parentcell that is not the cell above.
namespace kob::testing {

std::string printTree(const KOBCellTraduction& root);

/// Adds the cells of a text below `root`, at the end of its list, as they stand; throws std::runtime_error
/// for what it cannot read.
void growTree(const std::shared_ptr<KOBCellTraduction>& root, std::string_view text);

}  // namespace kob::testing

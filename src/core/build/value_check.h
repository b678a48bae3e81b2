#pragma once

#include <optional>
#include <string>

#include "core/build/compile_request.h"
#include "core/ports/dialogs.h"
#include "model/menu_data_check.h"

namespace qor {

// Where a refused value comes from, as a sentence names it: "l'image de
// fond", "l'action du bouton n°3", "le nom du projet" ...
std::string valuePlace(const DataValueFault& fault);

// The refusal of a value the compiled menu would lose or break on.
Message unwritableValueMessage(const DataValueFault& fault);

// The first value of a compilation that cannot be written as it stands:
// every value of the data line, the project name and author of the
// request, then the sub-menu's file name. Nothing when all can.
std::optional<DataValueFault> firstUnwritableValue(const MenuProject& project, const CompileRequest& request);

}  // namespace qor

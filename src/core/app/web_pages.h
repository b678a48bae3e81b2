#pragma once

#include <optional>
#include <string>

#include "core/ui/commands.h"

namespace qor {

// The product site's pages that the "&?" menu opens.

// "&F.A.Q.", "&Télécharger des exemples" and "Tru&cs et astuces"; nothing
// for another command.
std::optional<std::string> webPageAddress(CommandId command);

// The bug page with the user's description, every blank written "%20" and
// nothing else encoded.
std::string bugReportAddress(const std::string& description);

// The version check: the full version and the interface language's name
// (empty for French).
std::string versionCheckAddress(const std::string& interfaceLanguage);

}  // namespace qor

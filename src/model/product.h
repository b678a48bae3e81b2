#pragma once

#include <string>
#include <string_view>

#include "model/version.h"

namespace qor::product {

// The product's addresses, in one place until the real ones exist.
inline constexpr std::string_view webSite = "http://www.qor.example.org/";
inline constexpr std::string_view email = "contact@qor.example.org";
// Who answers the support message's contacts.
inline constexpr std::string_view author = "L'équipe QOR";
inline constexpr std::string_view telephone = "+33 (0)1 00 00 00 00";
inline constexpr std::string_view postalAddress = "QOR, service assistance, 1 rue de l'Exemple, 75000 Paris";

// "2.0"
std::string versionText();
// "2.0.450": major, minor and the build's revision.
std::string fullVersionText();

}  // namespace qor::product

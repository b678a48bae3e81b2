#include "core/app/web_pages.h"

#include "model/product.h"
#include "text/text_helpers.h"

namespace qor {

std::optional<std::string> webPageAddress(CommandId command)
{
    const std::string base(product::webSite);
    switch (command) {
    case CommandId::Faq: return base + "page.php?ext=php&q=faq";
    case CommandId::Examples: return base + "page.php?ext=php&q=galerie";
    case CommandId::Tips: return base + "page.php?ext=php&q=trucs_astuces";
    default: return std::nullopt;
    }
}

std::string bugReportAddress(const std::string& description)
{
    return std::string(product::webSite) + "br.php?bug=" + replaceAll(description, " ", "%20");
}

std::string versionCheckAddress(const std::string& interfaceLanguage)
{
    return std::string(product::webSite) + "version.php?moi=" + product::fullVersionText() +
           "&langue=" + interfaceLanguage;
}

}  // namespace qor

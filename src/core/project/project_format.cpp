#include "core/project/project_format.h"

#include "core/product.h"
#include "core/text/text_helpers.h"

namespace qor::project_format {

std::string preambleLine1()
{
    return "FICHIER .QOR - COMPATIBLE QOR V" + product::versionText() + " ET +";
}

std::string preambleLine2()
{
    return "Pour télécharger QOR allez sur " + std::string(product::webSite);
}

std::string preambleLine3()
{
    return "Envoyez-nous vos critiques à " + std::string(product::email) + " Merci.";
}

std::string versionLine()
{
    return "Version=" + product::fullVersionText();
}

bool isPlaceholderLine(std::string_view line)
{
    return beginsWithAndLonger(line, "'para");
}

std::string placeholderLine(int n)
{
    return "'para" + std::to_string(n);
}

}  // namespace qor::project_format

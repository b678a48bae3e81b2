#include "model/project_format.h"

#include "model/product.h"
#include "text/text_helpers.h"

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

}  // namespace qor::project_format

#include "core/ui/credits.h"

#include "model/product.h"

namespace qor {

const std::vector<CreditLine>& creditLines()
{
    // The people behind this edition; the two links reach the product.
    static const std::vector<CreditLine> lines = {
        {true, "Idée et conception", ""},
        {false, std::string(product::author), ""},
        {true, "Rédaction du manuel", ""},
        {false, std::string(product::author), ""},
        {true, "Webmaster du site officiel", ""},
        {false, std::string(product::author), ""},
        {true, "Testeurs", ""},
        {false, "Les premiers utilisateurs", ""},
        {true, "Remerciements", ""},
        {false, "Tous ceux qui nous ont écrit", ""},
        {true, "Informations", ""},
        {false, "Accès au site", std::string(product::webSite)},
        {false, "Contact", std::string(product::email)},
    };
    return lines;
}

double nextCreditsTop(double top, double height, double innerHeight)
{
    top -= kCreditsStep;
    return top + height <= 0 ? innerHeight : top;
}

std::string creditLinkTarget(const std::string& address)
{
    if (address.empty())
        return {};
    if (address.find('@') != std::string::npos)
        return "mailto:" + address + "?Subject=QOR%20:%20Contact";
    return address;
}

}  // namespace qor

#include "model/product.h"

namespace qor::product {

std::string versionText()
{
    return std::to_string(version::major) + "." + std::to_string(version::minor);
}

std::string fullVersionText()
{
    return versionText() + "." + std::to_string(version::revision);
}

}  // namespace qor::product

// The picture rule on any bytes: it never reads past what it is given, a
// picture it accepts has a size within the limit, and reading the file
// through its head and tail gives the verdict its whole bytes give.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "model/picture_rule.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace qor;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const PictureFacts whole = examinePicture(bytes);
    if (whole.readable() &&
        (whole.width == 0 || whole.height == 0 || whole.width > kLargestPictureSide ||
         whole.height > kLargestPictureSide))
        std::abort();
    const PictureFacts parts = examinePicture(
        [&bytes](std::uint64_t offset, std::size_t count) -> std::optional<std::string> {
            return offset >= bytes.size() ? std::string() : bytes.substr(offset, count);
        },
        bytes.size());
    if (parts.fault != whole.fault || parts.width != whole.width || parts.height != whole.height)
        std::abort();
    return 0;
}

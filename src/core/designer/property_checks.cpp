#include "core/designer/property_checks.h"

#include <cmath>

#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

// A typed number, or nothing when it is not one or is beyond a double.
std::optional<double> typedNumber(std::string_view text)
{
    if (!isNumeric(text))
        return std::nullopt;
    auto n = parseNumber(text);
    if (!n || !std::isfinite(*n))
        return std::nullopt;
    return *n;
}

bool isShowableExtent(double twips, double twipsPerPixel)
{
    return twips > 0 && twips / twipsPerPixel <= kMaxPixels;
}

}  // namespace

bool isShowableSize(TwipsSize size, const ScreenMetrics& screen)
{
    if (!isShowableExtent(size.width, screen.twipsPerPixelX) || !isShowableExtent(size.height, screen.twipsPerPixelY))
        return false;
    const double pixels = std::ceil(size.width / screen.twipsPerPixelX) * std::ceil(size.height / screen.twipsPerPixelY);
    return pixels * 4 <= kMaxSurfaceBytes;
}

std::optional<TwipsSize> sizeFromFields(std::string_view width, std::string_view height,
                                        const ScreenMetrics& screen)
{
    const auto w = typedNumber(width);
    const auto h = typedNumber(height);
    if (!w || !h || !isShowableSize({*w, *h}, screen))
        return std::nullopt;
    return TwipsSize{*w, *h};
}

std::optional<std::string> checkedTimerInterval(std::string_view field)
{
    const auto n = typedNumber(field);
    if (!n)
        return std::nullopt;
    const double whole = std::floor(std::fabs(*n));
    if (whole < 1 || whole > 60000)
        return std::nullopt;
    return std::to_string(static_cast<long long>(whole));
}

PositionAnswer readPositionAnswer(std::string_view answer, double twipsPerPixel)
{
    using K = PositionAnswer::Kind;
    if (answer.empty())
        return {K::Cancelled, 0};
    const auto n = typedNumber(answer);
    if (!n || std::fabs(*n) / twipsPerPixel > kMaxPixels)
        return {K::Invalid, 0};
    // "-0" reads as a plain 0.
    return {K::Value, std::floor(*n) + 0.0};
}

long long pixelDefault(double twips, double twipsPerPixel)
{
    return static_cast<long long>(std::floor(twips / twipsPerPixel));
}

std::optional<std::string> mediaFieldFor(MediaLocation where, std::string_view chosenPath,
                                         std::string_view foldersAnswer)
{
    switch (where) {
    case MediaLocation::CdRoot: return fileNameOf(chosenPath);
    case MediaLocation::WhereItIs: return std::string(chosenPath);
    case MediaLocation::CdFolders: break;
    }
    if (foldersAnswer.empty())
        return std::nullopt;
    std::string folders(foldersAnswer);
    // The CD is read on Windows: its folders are separated by "\". A
    // folder typed with "/" at its end already has its separator.
    if (!folders.ends_with('\\') && !folders.ends_with('/'))
        folders += '\\';
    return folders + fileNameOf(chosenPath);
}

}  // namespace qor

#include "core/build/iso_image.h"

#include <cctype>
#include <utility>

#include "core/build/autorun_inf.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {
namespace {

constexpr std::size_t kVolumeLength = 32;

// The unaccented capitals of the Latin-1 letters a French name uses.
std::string plainCapitals(char32_t c)
{
    static constexpr std::pair<std::u32string_view, const char*> kFolds[] = {
        {U"àâäáãåÀÂÄÁÃÅ", "A"}, {U"éèêëÉÈÊË", "E"}, {U"îïíìÎÏÍÌ", "I"}, {U"ôöóòõÔÖÓÒÕ", "O"},
        {U"ùûüúÙÛÜÚ", "U"},    {U"çÇ", "C"},        {U"ñÑ", "N"},        {U"ÿýŸÝ", "Y"},
        {U"œŒ", "OE"},         {U"æÆ", "AE"},
    };
    if (c < 0x80 && std::isalnum(int(c)))
        return std::string(1, char(std::toupper(int(c))));
    for (const auto& [letters, plain] : kFolds)
        if (letters.find(c) != std::u32string_view::npos)
            return plain;
    return "_";
}

// A graft point names its two sides around "="; either side escapes "=" and "\".
std::string graftPart(const std::string& path)
{
    return replaceAll(replaceAll(path, "\\", "\\\\"), "=", "\\=");
}

std::string withoutTrailingSlash(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

}  // namespace

std::string isoVolumeName(const std::string& projectName)
{
    std::string out;
    for (std::size_t pos = 0; pos < projectName.size();) {
        const std::string plain = plainCapitals(nextCodePoint(projectName, pos));
        if (out.size() + plain.size() > kVolumeLength)
            break;
        out += plain;
    }
    return out.find_first_not_of('_') == std::string::npos ? "QOR" : out;
}

std::string addedFolderName(const std::string& folder)
{
    return fileNameOf(withoutTrailingSlash(folder));
}

std::vector<std::string> isoArguments(const std::string& image, const std::string& volume,
                                      const std::string& compiledFolder, const std::vector<std::string>& addedFolders)
{
    std::vector<std::string> args = {"-as", "mkisofs", "-quiet", "-r", "-J", "-joliet-long", "-V", volume,
                                     "-o", image, "-graft-points", "/=" + graftPart(withoutTrailingSlash(compiledFolder))};
    for (const auto& folder : addedFolders)
        args.push_back("/" + graftPart(addedFolderName(folder)) + "=" + graftPart(withoutTrailingSlash(folder)));
    return args;
}

Status writeIsoImage(ProgramRunner& runner, const std::string& image, const std::string& volume,
                     const std::string& compiledFolder, const std::vector<std::string>& addedFolders)
{
    auto status = runner.run(kIsoProgram, isoArguments(image, volume, compiledFolder, addedFolders));
    if (!status)
        return makeError(err::FileNotFound, std::string(kIsoProgram) + " n'a pas pu être lancé (" +
                                                status.error().description + ") : installez le paquet xorriso");
    if (*status != 0)
        return makeError(err::PathFileAccess,
                         std::string(kIsoProgram) + " a échoué (code " + std::to_string(*status) + ")");
    return {};
}

void removeCompiledFolder(FileSystem& files, const std::string& folder)
{
    const std::string root = withTrailingSeparator(folder);
    files.removeFilesIn(root + "qor/");
    (void)files.removeFolder(root + "qor");
    (void)files.removeFile(root + kAutorunInfName);
    (void)files.removeFolder(withoutTrailingSlash(root));
}

}  // namespace qor

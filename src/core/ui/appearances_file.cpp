#include "core/ui/appearances_file.h"

#include "text/line_file.h"
#include "text/numbers.h"

namespace qor {
namespace {

constexpr const char* kRecordHeader = "[App]";
constexpr const char* kReservedLine = "para";

}  // namespace

Appearance defaultAppearance()
{
    return Appearance{kButtonFaceColour, kWindowColour, kButtonTextColour, ""};
}

const std::vector<AppearanceRecord>& defaultAppearanceRecords()
{
    static const std::vector<AppearanceRecord> records = {
        {"Bleu", {16755370, 10461183, 0, ""}},
        {"Rouge", {6711039, 9240575, 0, ""}},
        {"Orange", {4103935, 255, 0, ""}},
        {"Clair", {16777215, 16767449, 0, ""}},
        {"Sombre", {6392715, 2208689, 16777215, ""}},
        {"Sombre2", {5789784, 16744576, 65280, ""}},
    };
    return records;
}

std::vector<std::string> defaultAppearancesFileLines()
{
    std::vector<std::string> lines;
    for (const auto& r : defaultAppearanceRecords()) {
        lines.push_back(kRecordHeader);
        lines.push_back(r.name);
        lines.push_back(std::to_string(r.appearance.windowBack));
        lines.push_back(std::to_string(r.appearance.fieldBack));
        lines.push_back(std::to_string(r.appearance.textColor));
        lines.push_back(r.appearance.font.empty() ? kReservedLine : r.appearance.font);
        lines.push_back(kReservedLine);
    }
    return lines;
}

Status writeDefaultAppearancesFile(const std::filesystem::path& programFolder)
{
    return writeLineFile(programFolder / kAppearancesFileName, defaultAppearancesFileLines());
}

AppearanceList readAppearances(const std::vector<std::string>& lines)
{
    AppearanceList list;
    int slot = 0;
    std::size_t i = 0;
    auto next = [&](std::string& out) {
        if (i >= lines.size())
            return false;
        out = lines[i++];
        return true;
    };
    while (i < lines.size()) {
        const std::string& line = lines[i++];
        if (line != kRecordHeader) {
            ++slot;  // a stray line still uses up a slot of the table
            continue;
        }
        if (slot >= kAppearanceSlots) {
            list.error = makeError(err::SubscriptOutOfRange);
            return list;
        }
        std::string name, back, field, text, font, reserved;
        if (!next(name) || !next(back) || !next(field) || !next(text) || !next(font) ||
            !next(reserved)) {
            list.error = makeError(err::InputPastEnd);
            return list;
        }
        AppearanceRecord record;
        record.name = name;
        Colour* targets[] = {&record.appearance.windowBack, &record.appearance.fieldBack,
                             &record.appearance.textColor};
        const std::string* sources[] = {&back, &field, &text};
        for (int k = 0; k < 3; ++k) {
            auto value = readInt32(*sources[k]);
            if (!value) {
                list.error = value.error();
                return list;
            }
            *targets[k] = *value;
        }
        record.appearance.font = font == kReservedLine ? "" : font;
        list.records.push_back(std::move(record));
        ++slot;
    }
    return list;
}

AppearanceList readAppearancesFile(const std::filesystem::path& path)
{
    auto lines = readLineFile(path);
    if (!lines) {
        AppearanceList list;
        list.error = lines.error();
        return list;
    }
    return readAppearances(*lines);
}

Message appearanceReadErrorMessage(const Error& error)
{
    return Message{"Erreur :" + error.description, "Erreur n°" + std::to_string(error.number),
                   MessageIcon::Critical};
}

}  // namespace qor

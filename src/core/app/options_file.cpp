#include "core/app/options_file.h"

#include "text/numbers.h"

namespace qor {
namespace {

const char* yesNo(bool on) { return on ? "oui" : "non"; }

}  // namespace

std::vector<std::string> optionsFileLines(const OptionMarks& marks, const Appearance& appearance)
{
    return {
        yesNo(marks.precisePointer),
        yesNo(marks.mousePosition),
        yesNo(marks.showHandles),
        formatInteger(appearance.windowBack),
        formatInteger(appearance.fieldBack),
        formatInteger(appearance.textColor),
        appearance.font,
        yesNo(marks.wizardAtStart),
        yesNo(marks.requireMediaFile),
    };
}

OptionsFileContent readOptionsLines(const std::vector<std::string>& lines, const Appearance& current)
{
    auto line = [&](std::size_t n) -> std::string { return n <= lines.size() ? lines[n - 1] : ""; };
    OptionsFileContent c;
    c.precisePointer = line(1) == "oui";
    c.mousePosition = line(2) == "oui";
    c.showHandles = line(3) == "oui";
    if (lines.size() > 3) {
        Appearance a = current;
        Colour* colours[] = {&a.windowBack, &a.fieldBack, &a.textColor};
        for (std::size_t k = 0; k < 3; ++k) {
            if (lines.size() < 4 + k)
                break;
            if (auto v = readInt32(line(4 + k)))
                *colours[k] = *v;
        }
        a.font = line(7);
        c.appearance = a;
    }
    c.wizardAtStart = line(8) == "oui";
    c.requireMediaFile = line(9).empty() || line(9) == "oui";
    return c;
}

}  // namespace qor

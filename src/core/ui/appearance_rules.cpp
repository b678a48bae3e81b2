#include "core/ui/appearance_rules.h"

#include <array>

#include "core/ui/windows.h"

namespace qor {
namespace {

// The windows that colour themselves when they load; the toolbox, the main
// window, the properties panel and the mouse-position window are coloured
// together by the editor once the options file told the appearance.
constexpr std::array kColouredOnLoad = {
    WindowId::ScriptEditor, WindowId::CompileDialog, WindowId::Wizard,      WindowId::TestRun,
    WindowId::ShapePanel,   WindowId::PrintPreview,  WindowId::FileInfo,
};

// Colours travel as their 32-bit pattern: system colours stay above 0x80000000.
PropertyValue colourValue(Colour c)
{
    return std::int64_t(std::uint32_t(c));
}

bool isField(const ControlNode& control)
{
    return control.name().rfind("Text", 0) == 0;
}

void colourControl(ControlNode& control, const Appearance& a)
{
    control.write(ControlProperty::TabStop, false);
    const auto tag = control.read(ControlProperty::Tag);
    if (tag && *tag == PropertyValue(std::string(kKeepDesignTag)))
        return;
    control.write(ControlProperty::BackColor, colourValue(isField(control) ? a.fieldBack : a.windowBack));
    control.write(ControlProperty::ForeColor, colourValue(a.textColor));
    control.write(ControlProperty::FontName, a.font.empty() ? std::string(kDefaultFontName) : a.font);
}

}  // namespace

void applyAppearance(ControlNode& window, const Appearance& appearance)
{
    window.write(ControlProperty::BackColor, colourValue(appearance.windowBack));
    applyAppearanceToControls(window.allControls(), appearance);
}

void applyAppearanceToControls(const std::vector<std::unique_ptr<ControlNode>>& controls,
                               const Appearance& appearance)
{
    for (const auto& control : controls)
        colourControl(*control, appearance);
}

std::optional<Appearance> windowAppearance(std::string_view windowName, const Appearance& current)
{
    for (WindowId id : kColouredOnLoad)
        if (windowName == qor::windowName(id))
            return current;
    return std::nullopt;
}

}  // namespace qor

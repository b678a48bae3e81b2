#include "menu_runtime_objects.h"

namespace qor::test {
namespace {

constexpr int kElements = 100;

const std::vector<std::string> kButtonMembers{"Picture", "Left", "Top", "Enabled", "Visible", "MousePointer",
                                              "MouseIcon"};
const std::vector<std::string> kTextMembers{
    "Text",          "Alignment", "FontBold",  "FontItalic", "FontName", "FontSize", "FontStrikethru",
    "FontUnderline", "ForeColor", "BackColor", "Width",      "Height",   "Left",     "Top",
    "Locked",        "Visible",   "MousePointer", "MouseIcon"};

struct ObjectRow {
    const char* name;
    std::vector<std::string> members;
};

const std::vector<ObjectRow> kObjects{
    {"Fenetre", {"Caption", "BackColor", "WindowState", "Left", "Top", "Visible", "MousePointer", "MouseIcon"}},
    {"Ecran", {"MousePointer", "MouseIcon"}},
    {"Bordure", {"BorderColor", "BorderWidth", "Shape", "Visible"}},
    {"ImageFond", {"Picture", "Stretch"}},
    {"Minuteur", {"Interval", "Enabled"}},
    {"Action", {"Tag", "Text"}},
};

}  // namespace

MenuRuntime::MenuRuntime()
{
    auto add = [this](const std::string& name, const std::vector<std::string>& members) {
        module_.addObject(name, script::makeRef<script::test::FakeObject>(name, &host.log, members));
    };
    for (const ObjectRow& row : kObjects)
        add(row.name, row.members);
    for (int n = 1; n <= kElements; ++n) {
        add("Bouton" + std::to_string(n), kButtonMembers);
        add("Texte" + std::to_string(n), kTextMembers);
    }
}

std::vector<std::string> MenuRuntime::effects() const
{
    std::vector<std::string> out = host.log;
    for (const auto& m : host.messages)
        out.push_back("MsgBox " + m.prompt);
    return out;
}

}  // namespace qor::test

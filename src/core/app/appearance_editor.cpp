#include "core/app/appearance_editor.h"

#include <filesystem>

#include "core/app/option_commands.h"
#include "core/app/shell.h"
#include "text/cp1252.h"
#include "text/line_file.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor {
namespace {


Colour& swatchColour(Appearance& a, int swatch)
{
    return swatch == 0 ? a.windowBack : swatch == 1 ? a.fieldBack : a.textColor;
}

}  // namespace

void AppearanceEditor::open()
{
    if (!view_)
        return;
    view_->setAppearanceEditorVisible(true);
    reloadList(0);
    view_->showEditorFields(state_.appearance);
}

void AppearanceEditor::close()
{
    if (view_)
        view_->setAppearanceEditorVisible(false);
}

void AppearanceEditor::reloadList(int selected)
{
    records_.assign(1, AppearanceRecord{kDefaultAppearanceName, defaultAppearance()});
    AppearanceList read = readAppearancesFile(std::filesystem::path(state_.programFile(kAppearancesFileName)));
    records_.insert(records_.end(), read.records.begin(), read.records.end());
    std::vector<std::string> names;
    for (const auto& r : records_)
        names.push_back(r.name);
    view_->showAppearanceList(names, selected < 0 ? int(names.size()) - 1 : selected);
    // What was read before a failure stays listed.
    if (read.error)
        dialogs_.message(appearanceReadErrorMessage(*read.error));
}

Appearance AppearanceEditor::selected() const
{
    const int i = view_->selectedAppearance();
    return i > 0 && std::size_t(i) < records_.size() ? records_[std::size_t(i)].appearance : defaultAppearance();
}

void AppearanceEditor::load()
{
    if (!view_)
        return;
    state_.appearance = selected();
    shell_.applyAppearance(state_.appearance);
    (void)options_.write();
    view_->showEditorFields(state_.appearance);
}

void AppearanceEditor::test()
{
    if (view_)
        shell_.applyAppearance(view_->editorFields());
}

void AppearanceEditor::save()
{
    if (!view_)
        return;
    const std::string name = view_->newAppearanceName();
    if (name.empty()) {
        dialogs_.message(emptyAppearanceNameMessage(state_.phrases));
        return;
    }
    for (const auto& r : records_) {
        if (equalsNoCase(r.name, name)) {
            dialogs_.message(appearanceNameUsedMessage(state_.phrases));
            return;
        }
    }
    const std::filesystem::path file(state_.programFile(kAppearancesFileName));
    auto bytes = readFileBytes(file);
    std::string text = bytes ? *bytes : std::string();
    if (!text.empty() && text.back() != '\n')
        text += "\r\n";
    text += encodeCp1252(joinLinesCrLf(appearanceRecordLines({name, view_->editorFields()})));
    if (Status s = writeFileAtomically(file, text); !s) {
        dialogs_.message(appearanceReadErrorMessage(inFrench(s.error())));
        return;
    }
    view_->clearNewAppearanceName();
    reloadList(-1);
    load();
}

void AppearanceEditor::pickColour(int swatch)
{
    if (!view_ || swatch < 0 || swatch > 2)
        return;
    Appearance fields = view_->editorFields();
    if (auto chosen = dialogs_.pickColour(swatchColour(fields, swatch))) {
        swatchColour(fields, swatch) = *chosen;
        view_->showEditorFields(fields);
    }
}

void AppearanceEditor::pickFont()
{
    if (!view_)
        return;
    Appearance fields = view_->editorFields();
    FontChoice initial;
    initial.name = fields.font.empty() ? kDefaultFontName : fields.font;
    if (auto chosen = dialogs_.pickFont(initial)) {
        fields.font = chosen->name;
        view_->showEditorFields(fields);
    }
}

Message emptyAppearanceNameMessage(const Phrases& phrases)
{
    return Message{phrases.text(10, "Champs nom vide !!!"), "", MessageIcon::Exclamation};
}

Message appearanceNameUsedMessage(const Phrases& phrases)
{
    return Message{phrases.text(11, "Ce nom est déjà utilisé !!!"), "", MessageIcon::Exclamation};
}

std::vector<std::string> appearanceRecordLines(const AppearanceRecord& record)
{
    const Appearance& a = record.appearance;
    return {"[App]", record.name, formatInteger(a.windowBack), formatInteger(a.fieldBack),
            formatInteger(a.textColor), a.font, "para"};
}

}  // namespace qor

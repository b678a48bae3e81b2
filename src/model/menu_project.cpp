#include "model/menu_project.h"

#include <cassert>
#include <limits>

#include "text/text_helpers.h"

namespace qor {

bool isDefaultIconMarker(std::string_view icon)
{
    return icon.size() >= 2 && icon.front() == '(' && icon.back() == ')';
}

std::string resolvePath(std::string_view storedPath, std::string_view projectFilePath)
{
    if (storedPath.empty() || hasSeparator(storedPath))
        return std::string(storedPath);
    return folderOf(projectFilePath) + std::string(storedPath);
}

MenuProject::MenuProject()
{
    reset();
}

void MenuProject::reset(std::string_view iconMarker)
{
    for (int n = 0; n < kButtonSlots; ++n) {
        buttons_[std::size_t(n)] = MenuButton{};
        buttons_[std::size_t(n)].number = std::int16_t(n);
    }
    buttonElements_ = 1;
    texts_.clear();

    backgroundImage.clear();
    backgroundMusic.clear();
    fullScreen = false;
    border = true;
    filePath.clear();
    startupAction.clear();
    backgroundColor = 0x00FFFFFF;
    contextMenu = true;
    timerEnabled = false;
    timerInterval = "1000";
    timerScript.clear();
    globalScript.clear();
    handCursor = true;
    shapePoints.clear();
    clickSound.clear();
    hoverSound.clear();
    icon = std::string(iconMarker);
    transparencyImage.clear();
    windowHoverScript.clear();
    authorName.clear();
    authorEmail.clear();
    authorWebSite.clear();
    notes.clear();
    // width and height stay: the worksheet keeps its size across projects.
}

MenuButton& MenuProject::button(int n)
{
    assert(n >= 0 && n < kButtonSlots);
    return buttons_[std::size_t(n)];
}

const MenuButton& MenuProject::button(int n) const
{
    assert(n >= 0 && n < kButtonSlots);
    return buttons_[std::size_t(n)];
}

MenuText& MenuProject::text(int n)
{
    assert(n >= 1 && n <= textCount());
    return texts_[std::size_t(n - 1)];
}

const MenuText& MenuProject::text(int n) const
{
    assert(n >= 1 && n <= textCount());
    return texts_[std::size_t(n - 1)];
}

std::vector<const MenuButton*> MenuProject::liveButtons() const
{
    std::vector<const MenuButton*> out;
    for (int n = 1; n < kButtonSlots; ++n)
        if (buttons_[std::size_t(n)].isLive())
            out.push_back(&buttons_[std::size_t(n)]);
    return out;
}

std::vector<const MenuButton*> MenuProject::savableButtons() const
{
    std::vector<const MenuButton*> out;
    for (int n = 1; n < kButtonSlots; ++n)
        if (buttons_[std::size_t(n)].isSavable())
            out.push_back(&buttons_[std::size_t(n)]);
    return out;
}

std::vector<const MenuText*> MenuProject::liveTexts() const
{
    std::vector<const MenuText*> out;
    for (const auto& t : texts_)
        if (t.isLive())
            out.push_back(&t);
    return out;
}

std::string MenuProject::resolve(std::string_view storedPath) const
{
    return resolvePath(storedPath, filePath);
}

Result<std::int16_t> MenuProject::addButton()
{
    const int n = buttonElements_;
    if (n > kLastButtonSlot)
        return makeError(err::SubscriptOutOfRange);
    ++buttonElements_;
    auto& slot = buttons_[std::size_t(n)];
    slot = MenuButton{};
    slot.number = std::int16_t(n);
    return std::int16_t(n);
}

Result<std::int16_t> MenuProject::addText()
{
    const int n = textElementCount();
    if (n > std::numeric_limits<std::int16_t>::max())
        return makeError(err::Overflow);
    texts_.emplace_back();
    texts_.back().number = std::int16_t(n);
    return std::int16_t(n);
}

void MenuProject::deleteButton(int n)
{
    button(n).kind = std::string(button_kind::deleted);
}

void MenuProject::deleteText(int n)
{
    auto& t = text(n);
    t.visible = false;
    t.content = std::string(kDeletedTextContent);
}

}  // namespace qor

#include "fake_ports.h"

#include <gtest/gtest.h>

#include "model/menu_data_writer.h"

namespace qor::player::test {

std::optional<ImageSize> FakeView::imageSize(const std::string& path)
{
    auto it = images.find(path);
    if (it == images.end())
        return std::nullopt;
    return it->second;
}

void FakeView::show(const Scene& scene)
{
    shown = scene;
    log_.push_back("show");
}

void FakeView::windowChanged(const WindowScene& window)
{
    shown.window = window;
    log_.push_back("window");
}

void FakeView::buttonChanged(std::size_t index, const ButtonScene& button)
{
    shown.buttons.at(index) = button;
    log_.push_back("button " + std::to_string(button.number) + " " + button.shownImage());
}

void FakeView::textChanged(std::size_t index, const TextScene& text)
{
    shown.texts.at(index) = text;
    log_.push_back("text " + std::to_string(text.number));
}

void FakeView::timerChanged(const TimerScene& t)
{
    timer = t;
    log_.push_back(t.runs() ? "timer " + std::to_string(t.interval) : "timer off");
}

void FakeView::close()
{
    closed = true;
    log_.push_back("close");
}

int FakeView::messageBox(const MessageRequest& request)
{
    messages.push_back(request);
    log_.push_back("msgbox " + request.text);
    if (answers.empty())
        return 1;
    int a = answers.front();
    answers.pop_front();
    return a;
}

std::optional<std::string> FakeView::inputBox(const script::InputBoxRequest& request)
{
    log_.push_back("inputbox " + request.prompt + " | " + request.title.value_or("") + " | " + request.defaultText);
    if (inputs.empty())
        return std::nullopt;
    auto a = inputs.front();
    inputs.pop_front();
    return a;
}

std::optional<std::string> FakeSystem::readFile(const std::string& path) const
{
    auto it = files.find(path);
    if (it == files.end())
        return std::nullopt;
    return it->second;
}

bool FakeSystem::openWithDesktop(const std::string& target)
{
    log_.push_back("open " + target);
    return starts;
}

bool FakeSystem::startProgram(const std::string& program, const std::string& arguments)
{
    log_.push_back("start " + program + (arguments.empty() ? "" : " | " + arguments));
    return starts;
}

bool FakeSystem::startMenu(const std::string& menuFile)
{
    log_.push_back("menu " + menuFile);
    return starts;
}

void FakeSystem::ejectTray(const std::string& driveLetter, bool open)
{
    log_.push_back(std::string(open ? "eject " : "close tray ") + (driveLetter.empty() ? "(menu)" : driveLetter));
}

std::string compiledBytes(const MenuProject& project, const MenuDataInfo& info)
{
    return menuDataBytes(project, info);
}

MenuData compiled(const MenuProject& project, const MenuDataInfo& info)
{
    MenuDataResult r = readMenuData("MZ player bytes\r\n" + compiledBytes(project, info));
    if (auto* e = std::get_if<MenuDataError>(&r)) {
        ADD_FAILURE() << e->message();
        return {};
    }
    return std::get<MenuData>(std::move(r));
}

}  // namespace qor::player::test

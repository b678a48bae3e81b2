#include "screen.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <X11/Xlib.h>
#include <X11/extensions/Xfixes.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string_view>
#include <thread>

extern char** environ;

namespace qor::test {
namespace {

struct PipeCloser {
    void operator()(FILE* f) const { pclose(f); }
};

std::string output(const std::string& command)
{
    std::unique_ptr<FILE, PipeCloser> pipe(popen(command.c_str(), "r"));
    std::string out;
    char buffer[65536];
    for (std::size_t n; pipe && (n = std::fread(buffer, 1, sizeof buffer, pipe.get())) > 0;)
        out.append(buffer, n);
    return out;
}

void pause(int ms) { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }

// "123 456" after the label in xdotool's geometry text.
bool readPair(const std::string& text, const std::string& label, char between, int& a, int& b)
{
    const std::size_t at = text.find(label);
    if (at == std::string::npos)
        return false;
    std::istringstream in(text.substr(at + label.size()));
    char sep = 0;
    return bool(in >> a >> sep >> b) && sep == between;
}

}  // namespace

std::uint32_t Shot::at(int x, int y) const
{
    if (x < 0 || y < 0 || x >= width || y >= height)
        return 0xFF000000u;
    const std::size_t i = (std::size_t(y) * std::size_t(width) + std::size_t(x)) * 3;
    return std::uint32_t(rgb[i]) << 16 | std::uint32_t(rgb[i + 1]) << 8 | rgb[i + 2];
}

std::optional<Shot> screenShot()
{
    const std::string ppm = output("import -silent -window root -depth 8 ppm:- 2>/dev/null");
    std::istringstream in(ppm);
    std::string magic;
    Shot shot;
    int depth = 0;
    if (!(in >> magic >> shot.width >> shot.height >> depth) || magic != "P6" || depth != 255)
        return std::nullopt;
    in.get();
    shot.rgb.resize(std::size_t(shot.width) * std::size_t(shot.height) * 3);
    in.read(reinterpret_cast<char*>(shot.rgb.data()), std::streamsize(shot.rgb.size()));
    if (in.gcount() != std::streamsize(shot.rgb.size()))
        return std::nullopt;
    return shot;
}

std::optional<Shot> screenShotWhen(int x, int y, std::uint32_t rgb, int timeoutMs)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    std::optional<Shot> shot = screenShot();
    while ((!shot || shot->at(x, y) != rgb) && std::chrono::steady_clock::now() < end) {
        pause(100);
        shot = screenShot();
    }
    return shot;
}

std::optional<PointerPicture> pointerPicture()
{
    Display* display = XOpenDisplay(nullptr);
    if (!display)
        return std::nullopt;
    std::optional<PointerPicture> picture;
    if (XFixesCursorImage* image = XFixesGetCursorImage(display)) {
        picture = PointerPicture{image->width, image->height, image->xhot, image->yhot,
                                 std::vector<unsigned long>(image->pixels, image->pixels + image->width * image->height)};
        XFree(image);
    }
    XCloseDisplay(display);
    return picture;
}

std::optional<WindowBox> waitForWindow(const std::string& title, int timeoutMs)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    while (std::chrono::steady_clock::now() < end) {
        std::istringstream ids(output("xdotool search --onlyvisible --name '^" + title + "$' 2>/dev/null"));
        WindowBox box;
        box.title = title;
        if (ids >> box.id) {
            const std::string geometry = output("xdotool getwindowgeometry " + box.id);
            if (readPair(geometry, "Position:", ',', box.x, box.y) &&
                readPair(geometry, "Geometry:", 'x', box.width, box.height))
                return box;
        }
        pause(100);
    }
    return std::nullopt;
}

void clickAt(int x, int y)
{
    moveTo(x, y);
    output("xdotool click 1");
    pause(300);
}

void moveTo(int x, int y)
{
    output("xdotool mousemove " + std::to_string(x) + " " + std::to_string(y));
    pause(300);
}

void rightClickAt(int x, int y)
{
    moveTo(x, y);
    output("xdotool click 3");
    pause(300);
}

void dragBy(int x, int y, int dx, int dy)
{
    moveTo(x, y);
    output("xdotool mousedown 1");
    pause(200);
    for (int step = 1; step <= 4; ++step) {
        output("xdotool mousemove " + std::to_string(x + dx * step / 4) + " " + std::to_string(y + dy * step / 4));
        pause(100);
    }
    output("xdotool mouseup 1");
    pause(300);
}

void typeText(const WindowBox& window, const std::string& text)
{
    output("xdotool windowfocus --sync " + window.id + " 2>/dev/null");
    output("xdotool type '" + text + "'");
    pause(300);
}

void pressKey(const WindowBox& window, const std::string& key)
{
    output("xdotool windowfocus --sync " + window.id + " 2>/dev/null");
    output("xdotool key " + key);
    pause(300);
}

void pressOk(const WindowBox& box)
{
    // Without a window manager the first click may only bring the box to
    // the front: click until it is gone.
    for (int attempt = 0; attempt < 4; ++attempt) {
        clickAt(box.x + box.width / 2, box.y + box.height - 22);
        if (output("xdotool search --onlyvisible --name '^" + box.title + "$' 2>/dev/null").empty())
            return;
    }
}

WineProgram::WineProgram(const std::string& exe, const std::string& traceFile)
{
    const char* argv[] = {"wine", exe.c_str(), nullptr};
    std::vector<std::string> variables;
    for (char** v = environ; *v; ++v)
        if (traceFile.empty() || std::string_view(*v).substr(0, 10) != "WINEDEBUG=")
            variables.emplace_back(*v);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (!traceFile.empty()) {
        variables.emplace_back("WINEDEBUG=-all,trace+mci,trace+winmm");
        posix_spawn_file_actions_addopen(&actions, 2, traceFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    }
    std::vector<char*> env;
    for (std::string& v : variables)
        env.push_back(v.data());
    env.push_back(nullptr);
    if (posix_spawnp(&pid_, "wine", &actions, nullptr, const_cast<char* const*>(argv), env.data()) != 0)
        pid_ = -1;
    posix_spawn_file_actions_destroy(&actions);
}

WineProgram::~WineProgram()
{
    if (pid_ > 0 && !waitExit(0)) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
}

std::optional<int> WineProgram::waitExit(int timeoutMs)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    for (;;) {
        int status = 0;
        if (pid_ <= 0)
            return -1;
        if (waitpid(pid_, &status, WNOHANG) == pid_) {
            pid_ = -1;
            return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        }
        if (std::chrono::steady_clock::now() >= end)
            return std::nullopt;
        pause(50);
    }
}

}  // namespace qor::test

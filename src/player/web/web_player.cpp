// The browser player: the player core behind ports that hand everything to
// the page's script (qor_player.js, front.js). The page owns the drawing,
// the input and the files; this side owns every decision, as in the other
// players. Scenes cross as JSON text, input comes back as exported calls.
#include <emscripten.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>

#include "model/shape_region.h"
#include "player/core/command_line.h"
#include "player/core/menu_place.h"
#include "player/core/pixels.h"
#include "player/core/player.h"

namespace {

using namespace qor::player;

// The page is laid out in CSS pixels, 15 twips each, whatever the screen.
constexpr double kTwipsPerPixel = 15;
int px(double twips) { return twipsToPixels(twips, kTwipsPerPixel); }

// ---- JSON out -------------------------------------------------------------

void quote(std::string& out, std::string_view s)
{
    out += '"';
    for (unsigned char c : s) {
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (c < 0x20) {
                char buf[8];
                std::snprintf(buf, sizeof buf, "\\u%04x", c);
                out += buf;
            } else {
                out += char(c);
            }
        }
    }
    out += '"';
}

class Json {
public:
    Json& key(std::string_view k)
    {
        out_ += first_ ? "" : ",";
        first_ = false;
        quote(out_, k);
        out_ += ':';
        return *this;
    }
    Json& str(std::string_view k, std::string_view v) { key(k); quote(out_, v); return *this; }
    Json& num(std::string_view k, double v)
    {
        key(k);
        char buf[32];
        std::snprintf(buf, sizeof buf, "%.17g", v);
        out_ += buf;
        return *this;
    }
    Json& flag(std::string_view k, bool v) { key(k); out_ += v ? "true" : "false"; return *this; }
    Json& raw(std::string_view k, std::string_view v) { key(k); out_ += v; return *this; }
    std::string done() const { return "{" + out_ + "}"; }

private:
    std::string out_;
    bool first_ = true;
};

std::string cursorJson(const CursorChoice& c)
{
    return Json().num("pointer", c.pointer).str("icon", c.icon).done();
}

std::string windowJson(const WindowScene& w)
{
    // The outline as the rows of pixels it keeps, by the rule the other
    // players cut with: the page clips to exactly those, and a long outline
    // becomes a few runs per row rather than a polygon to fill at every paint.
    std::string shape = "[";
    if (!w.shape.empty()) {
        const std::vector<qor::PixelRun> runs =
            qor::polygonRuns(w.shape, std::max(1, px(w.width)), std::max(1, px(w.height)));
        for (std::size_t i = 0; i < runs.size(); ++i) {
            if (i)
                shape += ',';
            shape += std::to_string(runs[i].x) + ',' + std::to_string(runs[i].y) + ',' + std::to_string(runs[i].width);
        }
    }
    shape += ']';
    return Json()
        .str("caption", w.caption)
        .flag("fullScreen", w.fullScreen)
        .num("left", px(w.left)).num("top", px(w.top))
        .num("width", std::max(1, px(w.width))).num("height", std::max(1, px(w.height)))
        .num("backColor", w.backColor)
        .str("backgroundImage", w.backgroundImage)
        .flag("stretch", w.stretch)
        .flag("borderVisible", w.borderVisible)
        .num("borderColor", w.borderColor).num("borderWidth", w.borderWidth).num("borderShape", w.borderShape)
        .flag("outline", !w.shape.empty())
        .raw("shape", shape)
        .str("transparencyImage", w.transparencyImage)
        .flag("visible", w.visible)
        .num("windowState", w.windowState)
        .raw("cursor", cursorJson(w.cursor))
        .raw("screenCursor", cursorJson(w.screenCursor))
        .flag("handOverButtons", w.handOverButtons)
        .flag("contextMenu", w.contextMenu)
        .done();
}

std::string buttonJson(const ButtonScene& b)
{
    return Json()
        .num("number", b.number)
        .num("x", px(b.left)).num("y", px(b.top))
        .str("normal", b.normalImage).str("hover", b.hoverImage).str("pressed", b.pressedImage)
        .str("shown", b.shownImage())
        .flag("enabled", b.enabled).flag("visible", b.visible)
        .raw("cursor", cursorJson(b.cursor))
        .done();
}

std::string textJson(const TextScene& t)
{
    return Json()
        .num("number", t.number)
        .str("text", t.text)
        .num("alignment", t.alignment)
        .str("fontName", t.fontName).num("fontSize", t.fontSize)
        .flag("bold", t.fontBold).flag("italic", t.fontItalic)
        .flag("strike", t.fontStrikethru).flag("underline", t.fontUnderline)
        .num("foreColor", t.foreColor).num("backColor", t.backColor)
        .num("x", px(t.left)).num("y", px(t.top))
        .num("width", std::max(0, px(t.width))).num("height", std::max(0, px(t.height)))
        .flag("scrollBar", t.scrollBar).flag("locked", t.locked).flag("visible", t.visible)
        .raw("cursor", cursorJson(t.cursor))
        .done();
}

template <typename T, typename F>
std::string listJson(const std::vector<T>& items, F one)
{
    std::string out = "[";
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i)
            out += ',';
        out += one(items[i]);
    }
    return out + "]";
}

std::string timerJson(const TimerScene& t)
{
    return Json().flag("runs", t.runs()).num("interval", double(t.interval)).done();
}

// ---- the page's side ------------------------------------------------------

// clang-format off
EM_JS(void, js_call, (const char* what, const char* json), {
    Module.qorPage.call(UTF8ToString(what), JSON.parse(UTF8ToString(json)));
});
EM_JS(int, js_number, (const char* what, const char* json), {
    return Module.qorPage.call(UTF8ToString(what), JSON.parse(UTF8ToString(json))) | 0;
});
// A file of the menu's folder as the page holds it: its length first, then
// the bytes in a buffer this side frees; -1 when the page has no such file.
EM_JS(int, js_file_size, (const char* path), {
    return Module.qorPage.fileSize(UTF8ToString(path));
});
EM_JS(void, js_file_read, (const char* path, char* into), {
    Module.qorPage.fileRead(UTF8ToString(path), into);
});
// The boxes wait for the user: with the browser's promise integration the
// page's promise suspends this stack until the answer comes (the pre-js file
// wait_for_boxes.js sets that up); without it the browser's own boxes answer
// at once.
EM_JS(int, js_message_box, (const char* json), {
    const request = JSON.parse(UTF8ToString(json));
    return Module.qorWaits ? Module.qorPage.messageBox(request) : Module.qorPage.messageBoxNow(request);
});
// The answer's bytes, or 0 for a cancelled box; this side frees them.
EM_JS(char*, js_input_box, (const char* json), {
    const request = JSON.parse(UTF8ToString(json));
    const copy = function(answer) {
        if (answer === null)
            return 0;
        const size = lengthBytesUTF8(answer) + 1;
        const p = _malloc(size);
        stringToUTF8(answer, p, size);
        return p;
    };
    return Module.qorWaits ? Module.qorPage.inputBox(request).then(copy) : copy(Module.qorPage.inputBoxNow(request));
});
// clang-format on

void call(const char* what, const std::string& json) { js_call(what, json.c_str()); }

class WebView : public PlayerView {
public:
    ScreenInfo screen() const override
    {
        ScreenInfo s;
        s.width = js_number("screenWidth", "null");
        s.height = js_number("screenHeight", "null");
        return s;
    }
    std::optional<ImageSize> imageSize(const std::string& path) override
    {
        std::string json;
        quote(json, path);
        const int w = js_number("imageWidth", json.c_str());
        const int h = js_number("imageHeight", json.c_str());
        if (w <= 0 || h <= 0)
            return std::nullopt;
        return ImageSize{w, h};
    }
    void show(const Scene& s) override
    {
        call("show", Json()
                         .raw("window", windowJson(s.window))
                         .raw("buttons", listJson(s.buttons, buttonJson))
                         .raw("texts", listJson(s.texts, textJson))
                         .raw("timer", timerJson(s.timer))
                         .done());
    }
    void windowChanged(const WindowScene& w) override { call("window", windowJson(w)); }
    void buttonChanged(std::size_t i, const ButtonScene& b) override
    {
        call("button", Json().num("index", double(i)).raw("button", buttonJson(b)).done());
    }
    void textChanged(std::size_t i, const TextScene& t) override
    {
        call("text", Json().num("index", double(i)).raw("text", textJson(t)).done());
    }
    void timerChanged(const TimerScene& t) override { call("timer", timerJson(t)); }
    void close() override { call("close", "null"); }
    int messageBox(const MessageRequest& r) override
    {
        const std::string json = Json().str("text", r.text).str("title", r.title).num("buttons", r.buttons).done();
        return js_message_box(json.c_str());
    }
    std::optional<std::string> inputBox(const qor::script::InputBoxRequest& r) override
    {
        Json j;
        j.str("prompt", r.prompt).str("defaultText", r.defaultText);
        if (r.title)
            j.str("title", *r.title);
        const std::string json = j.done();
        char* answer = js_input_box(json.c_str());
        if (!answer)
            return std::nullopt;
        std::string out(answer);
        std::free(answer);
        return out;
    }
};

class WebMedia : public MediaPort {
public:
    void playMusic(const std::string& path) override { call("music", pathJson(path)); }
    void playSound(const std::string& path) override { call("sound", pathJson(path)); }
    void playVideo(const std::string& path) override { call("video", pathJson(path)); }
    void stopAll() override { call("stopMedia", "null"); }

    static std::string pathJson(const std::string& path)
    {
        std::string json;
        quote(json, path);
        return json;
    }
};

// Files are those the page was given with the menu, never the visitor's:
// the menu's folder lies under "/cd/", which the page maps onto its own
// folder for what it opens in a new tab.
class WebSystem : public SystemPort {
public:
    char separator() const override { return '/'; }
    std::string driveLetterOf(const std::string&) const override { return "D"; }
    bool fileExists(const std::string& path) const override
    {
        return js_number("exists", WebMedia::pathJson(path).c_str()) != 0;
    }
    std::optional<std::string> readFile(const std::string& path) const override
    {
        const int size = js_file_size(path.c_str());
        if (size < 0)
            return std::nullopt;
        std::string bytes(std::size_t(size), '\0');
        if (size > 0)
            js_file_read(path.c_str(), bytes.data());
        return bytes;
    }
    bool openWithDesktop(const std::string& target) override
    {
        return js_number("open", WebMedia::pathJson(target).c_str()) != 0;
    }
    // A browser starts no program: the visitor is told the CD does that.
    bool startProgram(const std::string& program, const std::string&) override
    {
        call("needsWindows", WebMedia::pathJson(program));
        return true;
    }
    bool startMenu(const std::string& menuFile) override
    {
        return js_number("openMenu", WebMedia::pathJson(menuFile).c_str()) != 0;
    }
    void ejectTray(const std::string&, bool) override { call("needsWindows", "\"\""); }
};

struct Session {
    WebView view;
    WebMedia media;
    WebSystem system;
    std::unique_ptr<Player> player;
};

Session* session = nullptr;

bool ready(std::size_t index = 0, bool isButton = false)
{
    if (!session || !session->player || session->player->closed())
        return false;
    return !isButton || index < session->player->scene().buttons.size();
}

}  // namespace

extern "C" {

// Loads the menu data file the page holds and shows it. 0 when it runs, 1
// when no menu could be read (the page was told why).
EMSCRIPTEN_KEEPALIVE int qor_start(const char* menuFile)
{
    static Session s;
    session = &s;
    LoadResult loaded = loadMenu(s.system, menuFile);
    if (const auto* failure = std::get_if<LoadFailure>(&loaded)) {
        s.view.messageBox({failure->message, std::string(kLoadErrorTitle), 16});
        return 1;
    }
    MenuPlace place = MenuPlace::of(menuFile, '/', "D");
    s.player = std::make_unique<Player>(std::get<qor::MenuData>(std::move(loaded)), std::move(place), s.view, s.media,
                                        s.system);
    // The step budget stays the native players' own: a script that runs on
    // the CD runs here too, and an endless one is stopped after a second or
    // two.
    //
    // The browser's own stack (about 1 MB) is spent three times faster than
    // the engine's measure of it, and running out of it leaves the player
    // half unwound: 128 KB by that measure stops a recursion at about 600
    // calls with "Espace de pile insuffisant", well before the browser would.
    s.player->module().setMaxStackBytes(128 * 1024);
    s.player->start();
    return 0;
}

// Runs statements in the menu's module, as a button's script runs: "" when
// they ran, else the error's text. The page's checks and the loop
// benchmark drive the engine through here.
EMSCRIPTEN_KEEPALIVE const char* qor_run_statement(const char* source)
{
    static std::string out;
    out.clear();
    if (!session || !session->player)
        return "pas de menu";
    qor::script::RunResult r =
        session->player->module().runCode(expandPlaceholders(source, session->player->place()));
    if (!r.ok())
        out = scriptErrorText(*r.error, "test");
    return out.c_str();
}

EMSCRIPTEN_KEEPALIVE void qor_enter(int i)
{
    if (ready(std::size_t(i), true))
        session->player->pointerEntersButton(std::size_t(i));
}
EMSCRIPTEN_KEEPALIVE void qor_leave(int i)
{
    if (ready(std::size_t(i), true))
        session->player->pointerLeavesButton(std::size_t(i));
}
EMSCRIPTEN_KEEPALIVE void qor_press(int i)
{
    if (ready(std::size_t(i), true))
        session->player->pressButton(std::size_t(i));
}
EMSCRIPTEN_KEEPALIVE void qor_release(int i, int over)
{
    if (ready(std::size_t(i), true))
        session->player->releaseButton(std::size_t(i), over != 0);
}
EMSCRIPTEN_KEEPALIVE void qor_background_over()
{
    if (ready())
        session->player->pointerOverBackground();
}
EMSCRIPTEN_KEEPALIVE void qor_background_leave()
{
    if (ready())
        session->player->pointerLeavesBackground();
}
EMSCRIPTEN_KEEPALIVE void qor_timer()
{
    if (ready())
        session->player->timerTick();
}
EMSCRIPTEN_KEEPALIVE void qor_text_edited(int i, const char* text)
{
    if (ready() && std::size_t(i) < session->player->scene().texts.size())
        session->player->textEdited(std::size_t(i), text);
}
EMSCRIPTEN_KEEPALIVE void qor_close()
{
    if (ready())
        session->player->close();
}
// The visitor dragged the window to there, in the page's pixels.
EMSCRIPTEN_KEEPALIVE void qor_window_moved(int left, int top)
{
    if (ready())
        session->player->windowMoved(left, top);
}
// The visitor minimised or restored the window (0 normal, 1 minimised).
EMSCRIPTEN_KEEPALIVE void qor_window_state(int state)
{
    if (ready())
        session->player->windowStateChanged(state);
}
// The context menu's entries, one per line.
EMSCRIPTEN_KEEPALIVE const char* qor_context_entries()
{
    static std::string out;
    out.clear();
    if (ready())
        for (const std::string& e : session->player->contextMenuEntries())
            out += e + "\n";
    return out.c_str();
}
EMSCRIPTEN_KEEPALIVE void qor_choose_context(int entry)
{
    if (ready())
        session->player->chooseContextEntry(std::size_t(entry));
}
}

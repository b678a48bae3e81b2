#include "editor/app/editor_windows.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFont>
#include <QFontMetrics>
#include <QImageReader>
#include <QThreadPool>
#include <QTimer>
#include <QWindow>

#include "core/ui/appearances_file.h"
#include "editor/app/main_window.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/project/file_info_window.h"
#include "editor/scripting/script_editor_window.h"
#include "editor/ui/mouse_position_window.h"
#include "editor/ui/splash_window.h"
#include "editor/platform/widget_names.h"

#include <mutex>

namespace qor {
namespace {

// Work done ahead while the windows are built. Its threads end as soon as
// their work is done: once started, the editor runs on its event loop alone.
QThreadPool& startPool()
{
    static QThreadPool pool;
    pool.setExpiryTimeout(0);
    return pool;
}

// The first paint of the windows reads a picture of the style's own (the
// frame of a group box), and the first picture read loads every image format
// plug-in. Loaded meanwhile on another processor, while the windows are
// built, they are ready when the windows paint.
void loadImageFormatsAhead()
{
    static std::once_flag once;
    std::call_once(once, [] {
        startPool().start([] { (void)QImageReader::supportedImageFormats(); });
    });
}

// The appearances name a Windows font that a Linux desktop seldom has: the
// font database then asks the system for the families that stand in for it,
// which takes as long as building a window. The answer is kept for the whole
// process, so asking it here on another processor, while the windows are
// built, leaves the main thread only the font itself to load when the
// appearance reaches the windows.
void findAppearanceFontAhead()
{
    static std::once_flag once;
    std::call_once(once, [] {
        startPool().start(
            [] { (void)QFontMetrics(QFont(QString::fromLatin1(kDefaultFontName))).height(); });
    });
}

}  // namespace

EditorWindows::EditorWindows(const ScreenMetrics& screen, WindowHooks& hooks)
    : screen_(screen), hooks_(hooks)
{
    loadImageFormatsAhead();
    findAppearanceFontAhead();
    splash_ = std::make_unique<SplashWindow>(screen_, hooks_);
}

EditorWindows::~EditorWindows() = default;

template <class W, class... Args>
std::unique_ptr<W> EditorWindows::create(Args&&... args)
{
    auto window = std::make_unique<W>(std::forward<Args>(args)...);
    loadOrder_ << window->objectName();
    return window;
}

void EditorWindows::showSplash()
{
    const QSize size = splash_->size();
    const QSize screen(int(screen_.widthPixels()), int(screen_.heightPixels()));
    splash_->move((screen.width() - size.width()) / 2, (screen.height() - size.height()) / 2);
    splash_->show();
    // Let it paint before the other windows load: a window system shows a
    // window only once it has mapped it, which takes a moment on X11.
    if (!splash_->painted()) {
        QEventLoop wait;
        QObject::connect(splash_.get(), &SplashWindow::picturePainted, &wait, &QEventLoop::quit);
        QTimer::singleShot(kSplashPaintWaitMs, &wait, &QEventLoop::quit);
        wait.exec(QEventLoop::ExcludeUserInputEvents);
    }
}

void EditorWindows::loadWindow(WindowId id)
{
    if (isLoaded(id))
        return;
    switch (id) {
    case WindowId::Toolbox: toolbox_ = create<ToolboxWindow>(screen_, hooks_); break;
    case WindowId::Main: main_ = create<MainWindow>(screen_, hooks_); break;
    case WindowId::Worksheet: worksheet_ = create<WorksheetWindow>(screen_, hooks_); break;
    case WindowId::PropertiesPanel: properties_ = create<PropertiesPanel>(screen_, hooks_); break;
    case WindowId::ScriptEditor:
        // Built when a script is first opened in it.
        scriptEditorLoaded_ = true;
        loadOrder_ << QString::fromUtf8(windowName(WindowId::ScriptEditor).data());
        break;
    case WindowId::MousePosition: mousePosition_ = create<MousePositionWindow>(hooks_); break;
    case WindowId::FileInfo: fileInfo(); break;
    case WindowId::Splash: break;
    default: break;  // built by their own flows when first used
    }
}

bool EditorWindows::isLoaded(WindowId id) const
{
    switch (id) {
    case WindowId::Toolbox: return toolbox_ != nullptr;
    case WindowId::Main: return main_ != nullptr;
    case WindowId::Worksheet: return worksheet_ != nullptr;
    case WindowId::PropertiesPanel: return properties_ != nullptr;
    case WindowId::ScriptEditor: return scriptEditorLoaded_;
    case WindowId::MousePosition: return mousePosition_ != nullptr;
    case WindowId::FileInfo: return fileInfo_ != nullptr;
    case WindowId::Splash: return true;
    default: return false;
    }
    return false;
}

void EditorWindows::load()
{
    for (WindowId id : kStartupLoadOrder)
        loadWindow(id);
}

QWidget* EditorWindows::window(WindowId id)
{
    if (!isLoaded(id))
        return nullptr;
    switch (id) {
    case WindowId::Toolbox: return toolbox_.get();
    case WindowId::Main: return main_.get();
    case WindowId::Worksheet: return worksheet_.get();
    case WindowId::PropertiesPanel: return properties_.get();
    case WindowId::ScriptEditor: return &scriptEditor();
    case WindowId::MousePosition: return mousePosition_.get();
    case WindowId::FileInfo: return fileInfo_.get();
    case WindowId::Splash: return splash_.get();
    default: return nullptr;
    }
    return nullptr;
}

ScriptEditorWindow& EditorWindows::scriptEditor()
{
    if (!scriptEditor_) {
        scriptEditorLoaded_ = true;
        scriptEditor_ = std::make_unique<ScriptEditorWindow>(screen_, hooks_);
    }
    return *scriptEditor_;
}

FileInfoWindow& EditorWindows::fileInfo()
{
    if (!fileInfo_)
        fileInfo_ = std::make_unique<FileInfoWindow>(hooks_, main_.get());
    return *fileInfo_;
}

void EditorWindows::showAll()
{
    main_->show();
    toolbox_->show();
    worksheet_->show();
    properties_->show();
    mousePosition_->show();
    splash_->hide();
}

void EditorWindows::hideAll()
{
    QWidget* windows[] = {splash_.get(), fileInfo_.get(), toolbox_.get(), worksheet_.get(), properties_.get(),
                          scriptEditor_.get(), mousePosition_.get(), main_.get()};
    for (QWidget* w : windows)
        if (w)
            w->hide();
}

void EditorWindows::closeAll()
{
    hideAll();
    if (!loaded()) {
        splash_->close();
        return;
    }
    toolbox_->releaseForQuit();
    worksheet_->releaseForQuit();
    properties_->releaseForQuit();
    mousePosition_->releaseForQuit();
    main_->releaseForQuit();
    QWidget* windows[] = {splash_.get(), fileInfo_.get(), toolbox_.get(), worksheet_.get(), properties_.get(),
                          scriptEditor_.get(), mousePosition_.get(), main_.get()};
    for (QWidget* w : windows)
        if (w)
            w->close();
}

void EditorWindows::place(QWidget& window, const TwipsRect& rect)
{
    setGeometryTwips(window, rect, screen_);
}

TwipsRect EditorWindows::placeOf(const QWidget& window) const
{
    return geometryTwips(window, screen_);
}

QMargins EditorWindows::frameOf(const QWidget& window) const
{
    if (const QWindow* handle = window.windowHandle(); handle && handle->handle()) {
        const QMargins drawn = handle->frameMargins();
        if (!drawn.isNull())
            return drawn;
    }
    const int side = twipsToPixels(kAssumedBorder, screen_.twipsPerPixelX);
    const int bottom = twipsToPixels(kAssumedBorder, screen_.twipsPerPixelY);
    const int top = twipsToPixels(kAssumedCaption, screen_.twipsPerPixelY);
    return {side, top, side, bottom};
}

TwipsSize EditorWindows::outerSize(const QWidget& window) const
{
    const QMargins f = frameOf(window);
    return {(window.width() + f.left() + f.right()) * screen_.twipsPerPixelX,
            (window.height() + f.top() + f.bottom()) * screen_.twipsPerPixelY};
}

void EditorWindows::setOuterSize(QWidget& window, double width, double height)
{
    const QMargins f = frameOf(window);
    const int w = twipsToPixels(width, screen_.twipsPerPixelX) - f.left() - f.right();
    const int h = twipsToPixels(height, screen_.twipsPerPixelY) - f.top() - f.bottom();
    window.resize(std::max(1, w), std::max(1, h));
}

void EditorWindows::setOuterHeight(QWidget& window, double height)
{
    const QMargins f = frameOf(window);
    const int h = twipsToPixels(height, screen_.twipsPerPixelY) - f.top() - f.bottom();
    window.resize(window.width(), std::max(1, h));
}

void EditorWindows::moveTo(QWidget& window, double left, double top)
{
    window.move(twipsToPixels(left, screen_.twipsPerPixelX), twipsToPixels(top, screen_.twipsPerPixelY));
}

}  // namespace qor

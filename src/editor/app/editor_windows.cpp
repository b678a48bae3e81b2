#include "editor/app/editor_windows.h"

#include <QCoreApplication>

#include "editor/app/main_window.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/scripting/script_editor_window.h"
#include "editor/ui/mouse_position_window.h"
#include "editor/ui/splash_window.h"

namespace qor {

EditorWindows::EditorWindows(const ScreenMetrics& screen, WindowHooks& hooks)
    : screen_(screen), hooks_(hooks)
{
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
    splash_->repaint();
    QCoreApplication::processEvents();
}

void EditorWindows::load()
{
    if (loaded())
        return;
    toolbox_ = create<ToolboxWindow>(screen_, hooks_);
    main_ = create<MainWindow>(screen_, hooks_);
    worksheet_ = create<WorksheetWindow>(screen_, hooks_);
    properties_ = create<PropertiesPanel>(screen_, hooks_);
    scriptEditor_ = create<ScriptEditorWindow>(screen_, hooks_);
    mousePosition_ = create<MousePositionWindow>(hooks_);
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

void EditorWindows::closeAll()
{
    if (!loaded()) {
        splash_->close();
        return;
    }
    QWidget* windows[] = {splash_.get(), toolbox_.get(), worksheet_.get(), properties_.get(),
                          scriptEditor_.get(), mousePosition_.get(), main_.get()};
    for (QWidget* w : windows)
        w->hide();
    toolbox_->releaseForQuit();
    worksheet_->releaseForQuit();
    properties_->releaseForQuit();
    mousePosition_->releaseForQuit();
    main_->releaseForQuit();
    for (QWidget* w : windows)
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

}  // namespace qor

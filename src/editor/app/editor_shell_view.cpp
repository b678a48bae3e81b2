#include "editor/app/editor_shell_view.h"

#include <QApplication>
#include <QCursor>

#include "editor/app/editor_windows.h"
#include "editor/app/main_window.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/colours.h"
#include "editor/platform/qt_text.h"
#include "editor/ui/mouse_position_window.h"
#include "editor/ui/splash_window.h"
#include "editor/ui/widget_control_node.h"
#include "core/ui/appearance_rules.h"

namespace qor {

EditorShellView::EditorShellView(EditorWindows& windows)
    : endEventLoop([] { QCoreApplication::quit(); }), windows_(windows)
{
}

EditorShellView::~EditorShellView()
{
    // The pointer belongs to the whole application: give it back.
    setPrecisePointer(false);
}

void EditorShellView::showSplash()
{
    windows_.showSplash();
}

void EditorShellView::hideSplash()
{
    windows_.splash().hide();
}

void EditorShellView::loadWindow(WindowId window)
{
    windows_.loadWindow(window);
    if (window == WindowId::Worksheet)
        windows_.worksheet().setSelectionHandlesVisible(handlesVisible_);
    if (windowLoaded)
        windowLoaded(window);
}

TwipsSize EditorShellView::windowSize(WindowId window)
{
    const QWidget* w = windows_.window(window);
    return w ? windows_.outerSize(*w) : TwipsSize{};
}

void EditorShellView::arrangeWindows(const WindowArrangement& a)
{
    WorksheetWindow& sheet = windows_.worksheet();
    windows_.setOuterSize(sheet, a.worksheetSize.width, a.worksheetSize.height);
    windows_.moveTo(sheet, a.worksheet.left, a.worksheet.top);
    windows_.moveTo(windows_.toolbox(), a.toolbox.left, a.toolbox.top);
    windows_.moveTo(windows_.main(), a.main.left, a.main.top);
    PropertiesPanel& panel = windows_.properties();
    windows_.moveTo(panel, a.properties.left, a.properties.top);
    windows_.setOuterHeight(panel, a.propertiesHeight);
    windows_.moveTo(windows_.mousePosition(), a.mousePosition.left, a.mousePosition.top);
    panel.resetElementSelector();
}

void EditorShellView::showWindow(WindowId window)
{
    QWidget* w = windows_.window(window);
    if (!w)
        return;
    w->show();
    // A window shown at start becomes the active one, as it did on the
    // editor's first platform; the properties panel's first activation is
    // what opens the project named on the command line.
    if (window == WindowId::PropertiesPanel)
        w->activateWindow();
}

void EditorShellView::hideAllWindows()
{
    windows_.hideAll();
}

void EditorShellView::unloadAllWindows()
{
    windows_.closeAll();
    setPrecisePointer(false);
    if (endEventLoop)
        endEventLoop();
}

void EditorShellView::setApplicationTitle(const std::string& title)
{
    // The name the desktop's task list groups the editor's windows under.
    QCoreApplication::setApplicationName(toQt(title));
}

void EditorShellView::setMainCaption(const std::string& caption)
{
    windows_.main().setCaption(caption);
}

std::vector<double> EditorShellView::menuTitleTextWidths()
{
    return windows_.main().menuTitleTextWidths();
}

void EditorShellView::placeMenuTitles(const std::vector<TitleBox>& boxes)
{
    windows_.main().placeMenuTitles(boxes);
}

void EditorShellView::highlightMenuTitle(int index, const TitleColours& colours)
{
    MainWindow& main = windows_.main();
    if (index < 0) {
        main.resetMenuTitles();
        return;
    }
    // A highlighted title is the normal one reversed: its background is the
    // text colour of the other titles, its text their background.
    const QPalette& palette = main.palette();
    main.setTitleColours(toQColor(colours.text, palette), toQColor(colours.background, palette));
    main.highlightMenuTitle(index);
}

void EditorShellView::popUpMenu(int index, double left, double top)
{
    windows_.main().popUpMenuAt(index, left, top);
}

void EditorShellView::setOptionMark(CommandId option, bool checked)
{
    windows_.main().setChecked(option, checked);
}

void EditorShellView::setPrecisePointer(bool on)
{
    if (on == precisePointer_)
        return;
    precisePointer_ = on;
    // Over every window of the editor, fields and menus included.
    if (on)
        QApplication::setOverrideCursor(QCursor(Qt::CrossCursor));
    else
        QApplication::restoreOverrideCursor();
}

void EditorShellView::setMousePositionWindowVisible(bool visible)
{
    // Before the window is loaded there is nothing to do: start-up shows it
    // whatever the option says.
    if (windows_.isLoaded(WindowId::MousePosition))
        windows_.mousePosition().setVisible(visible);
}

void EditorShellView::setSelectionHandlesVisible(bool visible)
{
    handlesVisible_ = visible;
    if (windows_.isLoaded(WindowId::Worksheet))
        windows_.worksheet().setSelectionHandlesVisible(visible);
}

void EditorShellView::showRecentFiles(const std::vector<RecentFileEntry>& entries)
{
    // The window numbers its entries 1 to 5 by their place in the list.
    std::vector<std::string> captions;
    for (const auto& e : entries) {
        if (e.position < 1 || e.path.empty())
            continue;
        if (captions.size() < std::size_t(e.position))
            captions.resize(std::size_t(e.position));
        captions[std::size_t(e.position) - 1] = e.caption;
    }
    windows_.main().setRecentFiles(captions);
}

void EditorShellView::showPlugins(const std::vector<PluginCommand>& commands, bool placeholderVisible)
{
    std::vector<std::string> captions;
    for (const auto& c : commands)
        captions.push_back(c.caption);
    windows_.main().setPlugins(captions, placeholderVisible);
}

void EditorShellView::showLanguages(const std::vector<std::string>& captions, int checked)
{
    // The window puts "Français" first itself.
    const std::vector<std::string> installed(captions.empty() ? captions.end() : captions.begin() + 1,
                                             captions.end());
    windows_.main().setLanguages(installed, checked);
}

// The appearance editor comes with its own part; until then its command
// opens nothing.
void EditorShellView::applyAppearance(WindowId window, const Appearance& appearance)
{
    QWidget* w = windows_.window(window);
    if (!w)
        return;
    auto node = windowNode(*w);
    qor::applyAppearance(*node, appearance);
    if (window == WindowId::PropertiesPanel)
        windows_.properties().keepAppearance(appearance);
    // The main window paints its menu titles itself, in the window's colours;
    // its appearance editor's frame, built later, takes the appearance then.
    if (window == WindowId::Main) {
        windows_.main().keepAppearance(appearance);
        const QPalette& system = QApplication::palette();
        windows_.main().setTitleColours(toQColor(appearance.windowBack, system), toQColor(appearance.textColor, system));
    }
}

void EditorShellView::openAppearancePanel()
{
    if (appearancePanelRequested)
        appearancePanelRequested();
}

void EditorShellView::openPrintPreview(int entry)
{
    if (printPreviewRequested)
        printPreviewRequested(entry);
}

void EditorShellView::openCreationWizard()
{
    if (creationWizardRequested)
        creationWizardRequested();
}

}  // namespace qor

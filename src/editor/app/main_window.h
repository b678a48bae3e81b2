#pragma once

#include <QColor>
#include <QList>
#include <QTimer>
#include <QWidget>

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/app/menu_titles.h"
#include "core/ports/screen.h"
#include "core/ui/commands.h"
#include "core/ui/appearances_file.h"
#include "core/ui/menu_tree.h"
#include "editor/ui/widget_control_node.h"
#include "editor/ui/window_hooks.h"

class QAction;
class QMenu;

namespace qor {

class AppearanceFrame;
class MenuTitleLabel;

// The main window ("Form2"): a strip of six captions that act as menu
// titles, each popping its menu under it, and the hidden appearance frame
// below them. Every command of every menu goes to one dispatch point with
// its id and, for list entries, its position in the list. The window decides
// nothing itself: even check marks change only when told to.
class MainWindow : public QWidget, public LateControls {
    Q_OBJECT
public:
    static constexpr int kTitleCount = 6;

    // Heights of the whole window as the layout gives them: the title row
    // only, and with the appearance editor open.
    static constexpr double kMenuOnlyHeight = 615;
    static constexpr double kWithAppearanceHeight = 5085;
    // Those heights include a caption bar and borders of this size, which
    // the windowing system adds around the inner area here.
    static constexpr double kFrameAllowance = 360;
    static constexpr double kInnerWidth = 7200;

    using CommandHandler = std::function<void(CommandId id, int position)>;

    explicit MainWindow(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none(),
                        QWidget* parent = nullptr);
    ~MainWindow() override;

    // Where every command goes. Without a handler commands do nothing.
    void setCommandHandler(CommandHandler handler) { handler_ = std::move(handler); }
    void dispatch(CommandId id, int position = 0);

    void setCaption(const std::string& caption);

    // Menu titles. The pointer over a title, a press on one and everything
    // that resets them arrive as signals; by default the window answers them
    // itself (highlight, pop up, reset). A controller that wants to decide
    // turns that off and calls the operations below.
    MenuTitleLabel* menuTitle(int i) const { return titles_[std::size_t(i)]; }
    QMenu* menu(int i) const { return menus_[std::size_t(i)]; }
    void setLocalTitleHandling(bool on);
    // The widths in twips of the six captions' texts, titles 0 to 5.
    std::vector<double> menuTitleTextWidths() const;
    void placeMenuTitles(const std::vector<TitleBox>& boxes);
    const std::vector<TitleBox>& menuTitleBoxes() const { return boxes_; }
    void resetMenuTitles();
    void highlightMenuTitle(int i);
    // Highlights title i and pops its menu under it.
    void popUpMenu(int i);
    // Pops menu i with its top-left corner at (left, top) twips of the window.
    void popUpMenuAt(int i, double left, double top);
    int highlightedMenuTitle() const { return highlighted_; }

    // The colours of the current appearance that the titles use: normal
    // titles show text on windowBack, the highlighted one the reverse.
    void setTitleColours(const QColor& windowBack, const QColor& text);
    QColor titleBackground() const { return back_; }
    QColor titleText() const { return text_; }
    // The font of the captions (the appearance's font when none is chosen).
    QString captionFontName() const;

    // Commands and their check marks.
    QAction* commandAction(CommandId id) const;
    void setChecked(CommandId id, bool checked);
    bool isChecked(CommandId id) const;

    // The three lists the menus hold. Recent files: captions of entries 1 to
    // 5 ("" leaves an entry out); none gives the disabled "Aucun fichier
    // récent". Plug-ins: the commands after the placeholder, which shows only
    // when placeholderVisible. Languages: the installed ones after "Français";
    // checkedIndex 0 is "Français".
    void setRecentFiles(const std::vector<std::string>& captions);
    void setPlugins(const std::vector<std::string>& captions, bool placeholderVisible);
    void setLanguages(const std::vector<std::string>& names, int checkedIndex);
    QList<QAction*> recentFileActions() const { return recent_.actions; }
    QList<QAction*> pluginActions() const { return plugins_.actions; }
    QList<QAction*> languageActions() const { return languages_.actions; }

    // The appearance editor: revealed by making the window tall. Its frame
    // is built the first time it is asked for (shown, filled, or its
    // controls named by a script), and takes the window's appearance then.
    void setAppearanceEditorVisible(bool visible);
    bool appearanceEditorVisible() const;
    AppearanceFrame* appearanceFrame();
    void whenAppearanceFrameBuilt(std::function<void(AppearanceFrame&)> built);
    void keepAppearance(const Appearance& appearance) { appearanceColours_ = appearance; }
    void buildLateControls() override;

    // The one-shot timer that resets the titles 300 ms after the load.
    QTimer& titleResetTimer() { return titleReset_; }

    // From now on closing really closes (the quit flow has agreed).
    void releaseForQuit() { released_ = true; }

signals:
    void menuTitleHovered(int index);
    void menuTitlePressed(int index);
    void menuTitlesResetRequested();

protected:
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct ListSlot {
        QMenu* menu = nullptr;
        QAction* before = nullptr;   // the list goes in front of this (null: at the end)
        QString name;
        QList<QAction*> actions;
    };

    void buildMenus();
    void addEntries(QMenu* menu, const std::vector<MenuEntry>& entries);
    QAction* addCommand(QMenu* menu, const MenuEntry& entry);
    void paintTitle(int i, bool highlighted);
    void clearList(ListSlot& slot);
    QAction* addListAction(ListSlot& slot, const QString& caption, int index, CommandId id,
                           bool checkable);

    // The run's hooks: the texts set after loading come in its language.
    const WindowHooks* hooks_ = &WindowHooks::none();
    ScreenMetrics screen_;
    CommandHandler handler_;
    std::array<MenuTitleLabel*, kTitleCount> titles_{};
    std::array<QMenu*, kTitleCount> menus_{};
    std::vector<TitleBox> boxes_;
    std::map<CommandId, QAction*> actions_;
    ListSlot recent_, plugins_, languages_;
    AppearanceFrame* appearance_ = nullptr;
    std::function<void(AppearanceFrame&)> appearanceBuilt_;
    std::optional<Appearance> appearanceColours_;
    QTimer titleReset_;
    QColor back_, text_;
    int highlighted_ = -1;
    bool released_ = false;
    QList<QMetaObject::Connection> localTitleHandling_;
};

}  // namespace qor

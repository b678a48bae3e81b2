#include "editor/app/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QEvent>
#include <QFontMetrics>
#include <QKeySequence>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>

#include "core/ui/appearance_rules.h"
#include "editor/app/menu_title_label.h"
#include "editor/platform/colours.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"
#include "editor/ui/appearance_frame.h"
#include "editor/ui/run_time_texts.h"
#include "model/product.h"

namespace qor {
namespace {

// The system colours the main window shows before any appearance applies:
// button face behind button text.
constexpr Colour kButtonFace = Colour(0x8000000Fu);
constexpr Colour kButtonText = Colour(0x80000012u);

}  // namespace

MainWindow::MainWindow(const ScreenMetrics& screen, WindowHooks& hooks, QWidget* parent)
    : QWidget(parent, Qt::Window), screen_(screen)
{
    hooks_ = &hooks;
    named(this, WindowId::Main);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);

    back_ = toQColor(kButtonFace, palette());
    text_ = toQColor(kButtonText, palette());

    buildMenus();
    const auto& tree = mainMenus();
    for (int i = 0; i < kTitleCount; ++i) {
        auto* title = new MenuTitleLabel(i, toQt(tree[std::size_t(i)].title), this);
        titles_[std::size_t(i)] = title;
        connect(title, &MenuTitleLabel::hovered, this, &MainWindow::menuTitleHovered);
        connect(title, &MenuTitleLabel::pressed, this, &MainWindow::menuTitlePressed);
        // The title row has no access keys of its own; the menus' captions
        // ("&Fichier" ...) give Alt+letter shortcuts to the same menus.
        const QKeySequence key = QKeySequence::mnemonic(toQt(tree[std::size_t(i)].caption));
        if (!key.isEmpty()) {
            auto* shortcut = new QShortcut(key, this);
            // A press on the title, whoever handles the titles.
            connect(shortcut, &QShortcut::activated, this, [this, i] { emit menuTitlePressed(i); });
        }
    }

    setCaption("QOR v" + product::versionText() + " - créateur de menus");
    placeMenuTitles(layOutMenuTitles(menuTitleTextWidths()));
    resetMenuTitles();
    setAppearanceEditorVisible(false);

    // Titles may be left highlighted by the pointer while the window appears.
    named(&titleReset_, "Timer1");
    titleReset_.setSingleShot(true);
    titleReset_.setInterval(300);
    connect(&titleReset_, &QTimer::timeout, this, &MainWindow::menuTitlesResetRequested);
    setLocalTitleHandling(true);

    runLoadHooks(*this, hooks);
    // Dialogs titled with a command's caption take it as the menu shows it.
    std::map<CommandId, std::string> shown;
    for (const auto& [id, action] : actions_)
        if (id != CommandId::OpenRecent && id != CommandId::RunPlugin)
            shown.emplace(id, fromQt(action->text()));
    showCommandCaptions(std::move(shown));
    titleReset_.start();
}

MainWindow::~MainWindow()
{
    showCommandCaptions({});
}

void MainWindow::dispatch(CommandId id, int position)
{
    if (handler_)
        handler_(id, position);
}

void MainWindow::setCaption(const std::string& caption)
{
    setWindowTitle(toQt(caption));
}

// ---- menus -----------------------------------------------------------------

void MainWindow::buildMenus()
{
    const auto& tree = mainMenus();
    for (int i = 0; i < kTitleCount; ++i) {
        const auto& m = tree[std::size_t(i)];
        auto* menu = new QMenu(toQt(m.caption), this);
        named(menu, m.name);
        menus_[std::size_t(i)] = menu;
        addEntries(menu, m.entries);
    }
    setRecentFiles({});
    setPlugins({}, true);
    setLanguages({}, 0);
}

void MainWindow::addEntries(QMenu* menu, const std::vector<MenuEntry>& entries)
{
    for (const auto& e : entries) {
        switch (e.kind) {
        case MenuEntry::Kind::Command:
            addCommand(menu, e);
            break;
        case MenuEntry::Kind::Submenu: {
            auto* sub = menu->addMenu(toQt(e.caption));
            named(sub, e.name);
            named(sub->menuAction(), e.name);
            addEntries(sub, e.children);
            break;
        }
        case MenuEntry::Kind::Separator:
            menu->addSeparator();
            break;
        case MenuEntry::Kind::RecentFiles:
        case MenuEntry::Kind::Plugins:
        case MenuEntry::Kind::Languages: {
            ListSlot& slot = e.kind == MenuEntry::Kind::RecentFiles ? recent_
                             : e.kind == MenuEntry::Kind::Plugins   ? plugins_
                                                                    : languages_;
            slot.menu = menu;
            slot.name = toQt(e.name);
            // An invisible marker keeps the list's place among its neighbours.
            slot.before = menu->addSeparator();
            slot.before->setVisible(false);
            break;
        }
        }
    }
}

QAction* MainWindow::addCommand(QMenu* menu, const MenuEntry& entry)
{
    auto* action = menu->addAction(toQt(entry.caption));
    named(action, entry.name);
    action->setCheckable(entry.checkable);
    const CommandId id = entry.id;
    connect(action, &QAction::triggered, this, [this, action, id](bool checked) {
        // Qt flips a check mark on its own; here the command decides it.
        if (action->isCheckable())
            action->setChecked(!checked);
        dispatch(id, 0);
    });
    actions_[id] = action;
    return action;
}

QAction* MainWindow::commandAction(CommandId id) const
{
    const auto it = actions_.find(id);
    return it == actions_.end() ? nullptr : it->second;
}

void MainWindow::setChecked(CommandId id, bool checked)
{
    if (QAction* a = commandAction(id))
        a->setChecked(checked);
}

bool MainWindow::isChecked(CommandId id) const
{
    const QAction* a = commandAction(id);
    return a && a->isChecked();
}

void MainWindow::clearList(ListSlot& slot)
{
    for (QAction* a : slot.actions) {
        slot.menu->removeAction(a);
        a->deleteLater();
    }
    slot.actions.clear();
}

QAction* MainWindow::addListAction(ListSlot& slot, const QString& caption, int index, CommandId id,
                                   bool checkable)
{
    auto* action = new QAction(caption, slot.menu);
    named(action, slot.name, index);
    action->setCheckable(checkable);
    slot.menu->insertAction(slot.before, action);
    connect(action, &QAction::triggered, this, [this, action, id, index](bool checked) {
        if (action->isCheckable())
            action->setChecked(!checked);
        dispatch(id, index);
    });
    slot.actions << action;
    return action;
}

void MainWindow::setRecentFiles(const std::vector<std::string>& captions)
{
    clearList(recent_);
    bool any = false;
    for (std::size_t n = 0; n < captions.size(); ++n) {
        if (captions[n].empty())
            continue;
        // A file name may hold "&": it is not an access key here.
        QString caption = toQt(captions[n]);
        caption.replace(QChar('&'), QStringLiteral("&&"));
        addListAction(recent_, caption, int(n) + 1, CommandId::OpenRecent, false);
        any = true;
    }
    if (!any) {
        QAction* none = addListAction(recent_, inInterfaceLanguage(*hooks_, QString::fromUtf8(kNoRecentFileCaption)), 0,
                                      CommandId::OpenRecent, false);
        none->setEnabled(false);
    }
}

void MainWindow::setPlugins(const std::vector<std::string>& captions, bool placeholderVisible)
{
    clearList(plugins_);
    QAction* placeholder = addListAction(plugins_, inInterfaceLanguage(*hooks_, QString::fromUtf8(kNoPluginCaption)), 0,
                                         CommandId::RunPlugin, false);
    placeholder->setVisible(placeholderVisible);
    for (std::size_t p = 0; p < captions.size(); ++p)
        addListAction(plugins_, toQt(captions[p]), int(p) + 1, CommandId::RunPlugin, false);
}

void MainWindow::setLanguages(const std::vector<std::string>& names, int checkedIndex)
{
    clearList(languages_);
    addListAction(languages_, QString::fromUtf8(kFrenchCaption), 0, CommandId::ChooseLanguage, true);
    for (std::size_t i = 0; i < names.size(); ++i)
        addListAction(languages_, toQt(names[i]), int(i) + 1, CommandId::ChooseLanguage, true);
    for (QAction* a : languages_.actions)
        a->setChecked(controlIndex(*a) == checkedIndex);
}

// ---- titles ----------------------------------------------------------------

void MainWindow::setLocalTitleHandling(bool on)
{
    for (const auto& c : localTitleHandling_)
        disconnect(c);
    localTitleHandling_.clear();
    if (!on)
        return;
    localTitleHandling_ << connect(this, &MainWindow::menuTitleHovered, this, &MainWindow::highlightMenuTitle)
                        << connect(this, &MainWindow::menuTitlePressed, this,
                                   qOverload<int>(&MainWindow::popUpMenu))
                        << connect(this, &MainWindow::menuTitlesResetRequested, this,
                                   &MainWindow::resetMenuTitles);
}

std::vector<double> MainWindow::menuTitleTextWidths() const
{
    std::vector<double> widths;
    for (auto* title : titles_)
        widths.push_back(title->fontMetrics().horizontalAdvance(title->text()) * screen_.twipsPerPixelX);
    return widths;
}

void MainWindow::placeMenuTitles(const std::vector<TitleBox>& boxes)
{
    boxes_ = boxes;
    boxes_.resize(kTitleCount);
    for (int i = 0; i < kTitleCount; ++i) {
        const auto& b = boxes_[std::size_t(i)];
        const int left = twipsToPixels(b.left, screen_.twipsPerPixelX);
        const int top = twipsToPixels(b.top, screen_.twipsPerPixelY);
        const int right = twipsToPixels(b.right(), screen_.twipsPerPixelX);
        const int bottom = twipsToPixels(b.bottom(), screen_.twipsPerPixelY);
        titles_[std::size_t(i)]->setGeometry(left, top, right - left, bottom - top);
    }
}

void MainWindow::paintTitle(int i, bool highlighted)
{
    auto* title = titles_[std::size_t(i)];
    QPalette p = title->palette();
    p.setColor(QPalette::Window, highlighted ? text_ : back_);
    p.setColor(QPalette::WindowText, highlighted ? back_ : text_);
    title->setPalette(p);
}

void MainWindow::resetMenuTitles()
{
    for (int i = 0; i < kTitleCount; ++i)
        paintTitle(i, false);
    highlighted_ = -1;
}

void MainWindow::highlightMenuTitle(int i)
{
    if (i < 0 || i >= kTitleCount)
        return;
    resetMenuTitles();
    paintTitle(i, true);
    highlighted_ = i;
}

void MainWindow::popUpMenu(int i)
{
    if (i < 0 || i >= kTitleCount)
        return;
    highlightMenuTitle(i);
    const MenuPopupPoint at = menuPopupPoint(boxes_[std::size_t(i)]);
    popUpMenuAt(i, at.x, at.y);
}

void MainWindow::popUpMenuAt(int i, double left, double top)
{
    if (i < 0 || i >= kTitleCount)
        return;
    const QPoint at(twipsToPixels(left, screen_.twipsPerPixelX), twipsToPixels(top, screen_.twipsPerPixelY));
    menus_[std::size_t(i)]->popup(mapToGlobal(at));
}

void MainWindow::setTitleColours(const QColor& windowBack, const QColor& text)
{
    back_ = windowBack;
    text_ = text;
    const int keep = highlighted_;
    resetMenuTitles();
    if (keep >= 0)
        highlightMenuTitle(keep);
}

QString MainWindow::captionFontName() const
{
    return titles_[0]->font().family();
}

// ---- appearance editor -----------------------------------------------------

void MainWindow::buildLateControls()
{
    if (appearance_)
        return;
    appearance_ = new AppearanceFrame(this);
    appearance_->hide();
    // Only the frame's own controls: the rest of the window shows what it
    // shows now (a highlighted menu title stays highlighted).
    if (appearanceColours_)
        applyAppearanceToControls(WidgetControlNode(this, this).controlsWithin(*appearance_), *appearanceColours_);
    if (appearanceBuilt_)
        appearanceBuilt_(*appearance_);
}

AppearanceFrame* MainWindow::appearanceFrame()
{
    buildLateControls();
    return appearance_;
}

void MainWindow::whenAppearanceFrameBuilt(std::function<void(AppearanceFrame&)> built)
{
    appearanceBuilt_ = std::move(built);
    if (appearance_ && appearanceBuilt_)
        appearanceBuilt_(*appearance_);
}

void MainWindow::setAppearanceEditorVisible(bool visible)
{
    if (visible)
        buildLateControls();
    const double outer = visible ? kWithAppearanceHeight : kMenuOnlyHeight;
    const double inner = outer - kFrameAllowance;
    QSize size = twipsToPixels(kInnerWidth, inner, screen_);
    const int rowBottom = titles_[0]->geometry().bottom() + 1;
    const int margin = twipsToPixels(kMenuTitleFirstLeft, screen_.twipsPerPixelX);
    // Fonts larger than the layout was drawn for must not squash the editor.
    if (visible)
        size.setHeight(std::max(size.height(), rowBottom + 2 * margin + appearance_->minimumSizeHint().height()));
    if (appearance_) {
        appearance_->setGeometry(margin, rowBottom + margin, size.width() - 2 * margin,
                                 std::max(0, size.height() - rowBottom - 2 * margin));
        appearance_->setVisible(visible);
    }
    setFixedSize(size);
}

bool MainWindow::appearanceEditorVisible() const
{
    return appearance_ && appearance_->isVisibleTo(this);
}

// ---- events ----------------------------------------------------------------

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (released_) {
        event->accept();
        return;
    }
    // The close box is the quit command: the quit flow decides, and closes
    // every window itself when it agrees.
    event->ignore();
    dispatch(CommandId::Quit, 0);
    if (released_)
        event->accept();
}

void MainWindow::mousePressEvent(QMouseEvent* event)
{
    emit menuTitlesResetRequested();
    QWidget::mousePressEvent(event);
}

void MainWindow::mouseMoveEvent(QMouseEvent* event)
{
    emit menuTitlesResetRequested();
    QWidget::mouseMoveEvent(event);
}

void MainWindow::changeEvent(QEvent* event)
{
    // A popped menu takes the focus without deactivating anything: its title
    // stays highlighted while it is open.
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && !QApplication::activePopupWidget())
        emit menuTitlesResetRequested();
    QWidget::changeEvent(event);
}

void MainWindow::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::PopupFocusReason && !QApplication::activePopupWidget())
        emit menuTitlesResetRequested();
    QWidget::focusOutEvent(event);
}

}  // namespace qor

#include "editor/designer/toolbox_window.h"

#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"
#include "picture/picture_file.h"

namespace qor {

ToolboxWindow::ToolboxWindow(const ScreenMetrics& screen, WindowHooks& hooks)
{
    named(this, WindowId::Toolbox);
    setWindowTitle(QStringLiteral("Objets"));

    struct Group {
        const char* caption;
        const char* name;
        std::vector<const char*> commands;
    };
    const Group groups[] = {
        {"Boutons", "Frame1", {"Multimédia", "Quitter", "Code VBS"}},
        {"Boîte de texte", "Frame2", {"Créer"}},
        {"Forme du menu", "Frame3", {"Editeur", "Transparence"}},
    };
    auto* layout = new QVBoxLayout(this);
    int n = 0;
    for (const auto& g : groups) {
        auto* box = new QGroupBox(QString::fromUtf8(g.caption), this);
        named(box, g.name);
        auto* inner = new QVBoxLayout(box);
        for (const char* caption : g.commands) {
            auto* button = new QPushButton(QString::fromUtf8(caption), box);
            named(button, QStringLiteral("Command%1").arg(n + 1));
            inner->addWidget(button);
            commands_[n++] = button;
        }
        layout->addWidget(box);
    }
    // A column as narrow and short as its commands allow, beside the worksheet,
    // and wide enough for the window system to show its title in full.
    setFixedSize(std::max(sizeHint().width(), twipsToPixels(2400, screen.twipsPerPixelX)),
                 sizeHint().height());
    outline_ = named(new QLabel(this), "Picture1");
    outline_->hide();
    outline_->installEventFilter(this);
    outlineMenu_ = named(new QMenu(this), "Menu_transparence");
    for (std::size_t i = 0; i < kOutlineEntries.size(); ++i) {
        if (kOutlineEntries[i].separatorBefore)
            outlineMenu_->addSeparator();
        const std::string_view caption = kOutlineEntries[i].caption;
        named(outlineMenu_->addAction(QString::fromUtf8(caption.data(), qsizetype(caption.size()))), "transparence_mnu",
              int(i));
    }
    runLoadHooks(*this, hooks);
}

std::optional<OutlineCommand> ToolboxWindow::popUpOutlineMenu()
{
    QPushButton* at = commands_[kCommandCount - 1];
    std::optional<OutlineCommand> chosen;
    const auto taken = connect(outlineMenu_, &QMenu::triggered, this, [&chosen](QAction* a) {
        const int entry = controlIndex(*a);
        if (entry >= 0 && entry < int(kOutlineEntries.size()))
            chosen = kOutlineEntries[std::size_t(entry)].command;
    });
    outlineMenu_->exec(at->mapToGlobal(QPoint(0, at->height())));
    disconnect(taken);
    return chosen;
}

bool ToolboxWindow::showOutlineImage(const std::string& path)
{
    const QImage picture = readPictureFile(QString::fromStdString(path));
    if (picture.isNull())
        return false;
    if (outline_->isHidden())
        groupsSize_ = size();
    for (QGroupBox* group : findChildren<QGroupBox*>(Qt::FindDirectChildrenOnly))
        group->hide();
    outline_->setPixmap(QPixmap::fromImage(picture));
    outline_->setGeometry(QRect(QPoint(0, 0), picture.size()));
    outline_->show();
    // The inner area takes the picture's size; the frame stays as it is.
    setFixedSize(picture.size());
    return true;
}

void ToolboxWindow::hideOutlineImage()
{
    if (outline_->isHidden())
        return;
    outline_->hide();
    outline_->clear();
    for (QGroupBox* group : findChildren<QGroupBox*>(Qt::FindDirectChildrenOnly))
        group->show();
    setFixedSize(groupsSize_);
}

bool ToolboxWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == outline_ && event->type() == QEvent::MouseButtonRelease) {
        hideOutlineImage();
        return true;
    }
    return ToolWindow::eventFilter(watched, event);
}

}  // namespace qor

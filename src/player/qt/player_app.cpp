#include "player/qt/player_app.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>

#include "player/core/command_line.h"
#include "player/core/player.h"
#include "player/qt/menu_window.h"
#include "player/qt/qt_media.h"
#include "player/qt/qt_system.h"

namespace qor::player {
namespace {

void inform(QMessageBox::Icon icon, std::string_view title, const std::string& text)
{
    QMessageBox box(icon, QString::fromUtf8(title.data(), qsizetype(title.size())),
                    QString::fromStdString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")),
                    QMessageBox::Ok);
    box.exec();
}

std::vector<std::string> words(const QStringList& arguments)
{
    std::vector<std::string> out;
    for (qsizetype i = 1; i < arguments.size(); ++i)
        out.push_back(arguments[i].toStdString());
    return out;
}

}  // namespace

int runPlayer(const QStringList& arguments, const std::function<void(MenuWindow&)>& shown)
{
    const PlayerCommand command = parseCommand(words(arguments));
    if (command.mode == PlayerCommand::Mode::Infos) {
        inform(QMessageBox::Information, kAboutTitle, productText());
        return 0;
    }
    const QString file = command.file.empty() ? QCoreApplication::applicationFilePath()
                                              : QFileInfo(QString::fromStdString(command.file)).absoluteFilePath();
    QtSystem system;
    LoadResult loaded = loadMenu(system, file.toStdString());
    if (const auto* failure = std::get_if<LoadFailure>(&loaded)) {
        inform(QMessageBox::Critical, kLoadErrorTitle, failure->message);
        return 1;
    }
    MenuData& menu = std::get<MenuData>(loaded);
    if (command.mode == PlayerCommand::Mode::Author) {
        inform(QMessageBox::Information, kAboutTitle, authorText(menu.info));
        return 0;
    }
    const std::string folder = QFileInfo(file).absolutePath().toStdString() + "/";
    MenuPlace place = MenuPlace::of(file.toStdString(), '/', system.driveLetterOf(folder));
    system.setMenuFolder(place.playerFolder);
    QtMedia media;
    MenuWindow window;
    Player player(std::move(menu), std::move(place), window, media, system);
    window.attach(player);
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&window, &MenuWindow::finished, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    player.start();
    if (player.closed())
        return 0;
    if (shown)
        shown(window);
    QApplication::exec();
    return 0;
}

}  // namespace qor::player

// qorplayer: shows a compiled QOR menu.
//   qorplayer [FILE] [infos|auteur]
#include <QApplication>

#include "player/qt/player_app.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("qorplayer"));
    return qor::player::runPlayer(QApplication::arguments());
}

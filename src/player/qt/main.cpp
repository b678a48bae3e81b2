// qorplayer: shows a compiled QOR menu.
//   qorplayer [FILE] [infos|auteur]
#include <QApplication>

#include "player/qt/player_app.h"

int main(int argc, char** argv)
{
    // Sound and video through FFmpeg, which comes with Qt Multimedia: the
    // other back-end needs plugins a machine may not have, and fails hard
    // without them.
    if (qEnvironmentVariableIsEmpty("QT_MEDIA_BACKEND"))
        qputenv("QT_MEDIA_BACKEND", "ffmpeg");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("qorplayer"));
    return qor::player::runPlayer(QApplication::arguments());
}

#include "player/qt/qt_media.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QPointer>
#include <QUrl>
#include <QVBoxLayout>
#include <QVideoWidget>
#include <QWidget>

#include <vector>

namespace qor::player {

struct QtMedia::Channel {
    QAudioOutput output;
    QMediaPlayer player;
    Channel() { player.setAudioOutput(&output); }
};

namespace {

QUrl fileUrl(const std::string& path)
{
    return QUrl::fromLocalFile(QString::fromStdString(path));
}

bool playable(const std::string& path)
{
    return !path.empty() && QFileInfo(QString::fromStdString(path)).isFile();
}

// A machine without any sound output plays no sound at all: the media
// back-end would otherwise write into a device that is not there.
bool hasSoundOutput()
{
    static const bool has = !QMediaDevices::audioOutputs().isEmpty();
    return has;
}

// Video windows still open; closed ones have deleted themselves.
std::vector<QPointer<QWidget>>& videoWindows()
{
    static std::vector<QPointer<QWidget>> windows;
    return windows;
}

}  // namespace

QtMedia::QtMedia() = default;
QtMedia::~QtMedia() = default;

QtMedia::Channel& QtMedia::channel(std::unique_ptr<Channel>& slot)
{
    if (!slot)
        slot = std::make_unique<Channel>();
    return *slot;
}

void QtMedia::playMusic(const std::string& path)
{
    if (!playable(path) || !hasSoundOutput())
        return;
    Channel& c = channel(music_);
    c.player.setLoops(QMediaPlayer::Infinite);
    c.player.setSource(fileUrl(path));
    c.player.play();
}

void QtMedia::playSound(const std::string& path)
{
    if (!playable(path) || !hasSoundOutput())
        return;
    Channel& c = channel(sound_);
    c.player.stop();
    c.player.setSource(fileUrl(path));
    c.player.play();
}

void QtMedia::playVideo(const std::string& path)
{
    if (!playable(path))
        return;
    auto* window = new QWidget(nullptr, Qt::Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setObjectName(QStringLiteral("Video"));
    window->setWindowTitle(QFileInfo(QString::fromStdString(path)).fileName());
    auto* video = new QVideoWidget(window);
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(video);
    auto* player = new QMediaPlayer(window);
    if (hasSoundOutput())
        player->setAudioOutput(new QAudioOutput(window));
    player->setVideoOutput(video);
    player->setSource(fileUrl(path));
    window->resize(640, 480);
    window->show();
    player->play();
    videoWindows().push_back(window);
}

void QtMedia::stopAll()
{
    if (music_)
        music_->player.stop();
    if (sound_)
        sound_->player.stop();
    for (QPointer<QWidget>& w : videoWindows())
        if (w)
            w->close();
    videoWindows().clear();
}

}  // namespace qor::player

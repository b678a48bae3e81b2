#pragma once

#include <QObject>

#include <memory>

#include "player/core/media_port.h"

class QAudioOutput;
class QMediaPlayer;

namespace qor::player {

// Qt Multimedia behind the MediaPort. Players are made on first use, so a
// menu without sound starts without loading the media back-end.
class QtMedia : public QObject, public MediaPort {
    Q_OBJECT
public:
    QtMedia();
    ~QtMedia() override;
    void playMusic(const std::string& path) override;
    void playSound(const std::string& path) override;
    void playVideo(const std::string& path) override;
    void stopAll() override;

private:
    struct Channel;
    Channel& channel(std::unique_ptr<Channel>& slot);

    std::unique_ptr<Channel> music_;
    std::unique_ptr<Channel> sound_;
};

}  // namespace qor::player

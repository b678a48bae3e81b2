#include "player/core/media_port.h"
#include "player/core/player_view.h"
#include "player/core/system_port.h"

namespace qor::player {

PlayerView::~PlayerView() = default;
MediaPort::~MediaPort() = default;
SystemPort::~SystemPort() = default;

}  // namespace qor::player

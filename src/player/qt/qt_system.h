#pragma once

#include "player/core/system_port.h"

namespace qor::player {

// Linux behind the SystemPort: files through Qt, the desktop's default
// programs, detached processes, and the eject command for the CD tray.
class QtSystem : public SystemPort {
public:
    char separator() const override { return '/'; }
    std::string driveLetterOf(const std::string& folder) const override;
    bool fileExists(const std::string& path) const override;
    std::optional<std::string> readFile(const std::string& path) const override;
    bool openWithDesktop(const std::string& target) override;
    bool startProgram(const std::string& program, const std::string& arguments) override;
    bool startMenu(const std::string& menuFile) override;
    void ejectTray(const std::string& driveLetter, bool open) override;

    void setMenuFolder(std::string folder) { menuFolder_ = std::move(folder); }

    // Drive letters do not exist here: menus are told they run from D, the
    // usual CD drive of the machines they were written for, and paths on D:
    // are taken from the CD root.
    static constexpr const char* kMenuDriveLetter = "D";

private:
    std::string menuFolder_;
};

}  // namespace qor::player

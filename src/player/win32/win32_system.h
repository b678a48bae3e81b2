#pragma once

#include <string>

#include "player/core/system_port.h"

namespace qor::player {

// Windows behind the SystemPort: wide file calls (long paths too), the
// shell's programs for documents, addresses and programs, a new player for
// a sub-menu and MCI for the CD tray.
class Win32System : public SystemPort {
public:
    char separator() const override { return '\\'; }
    std::string driveLetterOf(const std::string& folder) const override;
    bool fileExists(const std::string& path) const override;
    std::optional<std::string> readFile(const std::string& path) const override;
    bool openWithDesktop(const std::string& target) override;
    bool startProgram(const std::string& program, const std::string& arguments) override;
    bool startMenu(const std::string& menuFile) override;
    void ejectTray(const std::string& driveLetter, bool open) override;

    void setMenuFolder(std::string folder) { menuFolder_ = std::move(folder); }

    // The full path of the running program.
    static std::string programPath();

private:
    std::string menuFolder_;
};

}  // namespace qor::player

#pragma once

#include <optional>
#include <string>

namespace qor::player {

// The machine beyond the window: files, the desktop, other programs and the
// CD drive. Every platform call of the player goes through here, so the
// behaviour stays portable and testable.
class SystemPort {
public:
    virtual ~SystemPort();
    // The path separator of full paths on this system.
    virtual char separator() const = 0;
    // The letter of the drive that holds the given folder ("D"); on a system
    // without drive letters, the letter menus are told they run from.
    virtual std::string driveLetterOf(const std::string& folder) const = 0;

    virtual bool fileExists(const std::string& path) const = 0;
    // The whole file, nothing when it cannot be read.
    virtual std::optional<std::string> readFile(const std::string& path) const = 0;

    // A document, a folder, a web or mail address, with the desktop's choice
    // of program. False when nothing could open it.
    virtual bool openWithDesktop(const std::string& target) = 0;
    // A program with its argument text. False when it could not start.
    virtual bool startProgram(const std::string& program, const std::string& arguments) = 0;
    // Another compiled menu (a sub-menu), shown by a new player.
    virtual bool startMenu(const std::string& menuFile) = 0;
    // Opens (or closes) the tray of the drive with that letter; "" for the
    // drive that holds the menu. No such drive: nothing happens.
    virtual void ejectTray(const std::string& driveLetter, bool open) = 0;
};

}  // namespace qor::player

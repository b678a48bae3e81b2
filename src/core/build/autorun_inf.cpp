#include "core/build/autorun_inf.h"

#include "text/cp1252.h"
#include "text/line_file.h"

namespace qor {

const std::vector<std::string>& autorunInfLines()
{
    static const std::vector<std::string> lines = {
        "[Autorun]",
        "open=qor/autorun.exe",
        "Icon=qor/autorun.ico",
        "",
        "shell\\installer=&Installer QOR",
        "shell\\installer\\command=qor/install.bat",
        "",
        "shell\\qqc=&Qu'est-ce que QOR ?",
        "shell\\qqc\\command=qor/autorun.exe infos",
        "",
        "shell\\app=&A propos de QOR...",
        "shell\\app\\command=qor/autorun.exe auteur",
    };
    return lines;
}

std::string autorunInfBytes()
{
    return encodeCp1252(joinLinesCrLf(autorunInfLines()));
}

}  // namespace qor

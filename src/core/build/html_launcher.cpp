#include "core/build/html_launcher.h"

#include "text/cp1252.h"
#include "text/line_file.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

constexpr const char* kQuote = "\"";

// The pop-up line as stored, with "¤" for every quotation mark.
constexpr const char* kPopUpLine =
    "window.open(page,¤¤,¤top=¤+top+¤,left=¤+left+¤,width=¤+largeur+¤,height=¤+hauteur+¤,toolbar=no,location=no,"
    "directories=no,status=no,menubar=no,scrollbars=yes,resizable=yes¤);";

}  // namespace

std::string launcherHeight(const MenuProject& project)
{
    if (project.fullScreen)
        return "screen.height;";
    return numberText(double(project.height) * 480 / 7200, kDoubleDigits);
}

std::string launcherWidth(const MenuProject& project)
{
    if (project.fullScreen)
        return "screen.width;";
    return numberText(double(project.width) * 640 / 9600, kDoubleDigits);
}

std::vector<std::string> htmlLauncherLines(const MenuProject& project)
{
    return {
        "<html><head>",
        "<script language=Javascript>",
        "function menu_qor()",
        "{",
        std::string("page=") + kQuote + "qor_menu2.htm" + kQuote,
        "hauteur=" + launcherHeight(project),
        "largeur=" + launcherWidth(project),
        "var top=(screen.height-hauteur)/2;",
        "var left=(screen.width-largeur)/2;",
        replaceAll(kPopUpLine, kLineBreakMark, kQuote),
        "}",
        std::string("</script></head><body onload=") + kQuote + "javascript:menu_qor()" + kQuote + ">",
        "</body></html>",
    };
}

std::string htmlLauncherPath(const std::string& answer)
{
    return answer + kHtmlLauncherName;
}

Status writeHtmlLauncher(FileSystem& files, const MenuProject& project, const std::string& path)
{
    return files.writeFile(path, encodeCp1252(joinLinesCrLf(htmlLauncherLines(project))));
}

}  // namespace qor

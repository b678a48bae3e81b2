// Writes the Windows player's start benchmark menu: 99 buttons with their
// three 200 x 60 pictures and 50 text boxes, as compilation leaves it
// (QOR_COMPIL_EXE names the player), captioned "Menu99".
//   win32_menu99 FOLDER      prints the path of FOLDER/qor/autorun.exe
#include <cstdio>
#include <map>
#include <string>

#include "menu_maker.h"

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: win32_menu99 FOLDER\n");
        return 2;
    }
    qor::MenuProject p;
    p.width = 12000;
    p.height = 9000;
    std::map<std::string, std::string> files;
    for (int i = 0; i < 99; ++i) {
        qor::MenuButton& b = p.button(*p.addButton());
        b.kind = "code";
        const std::string stem = "b" + std::to_string(i);
        b.normalImage = stem + "_n.bmp";
        b.hoverImage = stem + "_s.bmp";
        b.pressedImage = stem + "_c.bmp";
        b.left = float(i % 11) * 1000;
        b.top = float(i / 11) * 900;
        files[b.normalImage] = qor::test::solidBitmap(200, 60, 0xC00000 + std::uint32_t(i));
        files[b.hoverImage] = qor::test::solidBitmap(200, 60, 0x00C000);
        files[b.pressedImage] = qor::test::solidBitmap(200, 60, 0x0000C0);
    }
    for (int i = 0; i < 50; ++i) {
        qor::MenuText& t = p.text(*p.addText());
        t.content = "Texte " + std::to_string(i + 1);
        t.left = float(i % 10) * 1150;
        t.top = 8200 + float(i / 10) * 150;
    }
    std::printf("%s\n", qor::test::makeMenu(argv[1], p, "Menu99", files).c_str());
    return 0;
}

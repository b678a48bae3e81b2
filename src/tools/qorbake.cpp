// qorbake: renders the "_transp.bmp" images of a project's transparent
// buttons without a display. qorc starts it when a project has such
// buttons, so that qorc itself starts without loading Qt.
//
//   qorbake PROJET.qor
//
// Exit status: 0 done, 1 the project could not be read, 2 bad usage,
// 3 a baked image could not be written.

#include <QGuiApplication>

#include <iostream>
#include <vector>

#include "core/build/headless_project.h"
#include "tools/qorc_baker.h"
#include "tools/qorc_console.h"

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "Utilisation : qorbake PROJET.qor\n";
        return 2;
    }
    // Image reading (JPEG, GIF) comes from Qt's plug-ins; text boxes need
    // fonts, which need a Gui application, drawn off screen: no display.
    // Qt's own notes about the session (no runtime folder, no window
    // system) are no business of the user's: only our messages are shown.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    char platformOption[] = "-platform";
    char offscreen[] = "offscreen";
    std::vector<char*> args{argv[0], platformOption, offscreen};
    int count = int(args.size());
    QGuiApplication app(count, args.data());
    qor::ConsoleDialogs dialogs(std::cerr, false);
    qor::MenuProject project;
    if (!qor::loadProjectWithoutViews(project, argv[1], dialogs))
        return 1;
    qor::HeadlessBaker baker(project, dialogs);
    baker.bakeAllButtons();
    return baker.failed() ? 3 : 0;
}

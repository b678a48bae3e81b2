// qorbake: renders the "_transp.bmp" images of a project's transparent
// buttons without a display. qorc starts it when a project has such
// buttons, so that qorc itself starts without loading Qt.
//
//   qorbake PROJET.qor
//
// Exit status: 0 done, 1 the project could not be read, 2 bad usage.

#include <QCoreApplication>

#include <iostream>

#include "core/build/headless_project.h"
#include "tools/qorc_baker.h"
#include "tools/qorc_console.h"

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "Utilisation : qorbake PROJET.qor\n";
        return 2;
    }
    // Image reading (JPEG, GIF) comes from Qt's plug-ins; no display is needed.
    QCoreApplication app(argc, argv);
    qor::ConsoleDialogs dialogs(std::cerr, false);
    qor::MenuProject project;
    if (!qor::loadProjectWithoutViews(project, argv[1], dialogs))
        return 1;
    qor::HeadlessBaker(project).bakeAllButtons();
    return 0;
}

#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include "core/ports/qmb_converter.h"
#include "editor/app/editor_application.h"
#include "editor/platform/desktop_file_type_registry.h"
#include "editor/platform/qt_desktop.h"
#include "editor/platform/qt_settings_store.h"

#include "silent_dialogs.h"

namespace qor::bench {

// A 1024 x 768 screen at 15 twips per pixel, the same on every machine.
struct FixedScreen : Screen {
    ScreenMetrics metrics() override { return {15360, 11520, 15, 15}; }
};

// One editor, started with its Qt ports in folders of its own, on the
// screen port given.
template <class ScreenPort>
struct BenchEditor {
    QTemporaryDir root;
    SilentDialogs dialogs;
    QtSettingsStore settings{root.filePath(QStringLiteral("settings"))};
    QtDesktop desktop;
    ScreenPort screen;
    DesktopFileTypeRegistry fileTypes{root.filePath(QStringLiteral("data"))};
    MissingQmbConverter qmb;
    EditorApplication editor{EditorPorts{dialogs, settings, desktop, screen, fileTypes, qmb}};
    bool running = false;

    BenchEditor()
    {
        fileTypes.startProgram = [](const QString&, const QStringList&) {};
        QDir().mkpath(root.filePath(QStringLiteral("program")));
        StartupInputs in;
        in.executablePath = root.filePath(QStringLiteral("program/qor")).toStdString();
        in.facts = {"12:00:00", "23/11/2026"};
        running = editor.start(in) == StartOutcome::Running;
        QCoreApplication::processEvents();
    }

    // Opens a project file; true when nothing was asked.
    bool openPath(const std::string& path)
    {
        editor.core().document().openPath(path);
        QCoreApplication::processEvents();
        return running && dialogs.asked == 0;
    }
};

}  // namespace qor::bench

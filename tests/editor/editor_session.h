#pragma once

// A whole run of the editor for the Qt tests: the real windows, views and
// core Application, with a temporary program folder, settings folder and
// data folder, a fake screen and desktop, and scripted dialogs.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/ports/qmb_converter.h"
#include "core/ui/menu_tree.h"
#include "editor/app/editor_application.h"
#include "editor/app/main_window.h"
#include "editor/designer/properties_panel.h"
#include "editor/platform/desktop_file_type_registry.h"
#include "editor/platform/qt_settings_store.h"
#include "fake_desktop.h"
#include "fake_screen.h"
#include "model/project_writer.h"
#include "text/cp1252.h"
#include "text/line_file.h"
#include "text/text_helpers.h"

namespace qor::test {

// Dialogs that record every request and answer from queues, as the core
// tests' FakeDialogs do, without GoogleTest: a request with no answer
// queued is written to `unexpected` (the test checks it is empty) and gets
// the "cancel" answer. One-button messages get Ok by themselves.
class ScriptedDialogs : public Dialogs {
public:
    std::vector<Message> messages;
    std::vector<std::string> inputPrompts;
    std::vector<FileDialogRequest> openRequests;
    std::vector<FileDialogRequest> saveRequests;
    std::vector<std::string> folderPrompts;
    QStringList unexpected;

    std::deque<Answer> messageAnswers;
    std::deque<std::string> inputAnswers;
    std::deque<std::optional<std::string>> openAnswers;
    std::deque<std::optional<std::string>> saveAnswers;
    std::deque<std::optional<std::string>> folderAnswers;
    std::deque<std::optional<Colour>> colourAnswers;
    std::deque<std::optional<FontChoice>> fontAnswers;
    std::vector<std::string> inputDefaults;

    Answer message(const Message& m) override
    {
        messages.push_back(m);
        if (m.buttons == MessageButtons::Ok && messageAnswers.empty())
            return Answer::Ok;
        return take(messageAnswers, "message " + m.text, Answer::Cancel);
    }
    std::string inputBox(const std::string& prompt, const std::string&, const std::string& defaultText) override
    {
        inputPrompts.push_back(prompt);
        inputDefaults.push_back(defaultText);
        return take(inputAnswers, "input box " + prompt, std::string());
    }
    std::optional<std::string> openFile(const FileDialogRequest& r) override
    {
        openRequests.push_back(r);
        return take(openAnswers, "open dialog", std::optional<std::string>());
    }
    std::optional<std::string> saveFile(const FileDialogRequest& r) override
    {
        saveRequests.push_back(r);
        return take(saveAnswers, "save dialog", std::optional<std::string>());
    }
    std::optional<std::string> pickFolder(const std::string& prompt) override
    {
        folderPrompts.push_back(prompt);
        return take(folderAnswers, "folder picker", std::optional<std::string>());
    }
    std::optional<Colour> pickColour(Colour) override
    {
        return take(colourAnswers, "colour dialog", std::optional<Colour>());
    }
    std::optional<FontChoice> pickFont(const FontChoice&) override
    {
        return take(fontAnswers, "font dialog", std::optional<FontChoice>());
    }

    const Message& lastMessage() const
    {
        static const Message none{"<no message>", "", MessageIcon::None};
        return messages.empty() ? none : messages.back();
    }

private:
    template <class T>
    T take(std::deque<T>& queue, const std::string& what, T fallback)
    {
        if (queue.empty()) {
            unexpected << QString::fromStdString(what);
            return fallback;
        }
        T value = std::move(queue.front());
        queue.pop_front();
        return value;
    }
};

// One run of the editor in folders of its own.
class Session {
public:
    QTemporaryDir root;
    ScriptedDialogs dialogs;
    QtSettingsStore settings;
    FakeDesktop desktop;
    FakeScreen screen;
    DesktopFileTypeRegistry fileTypes;
    MissingQmbConverter qmb;
    QStringList toolsStarted;
    std::unique_ptr<EditorApplication> editor;
    // Set when the editor ended its event loop (it quit).
    bool ended = false;

    // settingsWritable false: the settings folder cannot be created, so
    // the store refuses every value.
    explicit Session(double screenWidth = 1024, double screenHeight = 768, bool settingsWritable = true)
        : settings(settingsFolder(root, settingsWritable)),
          screen(screenWidth, screenHeight),
          fileTypes(root.filePath(QStringLiteral("data"))),
          savedFolder_(QDir::currentPath())
    {
        QDir().mkpath(root.filePath(QStringLiteral("program")));
        fileTypes.findProgram = [](const QString& program) { return QStringLiteral("/usr/bin/") + program; };
        fileTypes.startProgram = [this](const QString& program, const QStringList& arguments) {
            toolsStarted << program + QChar(' ') + arguments.join(QChar(' '));
        };
        editor = std::make_unique<EditorApplication>(
            EditorPorts{dialogs, settings, desktop, screen, fileTypes, qmb});
        editor->shellView().endEventLoop = [this] { ended = true; };
    }

    ~Session()
    {
        if (editor && editor->windows().loaded())
            editor->windows().closeAll();
        editor.reset();
        QDir::setCurrent(savedFolder_);
    }

    // The program folder, ending with "/".
    std::string programFolder() const { return root.filePath(QStringLiteral("program")).toStdString() + "/"; }
    std::string programFile(const std::string& name) const { return programFolder() + name; }
    // A folder of the temporary root for projects and pictures, ending with "/".
    std::string folder(const std::string& name) const
    {
        QDir().mkpath(root.filePath(QString::fromStdString(name)));
        return root.filePath(QString::fromStdString(name)).toStdString() + "/";
    }

    StartOutcome start(const std::string& arguments = "")
    {
        StartupInputs in;
        in.executablePath = programFile("qor");
        in.arguments = arguments;
        in.facts = {"10:00:00", "23/11/2026"};
        return editor->start(in);
    }

    Application& core() { return editor->core(); }
    EditorWindows& windows() { return editor->windows(); }
    MainWindow& main() { return windows().main(); }
    QAction* action(CommandId id) { return main().commandAction(id); }
    void trigger(CommandId id) { action(id)->trigger(); }

    QStringList selectorEntries()
    {
        QStringList out;
        QComboBox* box = windows().properties().elementSelector();
        for (int i = 0; i < box->count(); ++i)
            out << box->itemText(i);
        return out;
    }

    // Writes a file of bytes and returns its path.
    static std::string write(const std::string& path, const std::string& bytes)
    {
        QFile f(QString::fromStdString(path));
        f.open(QIODevice::WriteOnly);
        f.write(bytes.data(), qint64(bytes.size()));
        return path;
    }

    // The bytes of a file, or "<missing>".
    static std::string read(const std::string& path)
    {
        QFile f(QString::fromStdString(path));
        if (!f.open(QIODevice::ReadOnly))
            return "<missing>";
        return f.readAll().toStdString();
    }

    // The lines of a program-folder file as the editor wrote them (CR LF).
    std::vector<std::string> programFileLines(const std::string& name) const
    {
        auto lines = readLineFile(programFile(name));
        return lines ? *lines : std::vector<std::string>{"<unreadable>"};
    }

    // A PNG picture of the given size.
    static std::string picture(const std::string& path, int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        image.save(QString::fromStdString(path), "PNG");
        return path;
    }

    // A project file written by the core: buttons of the given kinds (each
    // with three pictures in the project's folder) and text boxes.
    static std::string project(const std::string& path, const std::vector<std::string>& kinds, int texts,
                               std::int32_t backgroundColor = 0x00FFFFFF)
    {
        const std::string folder = folderOf(path);
        MenuProject p;
        p.backgroundColor = backgroundColor;
        p.width = 9000;
        p.height = 6000;
        for (const auto& kind : kinds) {
            const int n = *p.addButton();
            MenuButton& b = p.button(n);
            b.kind = kind;
            b.normalImage = picture(folder + "b" + std::to_string(n) + ".png", 40 + n, 20);
            b.hoverImage = b.normalImage;
            b.pressedImage = b.normalImage;
        }
        for (int t = 0; t < texts; ++t)
            (void)p.addText();
        write(path, projectFileBytes(p, RelativePathRule(path, "")));
        return path;
    }

private:
    static QString settingsFolder(const QTemporaryDir& root, bool writable)
    {
        if (writable)
            return root.filePath(QStringLiteral("settings"));
        // A file where the folder would have to be.
        write(root.filePath(QStringLiteral("blocked")).toStdString(), "");
        return root.filePath(QStringLiteral("blocked/settings"));
    }

    QString savedFolder_;
};

// The main() of a session test: whatever Qt itself would keep goes to a
// temporary home, never the user's, and the windows stay offscreen.
template <class Test>
int runSessionTest(int argc, char** argv)
{
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.filePath("config").toUtf8());
    qputenv("XDG_DATA_HOME", home.filePath("data").toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

}  // namespace qor::test

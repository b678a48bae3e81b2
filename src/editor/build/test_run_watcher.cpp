#include "editor/build/test_run_watcher.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "editor/platform/widget_names.h"

namespace qor {

TestRunWatcher::TestRunWatcher(WindowHooks& hooks, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Form15"));
    setWindowTitle(QStringLiteral("QOR"));
    setModal(true);
    auto* label = named(new QLabel(QStringLiteral("Votre projet est en cours d'exécution, pour reprendre l'édition, "
                                                  "veuillez cliquer sur le carré rouge ci-dessous."),
                                   this),
                        "Label1");
    label->setWordWrap(true);
    label->setGeometry(8, 8, 304, 48);
    stop_ = named(new QPushButton(QStringLiteral("Stop"), this), "Command1");
    stop_->setStyleSheet(QStringLiteral("background-color: red; color: white;"));
    stop_->resize(80, 32);
    setFixedSize(320, 110);
    connect(stop_, &QPushButton::clicked, this, &TestRunWatcher::stopPlayer);
    // The child's end, however it comes, ends the test run.
    connect(&process_, &QProcess::finished, this, &QDialog::accept);
    runLoadHooks(*this, hooks);
}

Status TestRunWatcher::run(const QString& program, const QStringList& arguments)
{
    process_.setProcessChannelMode(QProcess::ForwardedChannels);
    process_.start(program, arguments);
    if (!process_.waitForStarted())
        return makeError(err::FileNotFound, program.toStdString() + " : " + process_.errorString().toStdString());
    exec();
    return {};
}

void TestRunWatcher::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    // "Stop" stands in the middle of the window's width.
    stop_->move(width() / 2 - stop_->width() / 2, height() - stop_->height() - 12);
}

// Closing the window is "Stop" too: the editor never waits on a menu it cannot see.
void TestRunWatcher::reject()
{
    stopPlayer();
}

void TestRunWatcher::stopPlayer()
{
    if (process_.state() != QProcess::NotRunning) {
        process_.kill();
        process_.waitForFinished(5000);
    }
    accept();
}

}  // namespace qor

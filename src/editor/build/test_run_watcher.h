#pragma once

#include <QDialog>
#include <QProcess>

#include "editor/ui/window_hooks.h"
#include "text/error.h"

class QPushButton;

namespace qor {

// The test-run window ("Form15"): modal while the menu player runs. It
// starts the player as its child and closes when the child ends, or when
// "Stop" has ended it.
class TestRunWatcher : public QDialog {
    Q_OBJECT
public:
    explicit TestRunWatcher(WindowHooks& hooks = WindowHooks::none(), QWidget* parent = nullptr);

    // Starts program and waits, modally, for its end. An error when it could not start.
    Status run(const QString& program, const QStringList& arguments);

    QPushButton* stopButton() const { return stop_; }
    QProcess& process() { return process_; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void reject() override;

private:
    void stopPlayer();

    QPushButton* stop_ = nullptr;
    QProcess process_;
};

}  // namespace qor

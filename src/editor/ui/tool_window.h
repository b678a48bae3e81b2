#pragma once

#include <QWidget>

namespace qor {

// A window of the designer that the user cannot close: its close box is
// refused silently. It closes with the editor, once the quit flow has
// released it.
class ToolWindow : public QWidget {
    Q_OBJECT
public:
    explicit ToolWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::Tool);

    // From now on a close request is honoured (the editor is quitting).
    void releaseForQuit() { released_ = true; }
    bool releasedForQuit() const { return released_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    bool released_ = false;
};

}  // namespace qor

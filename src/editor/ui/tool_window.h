#pragma once

#include <QWidget>

namespace qor {

// A window of the designer that the user cannot close: its close box is
// refused silently. It closes with the editor, once the quit flow has
// released it.
class ToolWindow : public QWidget {
    Q_OBJECT
public:
    // A tool window's caption holds its title and a close box, nothing else:
    // narrow windows such as the toolbox keep room for their title.
    static constexpr Qt::WindowFlags kToolFlags =
        Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

    explicit ToolWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = kToolFlags);

    // From now on a close request is honoured (the editor is quitting).
    void releaseForQuit() { released_ = true; }
    bool releasedForQuit() const { return released_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    bool released_ = false;
};

}  // namespace qor

#pragma once

#include <QTimer>
#include <QWidget>

#include <vector>

#include "core/ports/screen.h"
#include "editor/ui/window_hooks.h"

class QLabel;

namespace qor {

// The about window "Crédits" ("Form7"): the credits scroll up endlessly in
// the panel "Picture1", stand still while the pointer rests on an entry,
// and a click on an entry with an address opens it; a click elsewhere
// closes the window. The scrolling runs on a timer, so the event loop is
// never held, and stops whenever the window is hidden.
class AboutWindow : public QWidget {
    Q_OBJECT
public:
    explicit AboutWindow(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    QWidget* panel() const { return panel_; }
    const std::vector<QLabel*>& entries() const { return entries_; }
    // The panel's top inside the window, in twips.
    double panelTop() const { return top_; }
    bool paused() const;

    // One step of the scrolling, as the timer runs it.
    void step();

signals:
    // An entry's address was clicked: what the shell should open.
    void linkActivated(const QString& target);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void buildCredits();
    void layOut();
    void pointerOver(QObject* watched);
    void placePanel();

    ScreenMetrics screen_;
    QWidget* panel_ = nullptr;
    QLabel* title_ = nullptr;
    std::vector<QLabel*> headings_;
    std::vector<QLabel*> entries_;
    QTimer scroll_;
    double top_ = 0;
};

}  // namespace qor

#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>

#include "core/ports/dialogs.h"
#include "core/ports/screen.h"
#include "editor/ui/window_hooks.h"

class QLabel;
class QPushButton;
class QScrollBar;

namespace qor {

// The menu picture's preview ("Imprimer...", "Form18"): the capture of the
// worksheet, kept in a file of the program folder while the window is open,
// shown stretched to a zoomable size in an area with two scroll bars of
// 800-twip steps. "Enregistrer", "Presse papier" and "Imprimer" use the
// capture (or the worksheet itself), never the zoomed picture.
class PrintPreviewWindow : public QWidget {
    Q_OBJECT
public:
    PrintPreviewWindow(Dialogs& dialogs, const ScreenMetrics& screen, const QString& captureFile,
                       QWidget* worksheet, WindowHooks& hooks = WindowHooks::none());
    ~PrintPreviewWindow() override;

    // Keeps the capture in the file, shows it from there, and gives the
    // focus to the command of that "Imprimer" entry. False when the file
    // cannot be written.
    bool showCapture(const QImage& capture, int entry);

    const QImage& capture() const { return capture_; }
    // The displayed picture's size in twips.
    double imageWidth() const { return width_; }
    double imageHeight() const { return height_; }
    QScrollBar* horizontalBar() const { return hBar_; }
    QScrollBar* verticalBar() const { return vBar_; }
    QLabel* image() const { return image_; }
    QPushButton* command(const char* name) const;

    void zoom(bool in);
    void save();
    void copyToClipboard();
    void print();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void layOut();
    void scrolled();

    Dialogs& dialogs_;
    ScreenMetrics screen_;
    QString captureFile_;
    QPointer<QWidget> worksheet_;
    QImage capture_;
    double width_ = 0;
    double height_ = 0;
    QWidget* area_ = nullptr;
    QLabel* image_ = nullptr;
    QScrollBar* hBar_ = nullptr;
    QScrollBar* vBar_ = nullptr;
    QWidget* corner_ = nullptr;
};

}  // namespace qor

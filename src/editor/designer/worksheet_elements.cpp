#include "editor/designer/worksheet_elements.h"

#include <QScrollBar>

#include "core/designer/designer_view.h"
#include "editor/platform/colours.h"
#include "editor/platform/qt_dialogs.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"

namespace qor {

ButtonElement::ButtonElement(int number, QWidget* parent) : QLabel(parent), number_(number)
{
    named(this, "Bouton", number);
    setToolTip(QStringLiteral("MAJ + clique pour déplacer"));
    setFrameShape(QFrame::NoFrame);
    setMargin(0);
    setMouseTracking(true);
    resize(0, 0);
    hide();
}

void ButtonElement::showPicture(const QImage& image)
{
    if (image.isNull()) {
        clear();
        resize(0, 0);
        return;
    }
    setPixmap(QPixmap::fromImage(image));
    resize(image.size());
}

TextElement::TextElement(int number, QWidget* parent) : QPlainTextEdit(parent), number_(number)
{
    named(this, "Texte", number);
    setToolTip(QStringLiteral("MAJ + clique pour déplacer - Clique droit pour redimensionner"));
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    // The right button resizes; no context menu of its own.
    setContextMenuPolicy(Qt::NoContextMenu);
    setFrameShape(QFrame::Box);
    hide();
}

void TextElement::showText(const MenuText& t, const ScreenMetrics& screen)
{
    if (fromQt(toPlainText().replace(QChar('\n'), QStringLiteral("\r\n"))) != t.content) {
        const QSignalBlocker quiet(this);
        setPlainText(toQtLines(t.content));
    }
    QPalette p = palette();
    p.setColor(QPalette::Base, toQColor(t.backColor, p));
    p.setColor(QPalette::Text, toQColor(t.foreColor, p));
    setPalette(p);
    setFont(toQFont(fontOf(t)));
    setVerticalScrollBarPolicy(t.showsScrollBar() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setGeometry(twipsToPixels(t.left, screen.twipsPerPixelX), twipsToPixels(t.top, screen.twipsPerPixelY),
                std::max(1, twipsToPixels(t.width, screen.twipsPerPixelX)),
                std::max(1, twipsToPixels(t.height, screen.twipsPerPixelY)));
    setVisible(t.visible);
}

std::string TextElement::content() const
{
    return fromQt(toPlainText().replace(QChar('\n'), QStringLiteral("\r\n")));
}

void TextElement::setResizing(bool resizing)
{
    resizing_ = resizing;
    setReadOnly(resizing);
}

}  // namespace qor

#include "editor/designer/worksheet_elements.h"

#include <QPainter>
#include <qdrawutil.h>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

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

TextElement::TextElement(int number, QWidget* parent) : QWidget(parent), number_(number)
{
    named(this, "Texte", number);
    setToolTip(QStringLiteral("MAJ + clique pour déplacer - Clique droit pour redimensionner"));
    setMouseTracking(true);
    // Not marked opaque although it paints all of itself: with 500 opaque
    // boxes Qt would work out what each one hides on every repaint of the
    // worksheet, which costs more than drawing the little background under
    // the one that changed.
    setCursor(Qt::IBeamCursor);
    hide();
}

void TextElement::showText(const MenuText& t, const ScreenMetrics& screen)
{
    text_ = toQtLines(t.content);
    scrollBar_ = t.showsScrollBar();
    QPalette p = palette();
    p.setColor(QPalette::Base, toQColor(t.backColor, p));
    p.setColor(QPalette::Text, toQColor(t.foreColor, p));
    setPalette(p);
    const QFont f = toQFont(fontOf(t));
    if (f != font())
        setFont(f);
    setGeometry(twipsToPixels(t.left, screen.twipsPerPixelX), twipsToPixels(t.top, screen.twipsPerPixelY),
                std::max(1, twipsToPixels(t.width, screen.twipsPerPixelX)),
                std::max(1, twipsToPixels(t.height, screen.twipsPerPixelY)));
    if (edit_)
        applyToEdit();
    setVisible(t.visible);
    update();
}

void TextElement::applyToEdit()
{
    if (edit_->toPlainText() != text_) {
        const QSignalBlocker quiet(edit_);
        edit_->setPlainText(text_);
    }
    edit_->setPalette(palette());
    edit_->setFont(font());
    edit_->setVerticalScrollBarPolicy(scrollBar_ ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    edit_->setReadOnly(resizing_);
    edit_->setGeometry(rect());
}

QPlainTextEdit& TextElement::edit()
{
    if (!edit_) {
        edit_ = new QPlainTextEdit(this);
        edit_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        edit_->setFrameShape(QFrame::Box);
        // The right button resizes; no context menu of its own.
        edit_->setContextMenuPolicy(Qt::NoContextMenu);
        edit_->setToolTip(toolTip());
        edit_->viewport()->setMouseTracking(true);
        applyToEdit();
        connect(edit_, &QPlainTextEdit::textChanged, this, [this] {
            text_ = edit_->toPlainText();
            emit typed();
        });
        edit_->show();
        emit editMade(*edit_);
    }
    return *edit_;
}

std::string TextElement::content() const
{
    QString lines = text_;
    return fromQt(lines.replace(QChar('\n'), QStringLiteral("\r\n")));
}

void TextElement::setResizing(bool resizing)
{
    resizing_ = resizing;
    if (edit_)
        edit_->setReadOnly(resizing);
}

// The field, once made, covers the whole box whatever changes its size.
void TextElement::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (edit_)
        edit_->setGeometry(rect());
}

// What the field would show, drawn: the box, its text wrapped at the width
// and, when it has one, the vertical scroll bar at its right.
void TextElement::paintEvent(QPaintEvent*)
{
    if (edit_)
        return;
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    // The field's sunken box: one dark and one light line, two pixels in all.
    qDrawShadeRect(&painter, rect(), palette(), true, 1, 0);
    QRect inner = rect().adjusted(2, 2, -2, -2);
    if (scrollBar_) {
        const int extent = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        const QRect place(inner.right() - extent + 1, inner.top(), extent, inner.height());
        QStyleOptionSlider bar;
        bar.initFrom(this);
        bar.orientation = Qt::Vertical;
        // Styles lay a scroll bar's parts out from its own corner, as if it
        // were a widget of its own: drawn there, then moved into place.
        bar.rect = QRect(QPoint(0, 0), place.size());
        bar.minimum = bar.maximum = bar.sliderPosition = bar.sliderValue = 0;
        painter.save();
        painter.translate(place.topLeft());
        style()->drawComplexControl(QStyle::CC_ScrollBar, &bar, &painter, this);
        painter.restore();
        inner.setRight(place.left() - 1);
    }
    painter.setPen(palette().color(QPalette::Text));
    painter.setClipRect(inner);
    // The field's own margin around its text.
    painter.drawText(inner.adjusted(4, 4, -4, -4), Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, text_);
}

}  // namespace qor

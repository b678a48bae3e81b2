#include "editor/shape/shape_surface.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QRegion>
#include <QVector>

#include "core/shape/shape_flows.h"
#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"

namespace qor {
namespace {

constexpr double kHintPosition = 120;   // twips from the top-left corner

QPointF toPixels(const ScreenMetrics& screen, TwipsPoint t)
{
    return {t.x / screen.twipsPerPixelX, t.y / screen.twipsPerPixelY};
}

void drawEdges(QPainter& p, const std::vector<ShapeEdge>& edges, const ScreenMetrics& screen)
{
    for (const ShapeEdge& e : edges)
        p.drawLine(toPixels(screen, e.from), toPixels(screen, e.to));
}

}  // namespace

ShapeSurface::ShapeSurface(const ScreenMetrics& screen, WindowHooks& hooks)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), screen_(screen)
{
    named(this, WindowId::ShapeSurface);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    hint_ = new QLabel(QStringLiteral("Bouton droit pour fermer le polygone"), this);
    named(hint_, "Label1");
    hint_->move(twipsToPixels(kHintPosition, screen.twipsPerPixelX),
                twipsToPixels(kHintPosition, screen.twipsPerPixelY));
    hint_->adjustSize();
    hint_->setMouseTracking(true);
    hint_->installEventFilter(this);
    runLoadHooks(*this, hooks);
}

void ShapeSurface::setBackground(const QColor& colour, const QPixmap& picture, QSize pictureSize)
{
    colour_ = colour;
    picture_ = picture;
    pictureSize_ = pictureSize;
    drawLayer();
}

TwipsPoint ShapeSurface::twipsAt(QPointF pixels) const
{
    return {pixels.x() * screen_.twipsPerPixelX, pixels.y() * screen_.twipsPerPixelY};
}

QPointF ShapeSurface::pixelsAt(TwipsPoint twips) const { return toPixels(screen_, twips); }

void ShapeSurface::showState(const ShapeEditor& editor)
{
    shown_ = &editor;
    hint_->setVisible(editor.hintVisible());
    drawLayer();
    bandVisible_ = editor.rubberBandVisible();
    band_ = QLineF(pixelsAt(editor.rubberBand().from), pixelsAt(editor.rubberBand().to));
    update();
}

QRect ShapeSurface::bandRect() const
{
    return QRectF(band_.p1(), band_.p2()).normalized().toAlignedRect().adjusted(-2, -2, 2, 2);
}

void ShapeSurface::moveBand(const ShapeEditor& editor)
{
    const QRect before = bandRect();
    const bool wasVisible = bandVisible_;
    bandVisible_ = editor.rubberBandVisible();
    band_ = QLineF(pixelsAt(editor.rubberBand().from), pixelsAt(editor.rubberBand().to));
    if (wasVisible || bandVisible_)
        update(before.united(bandRect()));
}

void ShapeSurface::drawLayer()
{
    if (size().isEmpty())
        return;
    layer_ = QPixmap(size());
    layer_.fill(colour_.isValid() ? colour_ : palette().window().color());
    QPainter p(&layer_);
    if (!picture_.isNull())
        p.drawPixmap(QRect(QPoint(0, 0), pictureSize_.isValid() ? pictureSize_ : picture_.size()), picture_);
    // The frame ("Shape1") along the edges of the surface.
    p.setPen(QPen(Qt::black, 1));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!shown_)
        return;
    p.setPen(QPen(QColor(kOldEdgeColour), 1));
    drawEdges(p, shown_->oldEdges(), screen_);
    p.setPen(QPen(Qt::black, 1));
    drawEdges(p, shown_->newEdges(), screen_);
}

void ShapeSurface::paintEvent(QPaintEvent* event)
{
    QPainter p(this);
    p.setClipRegion(event->region());
    p.drawPixmap(0, 0, layer_);
    if (bandVisible_) {
        p.setPen(QPen(Qt::black, 1));
        p.drawLine(band_);
    }
}

void ShapeSurface::resizeEvent(QResizeEvent*) { drawLayer(); }

void ShapeSurface::mousePressEvent(QMouseEvent* event)
{
    grabOffset_ = event->globalPosition().toPoint() - pos();
    if (!flows_)
        return;
    const int button = event->button() == Qt::LeftButton ? kLeftButton
                       : event->button() == Qt::RightButton ? kRightButton
                                                            : 0;
    flows_->press(button, twipsAt(event->position()));
}

void ShapeSurface::mouseMoveEvent(QMouseEvent* event)
{
    lastPointer_ = event->globalPosition().toPoint();
    if (flows_)
        flows_->move(twipsAt(event->position()), event->buttons().testFlag(Qt::LeftButton));
}

void ShapeSurface::dragWithPointer() { move(lastPointer_ - grabOffset_); }

void ShapeSurface::cutTo(const std::vector<PixelPoint>& outline)
{
    const std::vector<PixelRun> runs = polygonRuns(outline, width(), height());
    if (runs.empty()) {
        // An outline without area keeps nothing: a mask of one pixel off
        // the window shows none of it (an empty mask would show it all).
        setMask(QRegion(-1, -1, 1, 1));
        return;
    }
    QVector<QRect> rects;
    rects.reserve(qsizetype(runs.size()));
    for (const PixelRun& r : runs)
        rects.append(QRect(r.x, r.y, r.width, 1));
    QRegion region;
    region.setRects(rects.constData(), int(rects.size()));
    setMask(region);
}

bool ShapeSurface::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == hint_ && event->type() == QEvent::Enter && flows_)
        flows_->pointerOverHint();
    return QWidget::eventFilter(watched, event);
}

}  // namespace qor

#include "player/qt/cursors.h"

#include <QPixmap>

#include <utility>

namespace qor::player {
namespace {

constexpr std::pair<Cursor, Qt::CursorShape> kShapes[] = {
    {Cursor::Arrow, Qt::ArrowCursor},       {Cursor::Cross, Qt::CrossCursor},
    {Cursor::IBeam, Qt::IBeamCursor},       {Cursor::SizeAll, Qt::SizeAllCursor},
    {Cursor::SizeNeSw, Qt::SizeBDiagCursor}, {Cursor::SizeNS, Qt::SizeVerCursor},
    {Cursor::SizeNwSe, Qt::SizeFDiagCursor}, {Cursor::SizeWE, Qt::SizeHorCursor},
    {Cursor::UpArrow, Qt::UpArrowCursor},   {Cursor::Wait, Qt::WaitCursor},
    {Cursor::NoDrop, Qt::ForbiddenCursor},  {Cursor::ArrowWait, Qt::BusyCursor},
    {Cursor::Help, Qt::WhatsThisCursor},    {Cursor::Hand, Qt::PointingHandCursor},
};

}  // namespace

void applyPointer(QWidget& widget, const PointerShape& shape)
{
    if (shape.cursor == Cursor::Default) {
        widget.unsetCursor();
        return;
    }
    if (shape.cursor == Cursor::Custom) {
        QPixmap icon(QString::fromStdString(shape.icon));
        if (icon.isNull())
            widget.unsetCursor();
        else
            widget.setCursor(QCursor(icon));
        return;
    }
    for (const auto& [cursor, qt] : kShapes)
        if (cursor == shape.cursor) {
            widget.setCursor(qt);
            return;
        }
}

}  // namespace qor::player

#include "player/win32/cursors.h"

#include <utility>

#include "player/win32/wide.h"

namespace qor::player {
namespace {

const std::pair<Cursor, LPCWSTR> kSystemCursors[] = {
    {Cursor::Arrow, IDC_ARROW},       {Cursor::Cross, IDC_CROSS},         {Cursor::IBeam, IDC_IBEAM},
    {Cursor::SizeAll, IDC_SIZEALL},   {Cursor::SizeNeSw, IDC_SIZENESW},   {Cursor::SizeNS, IDC_SIZENS},
    {Cursor::SizeNwSe, IDC_SIZENWSE}, {Cursor::SizeWE, IDC_SIZEWE},       {Cursor::UpArrow, IDC_UPARROW},
    {Cursor::Wait, IDC_WAIT},         {Cursor::NoDrop, IDC_NO},           {Cursor::ArrowWait, IDC_APPSTARTING},
    {Cursor::Help, IDC_HELP},         {Cursor::Hand, IDC_HAND},
};

}  // namespace

Cursors::~Cursors()
{
    for (auto& [path, cursor] : files_)
        if (cursor)
            DestroyCursor(cursor);
}

HCURSOR Cursors::cursorFor(const PointerShape& shape, LPCWSTR fallback)
{
    if (shape.cursor == Cursor::Custom && !shape.icon.empty()) {
        auto found = files_.find(shape.icon);
        if (found == files_.end())
            found = files_.emplace(shape.icon, LoadCursorFromFileW(longPath(widen(shape.icon)).c_str())).first;
        if (found->second)
            return found->second;
    }
    for (const auto& [cursor, id] : kSystemCursors)
        if (cursor == shape.cursor)
            return LoadCursorW(nullptr, id);
    return LoadCursorW(nullptr, fallback);
}

}  // namespace qor::player

#include "model/project_writer.h"

#include "model/field_codec.h"
#include "model/project_format.h"
#include "text/cp1252.h"

namespace qor {
namespace {

namespace fmt = project_format;
namespace layout = project_layout;

std::size_t estimatedSize(const MenuProject& p)
{
    std::size_t size = 2048 + p.notes.size() + p.startupAction.size() + p.timerScript.size() +
                       p.globalScript.size() + p.windowHoverScript.size() + 24 * p.shapePoints.size();
    for (const auto* b : p.savableButtons())
        size += 200 + b->normalImage.size() + b->hoverImage.size() + b->pressedImage.size() +
                b->action.size() + b->hoverScript.size();
    for (int n = 1; n <= p.textCount(); ++n)
        size += 160 + p.text(n).content.size() + p.text(n).fontName.size();
    return size;
}

}  // namespace

std::string projectFileText(const MenuProject& p, const RelativePathRule& paths)
{
    std::string out;
    out.reserve(estimatedSize(p));
    LineWriter w(out, [&paths](std::string_view path) { return paths.apply(path); });

    w.line(fmt::preambleLine1());
    w.line(fmt::preambleLine2());
    w.line(fmt::preambleLine3());

    const layout::FormatLines format{std::string(fmt::editorLine), fmt::versionLine(),
                                     std::string(fmt::fileVersionKey) + std::string(fmt::fileVersion)};
    layout::writeBlock(w, layout::kFormat, format);
    layout::writeBlock(w, layout::kAuthor, p);
    layout::writeBlock(w, layout::kGeneral, p);
    layout::writeBlock(w, layout::kParamsPlus, p);
    layout::writeBlock(w, layout::kOther, p);
    for (const auto* b : p.savableButtons())
        layout::writeBlock(w, layout::kButton, *b);
    for (const auto* t : p.liveTexts())
        layout::writeBlock(w, layout::kText, *t);

    if (!p.shapePoints.empty()) {
        w.line(fmt::shapeComment);
        appendShapeBlock(out, p.shapePoints);
    }

    w.line(fmt::trailerLine1);
    w.line(fmt::trailerLine2);
    return out;
}

std::string projectFileBytes(const MenuProject& project, const RelativePathRule& paths)
{
    return encodeCp1252(projectFileText(project, paths));
}

}  // namespace qor

#include "model/menu_data_writer.h"

#include "model/field_codec.h"
#include "model/version.h"
#include "text/cp1252.h"
#include "text/line_file.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

namespace layout = project_layout;
namespace data = menu_data_layout;

std::string bareName(std::string_view path)
{
    return fileNameOf(path);
}

// The baked copy of a transparent button's image: "b1.bmp_transp.bmp".
std::string bakedName(std::string_view path)
{
    return path.empty() ? std::string() : fileNameOf(path) + std::string(data::kTransparentSuffix);
}

void writeGeneral(LineWriter& w, const MenuProject& project, const MenuDataInfo& info)
{
    w.line(layout::kGeneral.header);
    for (const auto& r : data::kGeneralRows) {
        if (r.project)
            layout::writeField(w, *r.project, project);
        else
            layout::writeField(w, *r.info, info);
    }
}

std::string header()
{
    return std::string(data::kHeaderPrefix) + std::to_string(version::major) + "." +
           std::to_string(version::minor);
}

}  // namespace

std::string menuDataLines(const MenuProject& project, const MenuDataInfo& info)
{
    std::string out;
    out.reserve(4096 + project.globalScript.size() + project.timerScript.size());
    LineWriter w(out, bareName);
    w.line(header());
    writeGeneral(w, project, info);
    layout::writeBlock(w, layout::kParamsPlus, project);
    layout::writeBlock(w, layout::kOther, project);
    for (const MenuButton* b : project.savableButtons()) {
        LineWriter bw(out, b->transparent ? LineWriter::PathText(bakedName) : LineWriter::PathText(bareName));
        layout::writeBlock(bw, layout::kButton, *b);
    }
    for (const MenuText* t : project.liveTexts())
        layout::writeBlock(w, layout::kText, *t);
    if (!project.shapePoints.empty())
        appendShapeBlock(out, project.shapePoints);
    w.line(data::kEndMarker);
    return out;
}

std::string menuDataLine(std::string_view linesText)
{
    std::string text(linesText);
    if (text.size() > 5)
        text.erase(text.size() - 2);
    return std::string(data::kStart) + replaceAll(text, kCrLf, data::kSeparator) + std::string(kCrLf);
}

std::string menuDataBytes(const MenuProject& project, const MenuDataInfo& info)
{
    return encodeCp1252(menuDataLine(menuDataLines(project, info)));
}

}  // namespace qor

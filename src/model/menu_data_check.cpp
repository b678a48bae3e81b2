#include "model/menu_data_check.h"

#include "model/field_codec.h"

#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {
namespace {

namespace layout = project_layout;
using layout::Encoding;

// One pass over the bytes: the two marks are the only sequences C2 A4 and
// C2 AC in UTF-8, so no decoding is needed.
std::optional<DataValueProblem> markOrControl(std::string_view v, bool oneLine)
{
    for (std::size_t i = 0; i < v.size(); ++i) {
        const auto c = static_cast<unsigned char>(v[i]);
        if (c == 0)
            return DataValueProblem::NulByte;
        if ((c == '\r' || c == '\n') && oneLine)
            return DataValueProblem::LineBreak;
        if (c == 0xC2 && i + 1 < v.size()) {
            const auto next = static_cast<unsigned char>(v[i + 1]);
            if (next == 0xAC)
                return DataValueProblem::Separator;
            if (next == 0xA4)
                return DataValueProblem::LineBreakMark;
        }
    }
    return std::nullopt;
}

std::optional<DataValueKind> kindOf(Encoding e)
{
    switch (e) {
    case Encoding::Text:
    case Encoding::DecimalText: return DataValueKind::OneLine;
    case Encoding::MultiLine: return DataValueKind::MultiLine;
    case Encoding::Path: return DataValueKind::FileName;
    default: return std::nullopt;
    }
}

class Walker {
public:
    std::optional<DataValueFault> fault;

    template <class Record>
    bool field(const layout::Field<Record>& f, const Record& r, DataValueFault::Record where, int number)
    {
        const auto kind = kindOf(f.encoding);
        if (!kind)
            return false;
        const std::string& stored = layout::fieldOf<std::string>(f, r);
        if (*kind == DataValueKind::FileName && stored.empty())
            return false;   // no file: an empty line
        // Only a file's bare name goes into the data; scripts are looked at in place.
        std::string name;
        if (*kind == DataValueKind::FileName)
            name = fileNameOf(stored);
        const std::string_view value = *kind == DataValueKind::FileName ? std::string_view(name) : stored;
        if (auto problem = dataValueProblem(value, *kind)) {
            fault = DataValueFault{where, number, f.name, std::string(value), *problem, *kind};
            return true;
        }
        return false;
    }

    template <class Record>
    bool block(const layout::Block<Record>& b, const Record& r, DataValueFault::Record where, int number = 0)
    {
        for (const auto& f : b.fields)
            if (field(f, r, where, number))
                return true;
        return false;
    }
};

}  // namespace

std::optional<DataValueProblem> dataValueProblem(std::string_view value, DataValueKind kind)
{
    if (auto p = markOrControl(value, kind != DataValueKind::MultiLine))
        return p;
    if (kind != DataValueKind::FileName)
        return std::nullopt;
    if (value.empty() || value == "." || value == "..")
        return DataValueProblem::NoFileName;
    if (utf8Length(value) > kLongestFileName)
        return DataValueProblem::NameTooLong;
    if (decodeCp1252(encodeCp1252(value)) != value)
        return DataValueProblem::NotWestern;
    return std::nullopt;
}

std::optional<DataValueFault> findDataValueFault(const MenuProject& project, const MenuDataInfo& info)
{
    using R = DataValueFault::Record;
    Walker w;
    for (const auto& row : menu_data_layout::kGeneralRows)
        if (row.project ? w.field(*row.project, project, R::Project, 0) : w.field(*row.info, info, R::Info, 0))
            return w.fault;
    if (w.block(layout::kParamsPlus, project, R::Project) || w.block(layout::kOther, project, R::Project))
        return w.fault;
    for (int n = 1; n <= MenuProject::kLastButtonSlot; ++n)
        if (project.button(n).isSavable() && w.block(layout::kButton, project.button(n), R::Button, n))
            return w.fault;
    for (int n = 1; n <= project.textCount(); ++n)
        if (project.text(n).isLive() && w.block(layout::kText, project.text(n), R::Text, n))
            return w.fault;
    return std::nullopt;
}

}  // namespace qor

#include "model/menu_data_reader.h"

#include <vector>

#include "model/field_codec.h"
#include "text/cp1252.h"
#include "text/line_file.h"
#include "text/numbers.h"

namespace qor {
namespace {

namespace layout = project_layout;
namespace data = menu_data_layout;
using layout::Encoding;

std::vector<std::string_view> splitLogicalLines(std::string_view body)
{
    std::vector<std::string_view> lines;
    std::size_t pos = 0;
    for (;;) {
        const std::size_t hit = body.find(data::kSeparator, pos);
        lines.push_back(body.substr(pos, hit == std::string_view::npos ? std::string_view::npos : hit - pos));
        if (hit == std::string_view::npos)
            return lines;
        pos = hit + data::kSeparator.size();
    }
}

// Walks the logical lines in their fixed order; the first line that does not
// read as the layout says stops it with the line's number and the reason.
class DataParser {
public:
    DataParser(std::vector<std::string_view> lines, MenuData& out) : lines_(std::move(lines)), out_(out) {}

    bool run();
    const MenuDataError& error() const { return error_; }

private:
    bool fail(std::string reason)
    {
        if (error_.reason.empty())
            error_ = {MenuDataError::Kind::Damaged, int(i_), std::move(reason)};
        return false;
    }
    bool take(std::string_view& line)
    {
        if (i_ >= lines_.size()) {
            i_ = lines_.size() + 1;
            return fail("ligne manquante");
        }
        line = lines_[i_++];
        return true;
    }
    std::string_view peek() const { return i_ < lines_.size() ? lines_[i_] : std::string_view(); }
    bool expect(std::string_view text)
    {
        std::string_view line;
        if (!take(line))
            return false;
        return line == text || fail("« " + std::string(text) + " » attendu");
    }

    template <class Record>
    bool field(const layout::Field<Record>& f, Record& record);
    template <class Record>
    bool block(const layout::Block<Record>& b, Record& record);
    bool general();
    bool button();
    bool text();
    bool shape();

    std::vector<std::string_view> lines_;
    MenuData& out_;
    std::size_t i_ = 0;
    MenuDataError error_;
};

// Values are read as the project file reads them; a number line must hold a
// number (or its row's word), so a line out of its place is caught.
template <class Record>
bool DataParser::field(const layout::Field<Record>& f, Record& record)
{
    std::string_view line;
    if (!take(line))
        return false;
    if (f.encoding == Encoding::Reserved)
        return line == f.text || fail("« " + std::string(f.text) + " » attendu");
    const bool numeric = f.encoding == Encoding::Number || f.encoding == Encoding::Colour || f.encoding == Encoding::Flag;
    const bool word = f.wordWhen && line == f.text;
    if (numeric && !word && !isNumeric(line))
        return fail(std::string(f.name) + " : nombre attendu");
    if (Status s = layout::readField(f, record, line); !s)
        return fail(std::string(f.name) + " : " + s.error().description);
    return true;
}

template <class Record>
bool DataParser::block(const layout::Block<Record>& b, Record& record)
{
    if (!expect(b.header))
        return false;
    for (const auto& f : b.fields)
        if (!field(f, record))
            return false;
    return true;
}

bool DataParser::general()
{
    if (!expect(layout::kGeneral.header))
        return false;
    for (const auto& r : data::kGeneralRows)
        if (!(r.project ? field(*r.project, out_.project) : field(*r.info, out_.info)))
            return false;
    return true;
}

bool DataParser::button()
{
    auto n = out_.project.addButton();
    if (!n)
        return fail("plus de 100 boutons");
    return block(layout::kButton, out_.project.button(*n));
}

bool DataParser::text()
{
    auto n = out_.project.addText();
    if (!n)
        return fail("trop de textes");
    return block(layout::kText, out_.project.text(*n));
}

bool DataParser::shape()
{
    if (!expect(kShapeBlockStart))
        return false;
    bool ok = true;
    readShapeBlock(
        out_.project.shapePoints, [this](std::string_view& line) { return take(line); },
        [&ok, this](const Error& e) { return ok = fail("forme : " + e.description); });
    return ok;
}

bool DataParser::run()
{
    std::string_view header;
    if (!take(header))
        return false;
    if (!header.starts_with(data::kHeaderPrefix))
        return fail("en-tête « " + std::string(data::kHeaderPrefix) + "… » attendu");
    if (!general() || !block(layout::kParamsPlus, out_.project) || !block(layout::kOther, out_.project))
        return false;
    while (peek() == layout::kButton.header || peek() == layout::kText.header)
        if (!(peek() == layout::kButton.header ? button() : text()))
            return false;
    if (peek() == kShapeBlockStart && !shape())
        return false;
    if (!expect(data::kEndMarker))
        return false;
    return i_ == lines_.size() || fail("lignes après la marque de fin");
}

MenuDataError noData()
{
    return {MenuDataError::Kind::NoData, 0, {}};
}

// The bytes the file must end with when data is appended.
const std::string& endBytes()
{
    static const std::string bytes =
        encodeCp1252(std::string(data::kSeparator) + std::string(data::kEndMarker) + std::string(kCrLf));
    return bytes;
}

struct Located {
    std::optional<std::size_t> offset;
    MenuDataResult result;
};

Located locate(std::string_view bytes)
{
    const std::string& end = endBytes();
    if (!bytes.ends_with(end))
        return {std::nullopt, noData()};
    const std::string start = encodeCp1252(data::kStart);
    const std::string_view body = bytes.substr(0, bytes.size() - kCrLf.size());
    // The data line holds no line break: only the file's last line can be it.
    const std::size_t lastBreak = body.find_last_of("\r\n");
    std::size_t from = lastBreak == std::string_view::npos ? 0 : lastBreak + 1;
    std::optional<MenuDataResult> first;
    for (std::size_t at; (at = body.find(start, from)) != std::string_view::npos; from = at + 1) {
        MenuDataResult r = parseMenuDataLine(decodeCp1252(body.substr(at)));
        if (std::holds_alternative<MenuData>(r))
            return {at, std::move(r)};
        // Of several failed readings, the one that got furthest says best what is wrong.
        if (!first || std::get<MenuDataError>(r).logicalLine > std::get<MenuDataError>(*first).logicalLine)
            first = std::move(r);
    }
    if (first)
        return {std::nullopt, std::move(*first)};
    return {std::nullopt, MenuDataError{MenuDataError::Kind::Damaged, 0, "« (debut)¬ » introuvable"}};
}

}  // namespace

std::string MenuDataError::message() const
{
    if (kind == Kind::NoData)
        return "Aucun menu n'est attaché à ce programme : il faut le créer avec l'éditeur QOR.";
    std::string text = "Les données du menu sont endommagées";
    if (logicalLine > 0)
        text += " (ligne " + std::to_string(logicalLine) + " : " + reason + ")";
    else if (!reason.empty())
        text += " (" + reason + ")";
    return text + ".";
}

std::optional<std::size_t> findMenuData(std::string_view fileBytes)
{
    return locate(fileBytes).offset;
}

MenuDataResult readMenuData(std::string_view fileBytes)
{
    return locate(fileBytes).result;
}

MenuDataResult parseMenuDataLine(std::string_view line)
{
    if (!line.starts_with(data::kStart))
        return MenuDataError{MenuDataError::Kind::Damaged, 0, "« (debut)¬ » attendu"};
    MenuData menu;
    DataParser parser(splitLogicalLines(line.substr(data::kStart.size())), menu);
    if (!parser.run())
        return parser.error();
    return menu;
}

}  // namespace qor

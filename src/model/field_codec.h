#pragma once

#include <string>
#include <string_view>

#include "model/line_writer.h"
#include "model/project_format.h"
#include "model/project_layout.h"
#include "text/error.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor::project_layout {

// One row of a field table applied to a record: what a value line of that
// row stores, and how the row's value is written. Hooks are the reader's.

template <class T, class Record>
T& fieldOf(const Field<Record>& f, Record& record)
{
    return record.*std::get<T Record::*>(f.member);
}

template <class T, class Record>
const T& fieldOf(const Field<Record>& f, const Record& record)
{
    return record.*std::get<T Record::*>(f.member);
}

inline bool flagValue(FlagRule rule, double v)
{
    switch (rule) {
    case FlagRule::Positive: return v > 0;
    case FlagRule::NotZero: return v != 0;
    case FlagRule::One: return v == 1;
    }
    return false;
}

// A multi-line value: every "¤" back to CR LF.
inline void assignMultiLine(std::string& field, std::string_view line)
{
    if (line.find(kLineBreakMark) == std::string_view::npos)
        field.assign(line);
    else
        field = decodeLineBreaks(line);
}


template <class Record>
Status readNumberField(const Field<Record>& f, Record& record, std::string_view line)
{
    // A line that is not a number stands for the word ("plein", "ecran").
    if (f.wordWhen && !isNumeric(line)) {
        record.*f.wordWhen = true;
        return {};
    }
    auto v = parseNumber(line);
    if (!v)
        return v.error();
    auto single = toSingle(*v);
    if (!single)
        return single.error();
    fieldOf<float>(f, record) = *single;
    return {};
}

template <class Record>
Status readColourField(const Field<Record>& f, Record& record, std::string_view line)
{
    if (f.strictNumber && !isNumeric(line))
        return makeError(err::TypeMismatch);
    auto v = readInt32(line);
    if (!v)
        return v.error();
    fieldOf<std::int32_t>(f, record) = *v;
    return {};
}

// What a value line of row f stores in record; a placeholder line leaves a
// placeholder-aware row as it was.
template <class Record>
Status readField(const Field<Record>& f, Record& record, std::string_view line)
{
    if (f.placeholderAware && project_format::isPlaceholderLine(line))
        return {};
    switch (f.encoding) {
    case Encoding::Text:
    case Encoding::Path:
    case Encoding::Icon:
        fieldOf<std::string>(f, record).assign(line);
        return {};
    case Encoding::MultiLine:
        assignMultiLine(fieldOf<std::string>(f, record), line);
        return {};
    case Encoding::DecimalText: {
        // Kept as decimal text: "1000" stays "1000", "abc" becomes "0".
        auto v = parseNumber(line);
        if (!v)
            return v.error();
        fieldOf<std::string>(f, record) = numberText(*v, kDoubleDigits);
        return {};
    }
    case Encoding::Number:
        return readNumberField(f, record, line);
    case Encoding::Colour:
        return readColourField(f, record, line);
    case Encoding::Flag: {
        auto v = parseNumber(line);
        if (!v)
            return v.error();
        fieldOf<bool>(f, record) = flagValue(f.flag, *v);
        return {};
    }
    case Encoding::Reserved:
        return {};
    }
    return {};
}

template <class Record>
void writeField(LineWriter& w, const Field<Record>& f, const Record& record)
{
    switch (f.encoding) {
    case Encoding::Text:
    case Encoding::DecimalText:
        w.oneLine(fieldOf<std::string>(f, record));
        return;
    case Encoding::MultiLine:
        w.multiLine(fieldOf<std::string>(f, record));
        return;
    case Encoding::Path:
        w.path(fieldOf<std::string>(f, record));
        return;
    case Encoding::Icon: {
        const std::string& icon = fieldOf<std::string>(f, record);
        if (isDefaultIconMarker(icon))
            w.oneLine(icon);
        else
            w.path(icon);
        return;
    }
    case Encoding::Number:
        if (f.wordWhen && record.*f.wordWhen)
            w.line(f.text);
        else
            w.number(fieldOf<float>(f, record));
        return;
    case Encoding::Colour:
        w.integer(fieldOf<std::int32_t>(f, record));
        return;
    case Encoding::Flag:
        w.flag(fieldOf<bool>(f, record));
        return;
    case Encoding::Reserved:
        w.line(f.text);
        return;
    }
}

// A block as written: its header, then every row.
template <class Record>
void writeBlock(LineWriter& w, const Block<Record>& block, const Record& record)
{
    w.line(block.header);
    for (const auto& f : block.fields)
        writeField(w, f, record);
}

}  // namespace qor::project_layout

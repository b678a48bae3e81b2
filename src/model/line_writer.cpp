#include "model/line_writer.h"

#include "text/line_file.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor {

void LineWriter::line(std::string_view text)
{
    out_ += text;
    out_ += kCrLf;
}

void LineWriter::multiLine(std::string_view text)
{
    appendMapped(text, kLineBreakMark);
}

void LineWriter::number(float value)
{
    line(formatSingle(value));
}

void LineWriter::integer(long long value)
{
    line(formatInteger(value));
}

void LineWriter::appendMapped(std::string_view text, std::string_view lineBreak)
{
    std::size_t pos = 0;
    for (;;) {
        std::size_t hit = text.find_first_of("\r\n", pos);
        if (hit == std::string_view::npos)
            break;
        out_.append(text, pos, hit - pos);
        out_ += lineBreak;
        pos = hit + 1;
        if (text[hit] == '\r' && pos < text.size() && text[pos] == '\n')
            ++pos;
    }
    out_.append(text, pos);
    out_ += kCrLf;
}

}  // namespace qor

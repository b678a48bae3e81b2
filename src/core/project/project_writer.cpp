#include "core/project/project_writer.h"

#include "core/project/project_format.h"
#include "core/text/cp1252.h"
#include "core/text/line_file.h"
#include "core/text/numbers.h"
#include "core/text/text_helpers.h"

namespace qor {
namespace {

namespace fmt = project_format;

class Writer {
public:
    Writer(std::string& out, const RelativePathRule& paths) : out_(out), paths_(paths) {}

    void line(std::string_view text)
    {
        out_ += text;
        out_ += kCrLf;
    }

    // A one-line value must not break the positional layout: a stray line
    // break becomes a blank.
    void oneLine(std::string_view text) { appendMapped(text, " "); }

    // Every line break becomes the mark "¤". CR LF is the model's line
    // break; a lone CR or LF is written the same way rather than splitting
    // the value over two lines of the file.
    void multiLine(std::string_view text) { appendMapped(text, kLineBreakMark); }

    void number(float value) { line(formatSingle(value)); }
    void integer(long long value) { line(formatInteger(value)); }
    void flag(bool value) { line(value ? " 1 " : " 0 "); }
    void path(std::string_view p) { oneLine(paths_.apply(p)); }

private:
    void appendMapped(std::string_view text, std::string_view lineBreak)
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

    std::string& out_;
    const RelativePathRule& paths_;
};

void writeButton(Writer& w, const MenuButton& b)
{
    w.line(fmt::button);
    w.number(b.left);
    w.number(b.top);
    w.path(b.normalImage);
    w.path(b.hoverImage);
    w.path(b.pressedImage);
    w.oneLine(b.kind);
    w.multiLine(b.action);
    w.multiLine(b.hoverScript);
    w.flag(b.transparent);
    w.integer(b.transparentColor);
    w.line(fmt::placeholderLine(4));
}

void writeText(Writer& w, const MenuText& t)
{
    w.line(fmt::text);
    w.multiLine(t.content);
    w.integer(t.backColor);
    w.integer(t.foreColor);
    w.flag(t.fontBold);
    w.flag(t.fontItalic);
    w.oneLine(t.fontName);
    w.number(t.fontSize);
    w.flag(t.fontStrikethru);
    w.flag(t.fontUnderline);
    // Top before left here, unlike the button block.
    w.number(t.top);
    w.number(t.left);
    w.number(t.width);
    w.number(t.height);
    w.oneLine(t.settings);
    for (int i = 1; i <= 4; ++i)
        w.line("para" + std::to_string(i));
}

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
    Writer w(out, paths);

    w.line(fmt::preambleLine1());
    w.line(fmt::preambleLine2());
    w.line(fmt::preambleLine3());

    w.line(fmt::format);
    w.line(fmt::editorLine);
    w.line(fmt::versionLine());
    w.line(std::string(fmt::fileVersionKey) + std::string(fmt::fileVersion));

    w.line(fmt::author);
    w.oneLine(p.authorName);
    w.oneLine(p.authorEmail);
    w.oneLine(p.authorWebSite);
    w.multiLine(p.notes);

    w.line(fmt::general);
    w.path(p.backgroundImage);
    if (p.fullScreen) {
        w.line(fmt::fullScreenWidth);
        w.line(fmt::fullScreenHeight);
    } else {
        w.number(p.width);
        w.number(p.height);
    }
    w.flag(p.border);
    if (isDefaultIconMarker(p.icon))
        w.oneLine(p.icon);
    else
        w.path(p.icon);
    w.line(fmt::placeholderLine(3));
    w.path(p.backgroundMusic);

    w.line(fmt::paramsPlus);
    w.multiLine(p.startupAction);
    w.integer(p.backgroundColor);
    w.flag(p.contextMenu);
    w.flag(p.timerEnabled);
    w.oneLine(p.timerInterval);
    w.multiLine(p.timerScript);
    w.multiLine(p.globalScript);
    w.flag(p.handCursor);
    w.path(p.clickSound);
    w.path(p.hoverSound);

    w.line(fmt::other);
    w.path(p.transparencyImage);
    w.multiLine(p.windowHoverScript);
    for (int i = 3; i <= 15; ++i)
        w.line(fmt::placeholderLine(i));

    for (const auto* b : p.savableButtons())
        writeButton(w, *b);
    for (const auto* t : p.liveTexts())
        writeText(w, *t);

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

#include "core/project/project_reader.h"

#include "core/project/project_format.h"
#include "core/text/line_file.h"
#include "core/text/numbers.h"
#include "core/text/text_helpers.h"

namespace qor {
namespace {

namespace fmt = project_format;

Result<float> readSingle(std::string_view line)
{
    auto v = parseNumber(line);
    if (!v)
        return v.error();
    return toSingle(*v);
}

// The text boxes' colours are converted strictly: the line must be a number.
Result<std::int32_t> convertColour(std::string_view line)
{
    if (!isNumeric(line))
        return makeError(err::TypeMismatch);
    return readInt32(line);
}

void assignMultiLine(std::string& field, std::string_view line)
{
    if (line.find(kLineBreakMark) == std::string_view::npos)
        field.assign(line);
    else
        field = decodeLineBreaks(line);
}

void assignUnlessPlaceholder(std::string& field, std::string_view line)
{
    if (!fmt::isPlaceholderLine(line))
        field.assign(line);
}

// A flag line, read as a number; the rule that makes it true differs per line.
template <class Rule>
Status assignFlag(bool& field, std::string_view line, Rule rule)
{
    auto v = parseNumber(line);
    if (!v)
        return v.error();
    field = rule(*v);
    return {};
}

bool greaterThanZero(double v) { return v > 0; }
bool notZero(double v) { return v != 0; }
bool exactlyOne(double v) { return v == 1; }

Status assignSingle(float& field, std::string_view line)
{
    auto v = readSingle(line);
    if (!v)
        return v.error();
    field = *v;
    return {};
}

Status assignColour(std::int32_t& field, std::string_view line)
{
    auto v = readInt32(line);
    if (!v)
        return v.error();
    field = *v;
    return {};
}

}  // namespace

Message readErrorMessage(const Error& error, std::string_view paragraph, std::string_view valueLine)
{
    std::string text;
    text += "Erreur : " + error.description;
    text += kCrLf;
    text += "Numéro d'erreur : " + std::to_string(error.number);
    text += kCrLf;
    text += "Paragraphe : ";
    text += paragraph;
    text += kCrLf;
    text += "Ligne suivante : ";
    text += valueLine;
    text += kCrLf;
    text += kCrLf;
    text += "Continuer le chargement ?";
    return Message{std::move(text), "Erreur d'ouverture !", MessageIcon::Critical, MessageButtons::YesNo};
}

ProjectReader::ProjectReader(MenuProject& project, ProjectHooks& hooks, Dialogs& dialogs)
    : project_(project), hooks_(hooks), dialogs_(dialogs)
{
}

bool ProjectReader::nextLine(std::string_view& line)
{
    const std::size_t n = text_.size();
    if (pos_ >= n)
        return false;
    const char* data = text_.data();
    std::size_t i = pos_;
    while (i < n && data[i] != '\r' && data[i] != '\n')
        ++i;
    line = text_.substr(pos_, i - pos_);
    if (i < n && data[i] == '\r' && i + 1 < n && data[i + 1] == '\n')
        ++i;
    pos_ = i + 1;
    return true;
}

bool ProjectReader::fail(const Error& error)
{
    if (stopped_)
        return false;
    if (error.number == err::InputPastEnd && ++readsPastEnd_ > kMaxReadsPastEnd) {
        stopped_ = true;
        return false;
    }
    if (dialogs_.message(readErrorMessage(error, paragraph_, valueLine_)) == Answer::Yes)
        return true;
    stopped_ = true;
    abandoned_ = true;
    return false;
}

// One step: reads the next value line and applies it (apply returns Status).
template <class Apply>
void ProjectReader::value(Apply&& apply)
{
    if (stopped_)
        return;
    std::string_view line;
    if (!nextLine(line)) {
        fail(makeError(err::InputPastEnd));
        return;
    }
    valueLine_ = line;
    Status s = apply(line);
    if (!s)
        fail(s.error());
}

// Reads lines that hold nothing for us; the end of the file ends them quietly.
void ProjectReader::skip(int lines)
{
    std::string_view line;
    for (int i = 0; i < lines && !stopped_ && nextLine(line); ++i)
        valueLine_ = line;
}

ReadOutcome ProjectReader::read(std::string_view text, std::string_view path)
{
    text_ = text;
    path_ = path;
    pos_ = 0;
    paragraph_ = {};
    valueLine_ = {};
    fileVersion_ = 0;
    readsPastEnd_ = 0;
    stopped_ = false;
    abandoned_ = false;

    std::string_view line;
    while (!stopped_ && nextLine(line)) {
        paragraph_ = line;
        // Anything that is not a section header (comments, placeholder lines,
        // lines a later version may add) is passed over.
        if (line.empty() || line.front() != '[')
            continue;
        if (line == fmt::format)
            readFormat();
        else if (line == fmt::author)
            readAuthor();
        else if (line == fmt::general)
            readGeneral();
        else if (line == fmt::paramsPlus)
            readParamsPlus();
        else if (line == fmt::other)
            readOther();
        else if (line == fmt::button)
            readButton();
        else if (line == fmt::text)
            readText();
        else if (line == kShapeBlockStart)
            readShape();
    }
    return abandoned_ ? ReadOutcome::Abandoned : ReadOutcome::Completed;
}

void ProjectReader::readFormat()
{
    value([](std::string_view) { return Status{}; });   // "Editeur="
    value([](std::string_view) { return Status{}; });   // "Version="
    value([&](std::string_view line) {
        fileVersion_ = readNumber(dropChars(line, fmt::fileVersionKey.size()));
        return Status{};
    });
}

void ProjectReader::readAuthor()
{
    auto& p = project_;
    value([&](std::string_view line) { p.authorName.assign(line); return Status{}; });
    value([&](std::string_view line) { p.authorEmail.assign(line); return Status{}; });
    value([&](std::string_view line) { p.authorWebSite.assign(line); return Status{}; });
    value([&](std::string_view line) { assignMultiLine(p.notes, line); return Status{}; });
}

void ProjectReader::readGeneral()
{
    auto& p = project_;
    value([&](std::string_view line) {
        p.backgroundImage.assign(line);
        return hooks_.loadBackgroundImage(resolvePath(line, path_));
    });
    // A number sets the size; "plein" / "ecran" (or anything else) means full screen.
    value([&](std::string_view line) {
        if (!isNumeric(line)) {
            p.fullScreen = true;
            return Status{};
        }
        return assignSingle(p.width, line);
    });
    value([&](std::string_view line) {
        if (!isNumeric(line)) {
            p.fullScreen = true;
            return Status{};
        }
        return assignSingle(p.height, line);
    });
    value([&](std::string_view line) { return assignFlag(p.border, line, greaterThanZero); });
    value([&](std::string_view line) { assignUnlessPlaceholder(p.icon, line); return Status{}; });
    value([](std::string_view) { return Status{}; });   // reserved
    value([&](std::string_view line) { assignUnlessPlaceholder(p.backgroundMusic, line); return Status{}; });
}

void ProjectReader::readParamsPlus()
{
    auto& p = project_;
    value([&](std::string_view line) {
        hooks_.setLoading(true);
        p.startupAction.assign(line);
        StartupChoice choice = StartupChoice::Nothing;
        if (!line.empty()) {
            choice = StartupChoice::MediaFile;
            if (beginsWithAndLonger(line, fmt::scriptPrefix)) {
                choice = StartupChoice::Script;
                assignMultiLine(p.startupAction, line);
            }
        }
        hooks_.showStartupChoice(choice);
        hooks_.setLoading(false);
        return Status{};
    });
    value([&](std::string_view line) { return assignColour(p.backgroundColor, line); });
    value([&](std::string_view line) { return assignFlag(p.contextMenu, line, notZero); });
    value([&](std::string_view line) { return assignFlag(p.timerEnabled, line, notZero); });
    value([&](std::string_view line) {
        // Kept as decimal text: "1000" stays "1000", "abc" becomes "0".
        auto v = parseNumber(line);
        if (!v)
            return Status(v.error());
        p.timerInterval = numberText(*v, kDoubleDigits);
        return Status{};
    });
    value([&](std::string_view line) {
        if (!fmt::isPlaceholderLine(line))
            assignMultiLine(p.timerScript, line);
        return Status{};
    });
    value([&](std::string_view line) {
        if (!fmt::isPlaceholderLine(line))
            assignMultiLine(p.globalScript, line);
        return Status{};
    });
    value([&](std::string_view line) { return assignFlag(p.handCursor, line, notZero); });
    value([&](std::string_view line) { assignUnlessPlaceholder(p.clickSound, line); return Status{}; });
    value([&](std::string_view line) { assignUnlessPlaceholder(p.hoverSound, line); return Status{}; });
}

void ProjectReader::readOther()
{
    auto& p = project_;
    value([&](std::string_view line) { p.transparencyImage.assign(line); return Status{}; });
    value([&](std::string_view line) {
        if (!fmt::isPlaceholderLine(line))
            assignMultiLine(p.windowHoverScript, line);
        return Status{};
    });
    // Its thirteen reserved lines are passed over by the main loop.
}

void ProjectReader::readButton()
{
    const bool extras = fileVersion_ >= fmt::firstVersionWithButtonExtras;
    const int blockLines = extras ? 11 : 7;
    auto created = project_.addButton();
    if (!created) {
        if (fail(created.error()))
            skip(blockLines);
        return;
    }
    const int n = *created;
    auto& b = project_.button(n);
    value([&](std::string_view line) { return assignSingle(b.left, line); });
    value([&](std::string_view line) { return assignSingle(b.top, line); });
    value([&](std::string_view line) { b.normalImage.assign(line); return Status{}; });
    value([&](std::string_view line) { b.hoverImage.assign(line); return Status{}; });
    value([&](std::string_view line) { b.pressedImage.assign(line); return Status{}; });
    value([&](std::string_view line) { b.kind.assign(line); return Status{}; });
    value([&](std::string_view line) { assignMultiLine(b.action, line); return Status{}; });
    if (!stopped_) {
        Status s = hooks_.loadButtonImage(n, resolvePath(b.normalImage, path_));
        if (!s)
            fail(s.error());
    }
    if (extras) {
        value([&](std::string_view line) { assignMultiLine(b.hoverScript, line); return Status{}; });
        value([&](std::string_view line) {
            if (fmt::isPlaceholderLine(line))
                return Status{};
            return assignFlag(b.transparent, line, exactlyOne);
        });
        value([&](std::string_view line) { return assignColour(b.transparentColor, line); });
        value([](std::string_view) { return Status{}; });   // reserved
    }
    if (!abandoned_)
        hooks_.buttonCreated(n, b.kind);
}

void ProjectReader::readText()
{
    auto created = project_.addText();
    if (!created) {
        if (fail(created.error()))
            skip(18);
        return;
    }
    const int n = *created;
    // The vector of text boxes does not grow while this block is read, so
    // the reference stays valid.
    auto& t = project_.text(n);
    auto colour = [](std::int32_t& field) {
        return [&field](std::string_view line) {
            auto v = convertColour(line);
            if (!v)
                return Status(v.error());
            field = *v;
            return Status{};
        };
    };
    value([&](std::string_view line) { assignMultiLine(t.content, line); return Status{}; });
    value(colour(t.backColor));
    value(colour(t.foreColor));
    value([&](std::string_view line) { return assignFlag(t.fontBold, line, exactlyOne); });
    value([&](std::string_view line) { return assignFlag(t.fontItalic, line, exactlyOne); });
    // Any font name is kept: the screen substitutes a face it has.
    value([&](std::string_view line) { t.fontName.assign(line); return Status{}; });
    value([&](std::string_view line) { return assignSingle(t.fontSize, line); });
    value([&](std::string_view line) { return assignFlag(t.fontStrikethru, line, exactlyOne); });
    value([&](std::string_view line) { return assignFlag(t.fontUnderline, line, exactlyOne); });
    // Top before left here, unlike the button block.
    value([&](std::string_view line) { return assignSingle(t.top, line); });
    value([&](std::string_view line) { return assignSingle(t.left, line); });
    value([&](std::string_view line) { return assignSingle(t.width, line); });
    value([&](std::string_view line) { return assignSingle(t.height, line); });
    value([&](std::string_view line) { t.settings.assign(line); return Status{}; });
    for (int i = 0; i < 4; ++i)
        value([](std::string_view) { return Status{}; });   // reserved "para1" to "para4"
    if (!abandoned_)
        hooks_.textCreated(n);
}

void ProjectReader::readShape()
{
    project_.shapePoints.clear();
    readShapeBlock(
        project_.shapePoints,
        [&](std::string_view& line) {
            if (stopped_ || !nextLine(line))
                return false;
            valueLine_ = line;
            return true;
        },
        [&](const Error& error) { return fail(error); });
}

}  // namespace qor

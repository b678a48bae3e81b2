#include "model/project_reader.h"

#include "model/field_codec.h"
#include "model/project_format.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

namespace fmt = project_format;
namespace layout = project_layout;

}  // namespace

ProjectReader::ProjectReader(MenuProject& project, ProjectReadHooks& hooks, ReadFailures& failures)
    : project_(project), hooks_(hooks), failures_(failures)
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
    if (failures_.goOn(error, paragraph_, valueLine_))
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
        if (line == layout::kFormat.header)
            readFormat();
        else if (line == layout::kAuthor.header)
            readFields(layout::kAuthor, project_);
        else if (line == layout::kGeneral.header)
            readFields(layout::kGeneral, project_);
        else if (line == layout::kParamsPlus.header)
            readFields(layout::kParamsPlus, project_);
        else if (line == layout::kOther.header)
            readFields(layout::kOther, project_);
        else if (line == layout::kButton.header)
            readButton();
        else if (line == layout::kText.header)
            readText();
        else if (line == kShapeBlockStart)
            readShape();
    }
    return abandoned_ ? ReadOutcome::Abandoned : ReadOutcome::Completed;
}

template <class Record>
void ProjectReader::readFields(const layout::Block<Record>& block, Record& record, bool extras)
{
    for (const auto& f : block.fields)
        if (!f.leftToMainLoop && f.extra == extras)
            value([&](std::string_view line) { return applyRow(f, record, line); });
}

template <class Record>
Status ProjectReader::applyRow(const layout::Field<Record>& f, Record& record, std::string_view line)
{
    switch (f.hook) {
    case layout::ReadHook::None:
        return layout::readField(f, record, line);
    case layout::ReadHook::BackgroundImage: {
        Status stored = layout::readField(f, record, line);
        if (!stored)
            return stored;
        return hooks_.loadBackgroundImage(resolvePath(line, path_));
    }
    case layout::ReadHook::StartupAction:
        return readStartupAction(layout::fieldOf<std::string>(f, record), line);
    }
    return {};
}

// Stored as it stands, unless it is a script: then its "¤" become line breaks.
Status ProjectReader::readStartupAction(std::string& field, std::string_view line)
{
    hooks_.setLoading(true);
    field.assign(line);
    StartupChoice choice = StartupChoice::Nothing;
    if (!line.empty()) {
        choice = StartupChoice::MediaFile;
        if (beginsWithAndLonger(line, fmt::scriptPrefix)) {
            choice = StartupChoice::Script;
            layout::assignMultiLine(field, line);
        }
    }
    hooks_.showStartupChoice(choice);
    hooks_.setLoading(false);
    return {};
}

void ProjectReader::readFormat()
{
    layout::FormatLines lines;
    readFields(layout::kFormat, lines);
    fileVersion_ = readNumber(dropChars(lines.fileVersion, fmt::fileVersionKey.size()));
}

void ProjectReader::readButton()
{
    const bool extras = fileVersion_ >= fmt::firstVersionWithButtonExtras;
    auto created = project_.addButton();
    if (!created) {
        if (fail(created.error()))
            skip(layout::linesRead(layout::kButton, extras));
        return;
    }
    const int n = *created;
    auto& b = project_.button(n);
    readFields(layout::kButton, b);
    if (!stopped_) {
        Status s = hooks_.loadButtonImage(n, resolvePath(b.normalImage, path_));
        if (!s)
            fail(s.error());
    }
    if (extras)
        readFields(layout::kButton, b, true);
    if (!abandoned_)
        hooks_.buttonCreated(n, b.kind);
}

void ProjectReader::readText()
{
    auto created = project_.addText();
    if (!created) {
        if (fail(created.error()))
            skip(layout::linesRead(layout::kText, false));
        return;
    }
    const int n = *created;
    // The vector of text boxes does not grow while this block is read, so
    // the reference stays valid.
    readFields(layout::kText, project_.text(n));
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

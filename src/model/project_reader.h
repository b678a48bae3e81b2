#pragma once

#include <string>
#include <string_view>

#include "model/menu_project.h"
#include "model/project_layout.h"
#include "model/project_read_hooks.h"
#include "text/error.h"

namespace qor {

enum class ReadOutcome {
    Completed,   // read to the end (the user may have answered Yes to errors)
    Abandoned,   // the user answered No to a read error
};

// Reads the text of a project file onto a project, section by section.
//
// Every failure goes to failures.goOn (the editor asks the read-error
// question there). Going on takes the next step:
//   - a value that cannot be converted (Overflow, TypeMismatch): the field
//     keeps its value and reading goes on with the next line;
//   - a picture that cannot be loaded: the path stays stored, the element is
//     still created, reading goes on with the next line;
//   - a button beyond slot 100 (SubscriptOutOfRange): the block's lines are
//     read and dropped, reading goes on after the block;
//   - a line missing at the end of the file (InputPastEnd): the next line of
//     the block is tried, which asks again. A shape block without its end
//     line would ask for ever, so after kMaxReadsPastEnd such reads the
//     reader stops asking and ends as at the end of the file.
// Not going on stops at once with ReadOutcome::Abandoned. The lines of each
// block are those of its field table (model/project_layout.h).
class ProjectReader {
public:
    static constexpr int kMaxReadsPastEnd = 100;

    ProjectReader(MenuProject& project, ProjectReadHooks& hooks, ReadFailures& failures);

    // text: the decoded file. path: where it comes from; bare picture names
    // are loaded from its folder. Elements are numbered on from the
    // project's current counts (1, 2, 3 ... after a reset).
    ReadOutcome read(std::string_view text, std::string_view path);

private:
    bool nextLine(std::string_view& line);
    bool fail(const Error& error);
    template <class Apply>
    void value(Apply&& apply);
    void skip(int lines);

    // The rows of a block whose `extra` is extras, in order.
    template <class Record>
    void readFields(const project_layout::Block<Record>& block, Record& record, bool extras = false);
    template <class Record>
    Status applyRow(const project_layout::Field<Record>& f, Record& record, std::string_view line);
    Status readStartupAction(std::string& field, std::string_view line);

    void readFormat();
    void readButton();
    void readText();
    void readShape();

    MenuProject& project_;
    ProjectReadHooks& hooks_;
    ReadFailures& failures_;

    std::string_view text_;
    std::string_view path_;
    std::size_t pos_ = 0;
    std::string_view paragraph_;   // last line read by the main loop
    std::string_view valueLine_;   // last value line read
    double fileVersion_ = 0;
    int readsPastEnd_ = 0;
    bool stopped_ = false;
    bool abandoned_ = false;
};

}  // namespace qor

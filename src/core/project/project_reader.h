#pragma once

#include <string>
#include <string_view>

#include "core/error.h"
#include "core/ports/dialogs.h"
#include "core/project/menu_project.h"
#include "core/project/project_hooks.h"

namespace qor {

// The read-error question, always in French: "Erreur d'ouverture !", Yes/No,
// error icon, six lines: the error's text and number, the last line read by
// the main loop ("Paragraphe"), the last value line read ("Ligne suivante"),
// an empty line, "Continuer le chargement ?".
Message readErrorMessage(const Error& error, std::string_view paragraph, std::string_view valueLine);

enum class ReadOutcome {
    Completed,   // read to the end (the user may have answered Yes to errors)
    Abandoned,   // the user answered No to a read error
};

// Reads the text of a project file onto a project, section by section.
//
// Every failure asks the read-error question. Yes goes on with the next step:
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
// No stops at once with ReadOutcome::Abandoned.
class ProjectReader {
public:
    static constexpr int kMaxReadsPastEnd = 100;

    ProjectReader(MenuProject& project, ProjectHooks& hooks, Dialogs& dialogs);

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

    void readFormat();
    void readAuthor();
    void readGeneral();
    void readParamsPlus();
    void readOther();
    void readButton();
    void readText();
    void readShape();

    MenuProject& project_;
    ProjectHooks& hooks_;
    Dialogs& dialogs_;

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

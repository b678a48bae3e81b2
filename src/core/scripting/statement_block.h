#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qor {

// A statement the assistant writes, framed by two comment lines that name
// it, and how the script editor puts it into its text.

// CR LF, the header "'###…title…###", the statement, the footer
// "'##…Fin title…##", each line ending with CR LF. A title of even length
// gets a trailing space, so that both lines are 60 characters long for
// titles of up to 55 characters (the footer grows past that).
std::string statementBlock(std::string_view title, std::string_view statement);

// A text with its caret (or selection) in characters, CR LF counting two.
struct TextSelection {
    std::size_t start = 0;
    std::size_t length = 0;
};

struct EditedScript {
    std::string text;
    std::size_t caret = 0;

    friend bool operator==(const EditedScript&, const EditedScript&) = default;
};

// The block put in place of the selection; the caret ends behind it.
EditedScript insertStatementBlock(std::string_view text, TextSelection selection, std::string_view title,
                                  std::string_view statement);

}  // namespace qor

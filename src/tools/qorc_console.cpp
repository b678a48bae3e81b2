#include "tools/qorc_console.h"

#include <ostream>

#include "text/text_helpers.h"

namespace qor {
namespace {

std::string plainLines(const std::string& text)
{
    return replaceAll(text, "\r\n", "\n");
}

}  // namespace

Answer ConsoleDialogs::message(const Message& m)
{
    err_ << (m.title.empty() ? "" : m.title + " : ") << plainLines(m.text) << '\n';
    switch (m.buttons) {
    case MessageButtons::Ok: return Answer::Ok;
    case MessageButtons::OkCancel: return yes_ ? Answer::Ok : Answer::Cancel;
    case MessageButtons::YesNo:
    case MessageButtons::YesNoCancel:
        err_ << (yes_ ? "(réponse : Oui, --yes)" : "(réponse : Non ; --yes répond Oui)") << '\n';
        return yes_ ? Answer::Yes : Answer::No;
    }
    return Answer::Cancel;
}

std::string ConsoleDialogs::inputBox(const std::string&, const std::string&, const std::string& defaultText)
{
    return defaultText;
}

void ConsoleCompileView::setStatus(const std::string& text, Colour)
{
    out_ << text << '\n';
}

void ConsoleCompileView::setStep(const std::string& text)
{
    if (!text.empty())
        out_ << "  " << text << '\n';
}

void ConsoleCompileView::setInstruction(const std::string& text)
{
    out_ << plainLines(text) << '\n';
}

}  // namespace qor

#pragma once

#include <iosfwd>

#include "core/build/compile_view.h"
#include "core/ports/dialogs.h"

namespace qor {

// The user of the command-line builder is its command line: messages go to
// standard error as "Title : text", questions take the answer the options
// gave (--yes), and nothing else can be asked.
class ConsoleDialogs final : public Dialogs {
public:
    ConsoleDialogs(std::ostream& err, bool answerYes) : err_(err), yes_(answerYes) {}

    Answer message(const Message& message) override;
    std::string inputBox(const std::string& prompt, const std::string& title, const std::string& defaultText) override;
    std::optional<std::string> openFile(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> saveFile(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> pickFolder(const std::string&) override { return std::nullopt; }
    std::optional<Colour> pickColour(Colour) override { return std::nullopt; }
    std::optional<FontChoice> pickFont(const FontChoice&) override { return std::nullopt; }

private:
    std::ostream& err_;
    bool yes_;
};

// The compile dialog's labels, one line each on standard output as they change.
class ConsoleCompileView final : public CompileView {
public:
    explicit ConsoleCompileView(std::ostream& out) : out_(out) {}

    void setTarget(const std::string&) override {}
    void setFieldsEnabled(bool) override {}
    void setStatus(const std::string& text, Colour) override;
    void setStep(const std::string& text) override;
    void setProgress(std::uint64_t, std::uint64_t) override {}
    void setInstruction(const std::string& text) override;

private:
    std::ostream& out_;
};

}  // namespace qor

#pragma once

#include <cstdint>
#include <string>

#include "core/ports/dialogs.h"

namespace qor {

// The compile dialog as the compilation sees it. Each call says what the
// dialog shows; the dialog repaints at once (without taking any command),
// so that a long copy shows its progress.
class CompileView {
public:
    virtual ~CompileView() = default;

    virtual void setTarget(const std::string& target) = 0;               // Text1
    // "&Valider", the target, name and author fields and the runtime tick.
    virtual void setFieldsEnabled(bool enabled) = 0;
    // Label2, in colour (0x00BBGGRR) or, with kNormalColour, as designed.
    static constexpr Colour kNormalColour = -1;
    virtual void setStatus(const std::string& text, Colour colour) = 0;
    virtual void setStep(const std::string& text) = 0;                   // Label3
    // The progress bar: bytes copied so far of all the files to copy.
    virtual void setProgress(std::uint64_t done, std::uint64_t total) = 0;
    virtual void setInstruction(const std::string& text) = 0;            // Label1
};

// A compile dialog nobody sees: the test run's and the export's.
class HiddenCompileView final : public CompileView {
public:
    void setTarget(const std::string&) override {}
    void setFieldsEnabled(bool) override {}
    void setStatus(const std::string&, Colour) override {}
    void setStep(const std::string&) override {}
    void setProgress(std::uint64_t, std::uint64_t) override {}
    void setInstruction(const std::string&) override {}
};

}  // namespace qor

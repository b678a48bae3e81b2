#pragma once

#include <deque>
#include <string>
#include <variant>
#include <vector>

#include "core/ports/dialogs.h"

namespace qor::test {

// Dialogs that record every request and answer from queues filled by the
// test. A request with an empty queue is a test failure (the flow asked
// something the test did not expect) and gets the "cancel" answer.
class FakeDialogs : public Dialogs {
public:
    struct InputRequest {
        std::string prompt, title, defaultText;
        friend bool operator==(const InputRequest&, const InputRequest&) = default;
    };

    // What the fake was asked, in order.
    std::vector<Message> messages;
    std::vector<InputRequest> inputs;
    std::vector<FileDialogRequest> openRequests;
    std::vector<FileDialogRequest> saveRequests;
    std::vector<std::string> folderPrompts;
    std::vector<Colour> colourRequests;
    std::vector<FontChoice> fontRequests;

    // Answers, consumed front first.
    std::deque<Answer> messageAnswers;
    std::deque<std::string> inputAnswers;
    std::deque<std::optional<std::string>> openAnswers;
    std::deque<std::optional<std::string>> saveAnswers;
    std::deque<std::optional<std::string>> folderAnswers;
    std::deque<std::optional<Colour>> colourAnswers;
    std::deque<std::optional<FontChoice>> fontAnswers;

    // One-button messages need no queued answer: they get Ok.
    bool autoOkForOkMessages = true;

    Answer message(const Message& message) override;
    std::string inputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::optional<std::string> openFile(const FileDialogRequest& request) override;
    std::optional<std::string> saveFile(const FileDialogRequest& request) override;
    std::optional<std::string> pickFolder(const std::string& prompt) override;
    std::optional<Colour> pickColour(Colour initial) override;
    std::optional<FontChoice> pickFont(const FontChoice& initial) override;

    // Convenience for tests.
    const Message& lastMessage() const;
    std::size_t requestCount() const;
};

}  // namespace qor::test

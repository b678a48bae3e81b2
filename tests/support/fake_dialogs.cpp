#include "fake_dialogs.h"

#include <gtest/gtest.h>

namespace qor::test {
namespace {

template <class T, class Fallback>
T take(std::deque<T>& queue, const char* what, Fallback fallback)
{
    if (queue.empty()) {
        ADD_FAILURE() << "unexpected " << what << ": no answer queued";
        return fallback;
    }
    T value = std::move(queue.front());
    queue.pop_front();
    return value;
}

}  // namespace

Answer FakeDialogs::message(const Message& m)
{
    messages.push_back(m);
    if (m.buttons == MessageButtons::Ok && autoOkForOkMessages && messageAnswers.empty())
        return Answer::Ok;
    return take(messageAnswers, ("message \"" + m.text + "\"").c_str(), Answer::Cancel);
}

std::string FakeDialogs::inputBox(const std::string& prompt, const std::string& title,
                                  const std::string& defaultText)
{
    inputs.push_back({prompt, title, defaultText});
    return take(inputAnswers, ("input box \"" + prompt + "\"").c_str(), std::string());
}

std::optional<std::string> FakeDialogs::openFile(const FileDialogRequest& r)
{
    openRequests.push_back(r);
    return take(openAnswers, "open dialog", std::optional<std::string>());
}

std::optional<std::string> FakeDialogs::saveFile(const FileDialogRequest& r)
{
    saveRequests.push_back(r);
    return take(saveAnswers, "save dialog", std::optional<std::string>());
}

std::optional<std::string> FakeDialogs::pickFolder(const std::string& prompt)
{
    folderPrompts.push_back(prompt);
    return take(folderAnswers, "folder picker", std::optional<std::string>());
}

std::optional<Colour> FakeDialogs::pickColour(Colour initial)
{
    colourRequests.push_back(initial);
    return take(colourAnswers, "colour dialog", std::optional<Colour>());
}

std::optional<FontChoice> FakeDialogs::pickFont(const FontChoice& initial)
{
    fontRequests.push_back(initial);
    return take(fontAnswers, "font dialog", std::optional<FontChoice>());
}

const Message& FakeDialogs::lastMessage() const
{
    static const Message none;
    if (messages.empty()) {
        ADD_FAILURE() << "no message was shown";
        return none;
    }
    return messages.back();
}

std::size_t FakeDialogs::requestCount() const
{
    return messages.size() + inputs.size() + openRequests.size() + saveRequests.size() +
           folderPrompts.size() + colourRequests.size() + fontRequests.size();
}

}  // namespace qor::test

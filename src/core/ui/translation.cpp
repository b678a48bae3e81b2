#include "core/ui/translation.h"

#include <filesystem>

#include "core/ui/languages.h"
#include "core/ui/windows.h"
#include "core/ui/window_object.h"
#include "text/cp1252.h"
#include "text/line_file.h"

namespace qor {

namespace {

// The splash and the print preview keep their French texts.
constexpr WindowId kUntranslated[] = {WindowId::Splash, WindowId::PrintPreview};

}  // namespace

bool isTranslatedWindow(std::string_view name)
{
    for (WindowId id : kUntranslated)
        if (windowName(id) == name)
            return false;
    return true;
}

Translator::Translator(std::string& language, Phrases& phrases, const std::string& programFolder)
    : language_(language), phrases_(phrases), programFolder_(programFolder), list_(new PhraseListObject)
{
    module_.setStepBudget(kTranslationStepBudget);
}

std::optional<Message> Translator::translate(std::string_view windowName, std::unique_ptr<ControlNode> window)
{
    if (language_.empty() || !isTranslatedWindow(windowName))
        return std::nullopt;
    // Nothing of an earlier window's script survives into this one.
    module_.reset();
    module_.addObject(windowName, script::Ref<script::HostObject>(new ControlObject(std::move(window))), true);
    module_.addObject(kPhraseListName, list_, false);
    auto error = run(std::string(windowName) + kTranslationExtension);
    if (!error && windowName == "Form2")
        error = run(kPhrasesScriptName);
    if (error)
        return fail(*error);
    if (!list_->items().empty())
        phrases_.useLanguage(list_->items());
    return std::nullopt;
}

std::optional<TranslationFailure> Translator::run(const std::string& fileName)
{
    const std::filesystem::path file =
        std::filesystem::path(programFolder_) / kLanguagesFolderName / language_ / fileName;
    auto bytes = readFileBytes(file);
    if (!bytes)
        return TranslationFailure{inFrench(bytes.error()).description, 0};
    const script::RunResult r = module_.addCode(decodeCp1252(*bytes));
    if (r.ok())
        return std::nullopt;
    return TranslationFailure{r.error->description, r.error->line};
}

std::optional<Message> Translator::fail(const TranslationFailure& failure)
{
    // Later windows stay French, and so do the messages.
    language_.clear();
    phrases_.useFrench();
    return translationFailedMessage(failure.description, failure.line);
}

Message translationFailedMessage(const std::string& description, int line)
{
    return Message{description, "Langue/Language " + std::to_string(line), MessageIcon::Critical};
}

}  // namespace qor

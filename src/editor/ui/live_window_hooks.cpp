#include "editor/ui/live_window_hooks.h"

#include <QWidget>

#include "core/ui/appearance_rules.h"
#include "editor/platform/qt_text.h"
#include "editor/ui/widget_control_node.h"

namespace qor {

void LiveWindowHooks::attach(AppState& state, Dialogs& dialogs)
{
    state_ = &state;
    dialogs_ = &dialogs;
    translator_.emplace(state.interfaceLanguage, state.phrases, state.programFolder);
}

void LiveWindowHooks::translate(QWidget& window)
{
    if (!translator_)
        return;
    if (auto failed = translator_->translate(fromQt(window.objectName()), windowNode(window))) {
        if (languageDropped)
            languageDropped();
        dialogs_->message(*failed);
    }
}

QString LiveWindowHooks::phrase(int number, const QString& french) const
{
    // Phrases keep the scripts' CR LF; the windows show "\n".
    return state_ ? toQtLines(state_->phrases.text(number, fromQtLines(french))) : french;
}

void LiveWindowHooks::applyAppearance(QWidget& window)
{
    if (!state_)
        return;
    if (auto appearance = windowAppearance(fromQt(window.objectName()), state_->appearance)) {
        auto node = windowNode(window);
        qor::applyAppearance(*node, *appearance);
    }
}

}  // namespace qor

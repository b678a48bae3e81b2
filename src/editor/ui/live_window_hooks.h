#pragma once

#include <functional>
#include <optional>

#include "core/app/app_state.h"
#include "core/ports/dialogs.h"
#include "core/ui/translation.h"
#include "editor/ui/window_hooks.h"

namespace qor {

// The hooks of a real run: each window runs its translation script of the
// run's interface language, then the windows that colour themselves take
// the current appearance. Until attached to the run's state they do nothing,
// since windows may be built before the run has read its settings.
class LiveWindowHooks : public WindowHooks {
public:
    void attach(AppState& state, Dialogs& dialogs);

    void translate(QWidget& window) override;
    void applyAppearance(QWidget& window) override;
    QString phrase(int number, const QString& french) const override;

    // Called when a translation script failed and the run went back to French.
    std::function<void()> languageDropped;

private:
    AppState* state_ = nullptr;
    Dialogs* dialogs_ = nullptr;
    std::optional<Translator> translator_;
};

}  // namespace qor

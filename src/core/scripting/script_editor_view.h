#pragma once

#include "core/scripting/script_slots.h"

namespace qor {

// The script editor as the designer's flows see it. Opening a slot loads the
// editor (title, slot tag, text) and shows it; the properties panel's
// refresh loads a button's script without showing the window.
class ScriptEditorView {
public:
    virtual ~ScriptEditorView() = default;

    // Takes the title, the slot tag and the text. Putting the text in runs
    // the same write back as a typed change.
    virtual void load(const ScriptEditorRequest& request) = 0;
    virtual void show() = 0;
    virtual void hide() = 0;
};

}  // namespace qor

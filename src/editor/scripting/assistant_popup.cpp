#include "editor/scripting/assistant_popup.h"

#include "editor/platform/qt_text.h"
#include "editor/platform/widget_names.h"

namespace qor {

AssistantPopup::AssistantPopup(std::string_view caption, const std::vector<AssistantEntry>& entries, QWidget* parent)
    : QMenu(toQt(caption), parent)
{
    addEntries(*this, entries);
}

void AssistantPopup::addEntries(QMenu& menu, const std::vector<AssistantEntry>& entries)
{
    for (const AssistantEntry& e : entries) {
        if (!e.children.empty()) {
            addEntries(*named(menu.addMenu(toQt(e.caption)), e.name, e.index), e.children);
            continue;
        }
        QAction* action = named(menu.addAction(toQt(e.caption)), e.name, e.index);
        const QString name = toQt(e.name);
        const int index = e.index;
        connect(action, &QAction::triggered, this, [this, name, index] { emit chosen(name, index); });
    }
}

}  // namespace qor

#pragma once

#include <QMenu>

#include <string_view>
#include <vector>

#include "core/scripting/assistant_menu.h"

namespace qor {

// A pop-up menu built from one of the assistant's menu tables ("Assistant
// VBS" or "#Curseur#"). Every entry carries its control name (and its index
// in a family); choosing one only reports it.
class AssistantPopup : public QMenu {
    Q_OBJECT
public:
    AssistantPopup(std::string_view caption, const std::vector<AssistantEntry>& entries, QWidget* parent);

signals:
    void chosen(const QString& name, int index);

private:
    void addEntries(QMenu& menu, const std::vector<AssistantEntry>& entries);
};

}  // namespace qor

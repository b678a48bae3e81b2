#pragma once

#include <QPointer>

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "core/ui/control_tree.h"

class QObject;
class QWidget;

namespace qor {

// A window that builds some of its controls only when they are first shown.
// A script that names controls (a translation) needs them all, so looking a
// control up by name builds them first.
class LateControls {
public:
    virtual ~LateControls() = default;
    virtual void buildLateControls() = 0;
};

// A window, widget, menu or menu command as the translation scripts and
// the appearance rules see it, found by its object name.
class WidgetControlNode : public ControlNode {
public:
    // window: the top-level window the controls belong to (for lookups).
    WidgetControlNode(QObject* object, QWidget* window);

    std::string typeName() const override;
    std::string name() const override;
    int index() const override;
    std::vector<std::unique_ptr<ControlNode>> controls(std::string_view name) override;
    std::vector<std::unique_ptr<ControlNode>> allControls() override;
    // The window's controls that are part or lie inside it.
    std::vector<std::unique_ptr<ControlNode>> controlsWithin(const QObject& part);
    std::optional<PropertyValue> read(ControlProperty property) const override;
    bool write(ControlProperty property, const PropertyValue& value) override;
    bool addItem(const std::string& text) override;
    bool clearItems() override;

private:
    std::optional<PropertyValue> readText(ControlProperty property) const;
    bool writeText(ControlProperty property, const QString& text);
    bool writeColour(ControlProperty property, std::int64_t colour);
    std::vector<QObject*> windowControls() const;

    QPointer<QObject> object_;
    QPointer<QWidget> window_;
    // A window's controls by lower-case name, gathered at the first lookup:
    // a script names many controls, and the window's tree does not change
    // while one runs.
    std::optional<std::multimap<std::string, QObject*>> byName_;
};

// The node of a whole window.
std::unique_ptr<ControlNode> windowNode(QWidget& window);

}  // namespace qor

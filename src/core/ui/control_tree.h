#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace qor {

// The properties of a window or control that translation scripts and the
// appearance rules reach. A platform maps each to its own widget property.
enum class ControlProperty {
    Caption,      // a window's title, a button's, label's, frame's or menu's text
    Text,         // an entry field's or list's text
    ToolTipText,
    Visible,
    Enabled,
    Tag,
    BackColor,    // 0x00BBGGRR, or 0x80000000 + n for system colour n
    ForeColor,
    FontName,
    TabStop,
};

// A property's value: a text, a whole number or a flag, as the property is.
using PropertyValue = std::variant<std::string, std::int64_t, bool>;

// A window or one of its controls as the core sees it. The platform's
// widgets stand behind it; the core decides what scripts and appearances
// do to them.
class ControlNode {
public:
    virtual ~ControlNode() = default;

    // The kind a script's TypeName shows ("Form", "CommandButton", "Menu" ...).
    virtual std::string typeName() const = 0;
    // The control name ("Command1"), and its index in a control array, -1 alone.
    virtual std::string name() const = 0;
    virtual int index() const = 0;

    // The window's controls of that name, letter case ignored: one for a
    // control alone, every member of a control array. Asked of a window.
    virtual std::vector<std::unique_ptr<ControlNode>> controls(std::string_view name) = 0;
    // Every control of the window, menus included.
    virtual std::vector<std::unique_ptr<ControlNode>> allControls() = 0;

    // Nothing when the control has no such property.
    virtual std::optional<PropertyValue> read(ControlProperty property) const = 0;
    // False when the control has no such property.
    virtual bool write(ControlProperty property, const PropertyValue& value) = 0;

    // Lists and combo boxes: add an entry, remove them all. False elsewhere.
    virtual bool addItem(const std::string&) { return false; }
    virtual bool clearItems() { return false; }
};

}  // namespace qor

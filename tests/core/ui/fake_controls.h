#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/ui/control_tree.h"

namespace qor::test {

// A control of the fake windows: the properties it has, and a list's entries.
struct FakeControl {
    std::string name;
    int index = -1;
    std::string type = "CommandButton";
    std::map<ControlProperty, PropertyValue> properties;
    std::vector<std::string> items;
    bool isList = false;
};

// A window of fake controls, shared with the nodes it hands out.
struct FakeWindow {
    std::shared_ptr<FakeControl> self = std::make_shared<FakeControl>();
    std::vector<std::shared_ptr<FakeControl>> controls;

    // Adds a control with a caption, a back colour and a font, as a button has.
    FakeControl& add(std::string name, int index = -1, std::map<ControlProperty, PropertyValue> properties = {
        {ControlProperty::Caption, std::string()}, {ControlProperty::BackColor, std::int64_t(0)},
        {ControlProperty::ForeColor, std::int64_t(0)}, {ControlProperty::FontName, std::string()},
        {ControlProperty::TabStop, true}, {ControlProperty::Tag, std::string()}});

    std::unique_ptr<ControlNode> node();
};

}  // namespace qor::test

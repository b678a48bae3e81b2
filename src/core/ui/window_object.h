#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/ui/control_tree.h"
#include "script/host.h"

namespace qor {

// A window or control as a translation script sees it: the properties of
// the control table by their script names, and, for a window, its controls
// by name (control arrays by index: Option1(0)).
class ControlObject : public script::HostObject {
public:
    explicit ControlObject(std::unique_ptr<ControlNode> node) : node_(std::move(node)) {}

    std::string typeName() const override { return node_->typeName(); }
    script::HostResult getProperty(std::string_view name, script::Args args) override;
    script::HostResult setProperty(std::string_view name, script::Args args, const script::Value& value) override;
    script::HostResult callMethod(std::string_view name, script::Args args) override;

private:
    script::HostResult control(std::string_view name, script::Args args);

    std::unique_ptr<ControlNode> node_;
};

// A control array: its members by their index.
class ControlArrayObject : public script::HostObject {
public:
    explicit ControlArrayObject(std::vector<std::unique_ptr<ControlNode>> members);

    std::string typeName() const override { return "Object"; }
    script::HostResult getProperty(std::string_view name, script::Args args) override;
    script::HostResult item(script::Args args) override;
    script::HostResult elements() override;

private:
    std::vector<std::pair<int, script::Ref<ControlObject>>> members_;
};

// The script name of a control property ("Caption" ...), letter case ignored.
std::optional<ControlProperty> controlPropertyNamed(std::string_view name);

}  // namespace qor

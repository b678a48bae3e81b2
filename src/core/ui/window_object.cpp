#include "core/ui/window_object.h"

#include <array>

#include "script/operations.h"

namespace qor {
namespace {

using script::HostResult;
using script::Value;

enum class ValueKind { Text, Number, Flag };

struct PropertyRow {
    std::string_view name;
    ControlProperty property;
    ValueKind kind;
};

// The properties a script may read and write, by their script names.
constexpr std::array kProperties = {
    PropertyRow{"Caption", ControlProperty::Caption, ValueKind::Text},
    PropertyRow{"Text", ControlProperty::Text, ValueKind::Text},
    PropertyRow{"ToolTipText", ControlProperty::ToolTipText, ValueKind::Text},
    PropertyRow{"Visible", ControlProperty::Visible, ValueKind::Flag},
    PropertyRow{"Enabled", ControlProperty::Enabled, ValueKind::Flag},
    PropertyRow{"Tag", ControlProperty::Tag, ValueKind::Text},
    PropertyRow{"BackColor", ControlProperty::BackColor, ValueKind::Number},
    PropertyRow{"ForeColor", ControlProperty::ForeColor, ValueKind::Number},
    PropertyRow{"FontName", ControlProperty::FontName, ValueKind::Text},
    PropertyRow{"TabStop", ControlProperty::TabStop, ValueKind::Flag},
};

const PropertyRow* rowNamed(std::string_view name)
{
    for (const auto& row : kProperties)
        if (script::HostObject::equalsNoCase(row.name, name))
            return &row;
    return nullptr;
}

// Colours go beyond a Long: &H80000012& is negative, 4294967295 is not.
std::int64_t toColourNumber(const Value& v)
{
    const double d = script::toDouble(v);
    if (d < -2147483648.0 || d > 4294967295.0)
        script::raise(script::errc::Overflow);
    const auto n = std::int64_t(script::roundHalfEven(d));
    return n < 0 ? n + 4294967296LL : n;
}

PropertyValue fromScript(ValueKind kind, const Value& v)
{
    switch (kind) {
    case ValueKind::Text: return script::toText(v);
    case ValueKind::Number: return toColourNumber(v);
    case ValueKind::Flag: return script::toBoolean(v);
    }
    return std::string();
}

Value toScript(const PropertyValue& v)
{
    if (const auto* text = std::get_if<std::string>(&v))
        return Value::string(*text);
    if (const auto* flag = std::get_if<bool>(&v))
        return Value::boolean(*flag);
    const std::int64_t n = std::get<std::int64_t>(v);
    return n >= INT32_MIN && n <= INT32_MAX ? Value::longValue(std::int32_t(n)) : Value::dbl(double(n));
}

// A conversion that fails inside a host call comes back as the call's error.
template <class F>
HostResult guarded(F&& f)
{
    try {
        return f();
    } catch (const script::ScriptError& e) {
        return HostResult{Value(), e};
    }
}

}  // namespace

std::optional<ControlProperty> controlPropertyNamed(std::string_view name)
{
    const PropertyRow* row = rowNamed(name);
    return row ? std::optional(row->property) : std::nullopt;
}

HostResult ControlObject::getProperty(std::string_view name, script::Args args)
{
    if (const PropertyRow* row = rowNamed(name)) {
        const auto v = node_->read(row->property);
        return v ? HostResult::ok(toScript(*v)) : noMember();
    }
    if (equalsNoCase(name, "Name"))
        return HostResult::ok(Value::string(node_->name()));
    if (equalsNoCase(name, "Index") && node_->index() >= 0)
        return HostResult::ok(Value::longValue(node_->index()));
    return control(name, args);
}

HostResult ControlObject::control(std::string_view name, script::Args args)
{
    auto found = node_->controls(name);
    if (found.empty())
        return noMember();
    if (found.front()->index() < 0 && found.size() == 1)
        return HostResult::ok(Value::object(new ControlObject(std::move(found.front()))));
    script::Ref<ControlArrayObject> group(new ControlArrayObject(std::move(found)));
    return args.empty() ? HostResult::ok(Value::object(group.get())) : group->item(args);
}

HostResult ControlObject::setProperty(std::string_view name, script::Args, const Value& value)
{
    const PropertyRow* row = rowNamed(name);
    if (!row)
        return noMember();
    return guarded([&] {
        return node_->write(row->property, fromScript(row->kind, value)) ? HostResult::ok() : noMember();
    });
}

HostResult ControlObject::callMethod(std::string_view name, script::Args args)
{
    return guarded([&] {
        if (equalsNoCase(name, "AddItem") && !args.empty())
            return node_->addItem(script::toText(args[0])) ? HostResult::ok() : noMember();
        if (equalsNoCase(name, "Clear") && args.empty())
            return node_->clearItems() ? HostResult::ok() : noMember();
        return getProperty(name, args);
    });
}

ControlArrayObject::ControlArrayObject(std::vector<std::unique_ptr<ControlNode>> members)
{
    for (auto& m : members) {
        const int index = m->index();
        members_.emplace_back(index, script::Ref<ControlObject>(new ControlObject(std::move(m))));
    }
}

HostResult ControlArrayObject::getProperty(std::string_view name, script::Args args)
{
    if (equalsNoCase(name, "Count") && args.empty())
        return HostResult::ok(Value::longValue(std::int32_t(members_.size())));
    if (equalsNoCase(name, "Item"))
        return item(args);
    return noMember();
}

HostResult ControlArrayObject::item(script::Args args)
{
    if (args.size() != 1)
        return HostResult::fail(script::errc::WrongArguments);
    return guarded([&] {
        const int wanted = script::toLong(args[0]);
        for (auto& [index, control] : members_)
            if (index == wanted)
                return HostResult::ok(Value::object(control.get()));
        return HostResult::fail(script::errc::SubscriptOutOfRange);
    });
}

HostResult ControlArrayObject::elements()
{
    auto* array = script::ArrayRep::make({std::int32_t(members_.size()) - 1}, false);
    for (std::size_t i = 0; i < members_.size(); ++i)
        array->items[i] = Value::object(members_[i].second.get());
    return HostResult::ok(Value::array(array));
}

}  // namespace qor

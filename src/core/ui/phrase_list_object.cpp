#include "core/ui/phrase_list_object.h"

#include "script/operations.h"

namespace qor {

using script::HostResult;
using script::Value;

std::string* PhraseListObject::at(script::Args args)
{
    if (args.size() != 1)
        return nullptr;
    const std::int32_t i = script::toLong(args[0]);
    return i >= 0 && std::size_t(i) < items_.size() ? &items_[std::size_t(i)] : nullptr;
}

HostResult PhraseListObject::getProperty(std::string_view name, script::Args args)
{
    if (equalsNoCase(name, "ListCount"))
        return HostResult::ok(Value::longValue(std::int32_t(items_.size())));
    if (equalsNoCase(name, "List")) {
        const std::string* entry = at(args);
        return entry ? HostResult::ok(Value::string(*entry)) : HostResult::fail(script::errc::InvalidCall);
    }
    return noMember();
}

HostResult PhraseListObject::setProperty(std::string_view name, script::Args args, const Value& value)
{
    if (!equalsNoCase(name, "List"))
        return noMember();
    std::string* entry = at(args);
    if (!entry)
        return HostResult::fail(script::errc::InvalidCall);
    *entry = script::toText(value);
    return HostResult::ok();
}

HostResult PhraseListObject::addItem(script::Args args)
{
    if (args.empty() || args.size() > 2)
        return HostResult::fail(script::errc::WrongArguments);
    std::string text = script::toText(args[0]);
    std::size_t where = items_.size();
    if (args.size() == 2) {
        const std::int32_t i = script::toLong(args[1]);
        if (i < 0 || std::size_t(i) > items_.size())
            return HostResult::fail(script::errc::InvalidCall);
        where = std::size_t(i);
    }
    items_.insert(items_.begin() + std::ptrdiff_t(where), std::move(text));
    return HostResult::ok();
}

HostResult PhraseListObject::callMethod(std::string_view name, script::Args args)
{
    try {
        if (equalsNoCase(name, "AddItem"))
            return addItem(args);
        if (equalsNoCase(name, "Clear")) {
            items_.clear();
            return HostResult::ok();
        }
        if (equalsNoCase(name, "RemoveItem")) {
            if (!at(args))
                return HostResult::fail(script::errc::InvalidCall);
            items_.erase(items_.begin() + script::toLong(args[0]));
            return HostResult::ok();
        }
    } catch (const script::ScriptError& e) {
        return HostResult{Value(), e};
    }
    return getProperty(name, args);
}

}  // namespace qor

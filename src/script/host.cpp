#include "script/host.h"

#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

HostResult HostResult::fail(int number, std::string description)
{
    ScriptError e;
    e.number = number;
    e.description = description.empty() ? errorDescription(number) : std::move(description);
    return HostResult{Value(), std::move(e)};
}

HostResult HostObject::getProperty(std::string_view, Args) { return noMember(); }
HostResult HostObject::setProperty(std::string_view, Args, const Value&) { return noMember(); }
HostResult HostObject::callMethod(std::string_view name, Args args) { return getProperty(name, args); }
HostResult HostObject::item(Args) { return noMember(); }
HostResult HostObject::setItem(Args, const Value&) { return noMember(); }
HostResult HostObject::defaultValue() { return noMember(); }
HostResult HostObject::elements() { return HostResult::fail(errc::NoSuchMember); }

bool HostObject::equalsNoCase(std::string_view a, std::string_view b) { return equalsNoCaseAscii(a, b); }

ScriptHost::~ScriptHost() = default;

HostResult ScriptHost::createObject(std::string_view) { return HostResult::fail(errc::CannotCreateObject); }
HostResult ScriptHost::loadPicture(std::string_view) { return HostResult::fail(errc::InvalidPicture); }

}  // namespace qor::script

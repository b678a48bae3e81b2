#include "player/core/file_system_object.h"

#include "script/operations.h"
#include "text/cp1252.h"
#include "text/utf8.h"

namespace qor::player {

using script::HostResult;
using script::Value;

HostResult FileSystemObject::getProperty(std::string_view name, script::Args args)
{
    const bool opens = equalsNoCase(name, "OpenTextFile");
    if (!opens && !equalsNoCase(name, "FileExists"))
        return noMember();
    if (args.empty())
        return HostResult::fail(script::errc::WrongArguments);
    std::string path;
    try {
        path = resolve_(script::toText(args[0]));
    } catch (script::ScriptError& e) {
        return HostResult{Value(), std::move(e)};
    }
    std::optional<std::string> bytes = read_(path);
    if (!opens)
        return HostResult::ok(Value::boolean(bytes.has_value()));
    if (!bytes)
        return HostResult::fail(script::errc::FileNotFound);
    std::string text = isValidUtf8(*bytes) ? std::move(*bytes) : decodeCp1252(*bytes);
    return HostResult::ok(Value::object(new TextStreamObject(std::move(text))));
}

HostResult TextStreamObject::readLine()
{
    if (pos_ >= text_.size())
        return HostResult::fail(script::errc::InputPastEnd);
    std::size_t end = text_.find_first_of("\r\n", pos_);
    if (end == std::string::npos)
        end = text_.size();
    std::string line = text_.substr(pos_, end - pos_);
    pos_ = end;
    if (pos_ < text_.size() && text_[pos_] == '\r')
        ++pos_;
    if (pos_ < text_.size() && text_[pos_] == '\n')
        ++pos_;
    return HostResult::ok(Value::string(line));
}

HostResult TextStreamObject::getProperty(std::string_view name, script::Args)
{
    if (equalsNoCase(name, "Close")) {
        closed_ = true;
        return HostResult::ok();
    }
    if (equalsNoCase(name, "AtEndOfStream"))
        return HostResult::ok(Value::boolean(pos_ >= text_.size()));
    if (!equalsNoCase(name, "ReadAll") && !equalsNoCase(name, "ReadLine"))
        return noMember();
    // Reading a closed file, as the scripting runtime says it.
    if (closed_)
        return HostResult::fail(54, "Mode d'accès au fichier incorrect");
    if (equalsNoCase(name, "ReadLine"))
        return readLine();
    if (pos_ >= text_.size())
        return HostResult::fail(script::errc::InputPastEnd);
    std::string rest = text_.substr(pos_);
    pos_ = text_.size();
    return HostResult::ok(Value::string(rest));
}

}  // namespace qor::player

#include "player/core/picture.h"

#include "script/operations.h"

namespace qor::player {

using script::HostResult;
using script::Value;

HostResult PictureObject::getProperty(std::string_view name, script::Args)
{
    // Width and Height in HiMetric, as pictures give them: 2540 per inch at 96 pixels per inch.
    if (equalsNoCase(name, "Width"))
        return HostResult::ok(Value::longValue(width_ * 2540 / 96));
    if (equalsNoCase(name, "Height"))
        return HostResult::ok(Value::longValue(height_ * 2540 / 96));
    if (equalsNoCase(name, "Handle"))
        return defaultValue();
    return noMember();
}

HostResult PictureObject::defaultValue()
{
    return HostResult::ok(Value::longValue(path_.empty() ? 0 : 1));
}

std::string picturePath(const Value& value)
{
    if (value.isObject()) {
        if (!value.asObject())
            return {};
        if (auto* picture = dynamic_cast<PictureObject*>(value.asObject()))
            return picture->path();
    }
    if (value.isEmpty())
        return {};
    script::raise(script::errc::TypeMismatch);
}

Value pictureValue(const std::string& path)
{
    if (path.empty())
        return Value::nothing();
    return Value::object(new PictureObject(path, 0, 0));
}

}  // namespace qor::player

#pragma once

#include <string>

#include "script/host.h"

namespace qor::player {

// What LoadPicture gives and Picture or MouseIcon take: a picture file,
// checked when it was loaded. An empty path is the empty picture.
class PictureObject : public script::HostObject {
public:
    PictureObject(std::string path, int width, int height) : path_(std::move(path)), width_(width), height_(height) {}
    std::string typeName() const override { return "Picture"; }
    const std::string& path() const { return path_; }
    script::HostResult getProperty(std::string_view name, script::Args args) override;
    script::HostResult defaultValue() override;

private:
    std::string path_;
    int width_;    // pixels
    int height_;
};

// The picture a property was set to: its path, "" for Nothing or the empty
// picture. Any other value raises Type mismatch.
std::string picturePath(const script::Value& value);
// A property's picture read back: Nothing for none.
script::Value pictureValue(const std::string& path);

}  // namespace qor::player

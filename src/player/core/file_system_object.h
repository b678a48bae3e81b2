#pragma once

#include <functional>
#include <optional>
#include <string>

#include "script/host.h"

namespace qor::player {

// CreateObject("Scripting.FileSystemObject"): reading text files, as the
// scripts of the assistant do (OpenTextFile, then ReadAll or ReadLine and
// Close), and asking whether a file is there. Paths go through resolve
// first (placeholders, the menu's drive); reading goes through read.
class FileSystemObject : public script::HostObject {
public:
    using Resolve = std::function<std::string(std::string_view)>;
    using Read = std::function<std::optional<std::string>(const std::string&)>;

    FileSystemObject(Resolve resolve, Read read) : resolve_(std::move(resolve)), read_(std::move(read)) {}
    std::string typeName() const override { return "FileSystemObject"; }
    script::HostResult getProperty(std::string_view name, script::Args args) override;

private:
    Resolve resolve_;
    Read read_;
};

// What OpenTextFile gives: the file's text (UTF-8 when it is valid UTF-8,
// else read as Windows-1252), read from the start.
class TextStreamObject : public script::HostObject {
public:
    explicit TextStreamObject(std::string text) : text_(std::move(text)) {}
    std::string typeName() const override { return "TextStream"; }
    script::HostResult getProperty(std::string_view name, script::Args args) override;

private:
    script::HostResult readLine();

    std::string text_;
    std::size_t pos_ = 0;
    bool closed_ = false;
};

}  // namespace qor::player

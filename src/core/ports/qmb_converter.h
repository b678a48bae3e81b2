#pragma once

#include <string>

#include "text/error.h"

namespace qor {

// The separately installed converter that turns a QMB file into a project
// file of ours.
class QmbConverter {
public:
    virtual ~QmbConverter() = default;

    // Makes the converter ready. Error 429 when it is not installed.
    virtual Status create() = 0;

    // Converts qmbPath into targetFolder (which ends with a separator) and
    // returns the path of the project file it wrote.
    virtual Result<std::string> qmbToQor(const std::string& qmbPath, const std::string& targetFolder) = 0;

    // Lets the converter go; called after every conversion attempt.
    virtual void release() = 0;
};

// The only converter this platform has: none. create() always reports error 429.
class MissingQmbConverter final : public QmbConverter {
public:
    Status create() override { return makeError(err::CannotCreateObject); }
    Result<std::string> qmbToQor(const std::string&, const std::string&) override
    {
        return makeError(err::CannotCreateObject);
    }
    void release() override {}
};

}  // namespace qor

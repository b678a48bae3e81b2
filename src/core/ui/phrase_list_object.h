#pragma once

#include <string>
#include <vector>

#include "script/host.h"

namespace qor {

// "Liste", the phrase list as "phrases.lge" fills it: a list box's
// AddItem, RemoveItem, Clear, ListCount and List(i).
class PhraseListObject : public script::HostObject {
public:
    std::string typeName() const override { return "ListBox"; }
    script::HostResult getProperty(std::string_view name, script::Args args) override;
    script::HostResult setProperty(std::string_view name, script::Args args, const script::Value& value) override;
    script::HostResult callMethod(std::string_view name, script::Args args) override;

    const std::vector<std::string>& items() const { return items_; }

private:
    script::HostResult addItem(script::Args args);
    // The entry an index argument names, or nothing when out of range.
    std::string* at(script::Args args);

    std::vector<std::string> items_;
};

}  // namespace qor

#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "script/host.h"
#include "script/module.h"

namespace qor::script::test {

// A control, window or run-time object of the tests: known properties can
// be read and written (unknown ones fail as "no such member"), children
// are reached as properties, and every write and call is logged.
class FakeObject : public HostObject {
public:
    FakeObject(std::string name, std::vector<std::string>* log, std::vector<std::string> properties = {});
    std::string typeName() const override { return typeName_; }
    HostResult getProperty(std::string_view name, Args args) override;
    HostResult setProperty(std::string_view name, Args args, const Value& value) override;
    HostResult callMethod(std::string_view name, Args args) override;
    HostResult item(Args args) override;
    HostResult elements() override;

    Ref<FakeObject> addChild(const std::string& name, std::vector<std::string> properties);
    Value property(const std::string& name) const;

    std::string typeName_;
    bool anyProperty = false;                        // accept every property name
    std::vector<Ref<FakeObject>> items;              // control array: obj(i)
    std::vector<std::string> phrases;                // AddItem

private:
    std::string name_;
    std::vector<std::string>* log_;
    std::vector<std::string> known_;
    std::map<std::string, Value> values_;
    std::map<std::string, Ref<FakeObject>> children_;
};

// The host side of a test: message and input boxes answered from queues,
// CreateObject for the two shell objects the assistant writes, LoadPicture.
class FakeScriptHost : public ScriptHost {
public:
    int msgBox(const MsgBoxRequest& r) override;
    std::optional<std::string> inputBox(const InputBoxRequest& r) override;
    HostResult createObject(std::string_view progId) override;
    HostResult loadPicture(std::string_view path) override;

    std::vector<MsgBoxRequest> messages;
    std::vector<InputBoxRequest> inputs;
    std::deque<int> msgBoxAnswers;
    std::deque<std::optional<std::string>> inputAnswers;
    std::map<std::string, std::string> files;  // what opentextfile reads
    std::vector<std::string> log;              // writes, calls, Run commands

    // The prompts of every MsgBox so far, joined with "|".
    std::string output() const;
};

// Runs a text in a fresh module with the menu's run-time objects (Fenetre,
// Action, Bouton1-3, Texte1-3, ...) added, and gives the MsgBox prompts and
// the error.
struct Outcome {
    std::string output;
    int error = 0;
    int line = 0;
    std::string description;
};
Outcome runScript(std::string_view code);

}  // namespace qor::script::test

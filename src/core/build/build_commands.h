#pragma once

namespace qor {

// The main window's build commands as the shell dispatches them.
class BuildCommands {
public:
    virtual ~BuildCommands() = default;

    virtual void openCompileDialog() = 0;   // "En autorun (pour vos CDs)"
    virtual void testRun() = 0;             // "&Tester le projet"
    virtual void exportExecutable() = 0;    // "En exécutable simple"
    virtual void exportHtml() = 0;          // "En page web (html)"
};

}  // namespace qor

// qorvbs: runs a menu script outside a menu, for trying it.
//
//   qorvbs [--max-steps N] FILE.vbs
//
// The script stops with error 18 after N loop turns or procedure calls
// (100 000 000 by default, 0 for no limit).
//
// MsgBox writes one line to standard output:
//   MsgBox: <text> | <title> | <buttons>
// where every line break of the text is written as "¤", the title is empty
// when the script gave none, and buttons is the number the script passed
// (0 when none). The box answers with its default button (OK, Yes, Abort or
// Retry, or the second or third button when vbDefaultButton2/3 is given).
//
// InputBox writes "InputBox: <prompt> | <title> | <default>" and reads one
// line from standard input: an empty line takes the default, the end of the
// input is Cancel (the script gets "").
//
// The menu's run-time objects (Fenetre, Ecran, Bordure, ImageFond,
// Minuteur, Action, Bouton1..Bouton100, Texte1..Texte100) keep what the
// script assigns and print each assignment: "Fenetre.Caption = Titre".
// CreateObject("WScript.Shell").Run prints "Run: <command>" without running
// anything; CreateObject("Scripting.FileSystemObject") opens text files for
// reading (OpenTextFile, ReadAll, ReadLine, AtEndOfStream, Close,
// FileExists). LoadPicture gives a picture object naming its file.
//
// A syntax or run-time error prints "Erreur <n> : <description> (ligne <l>)"
// to standard error and exits with status 1.

#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <optional>
#include <string>

#include "player/core/file_system_object.h"
#include "script/builtins.h"
#include "script/module.h"
#include "script/operations.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"
#include "text/cp1252.h"
#include "text/utf8.h"

using namespace qor::script;

namespace {

const char* kHelp =
    "Utilisation : qorvbs [--max-steps N] FICHIER.vbs\n"
    "\n"
    "Exécute un script VBScript de menu hors du menu.\n"
    "\n"
    "  MsgBox écrit une ligne sur la sortie standard :\n"
    "    MsgBox: <texte> | <titre> | <boutons>\n"
    "  (chaque saut de ligne du texte est écrit « ¤ », le titre est vide quand le\n"
    "  script n'en donne pas, <boutons> est le nombre passé par le script, 0 sinon ;\n"
    "  la boîte répond par son bouton par défaut).\n"
    "  InputBox écrit « InputBox: <invite> | <titre> | <défaut> » et lit une ligne\n"
    "  sur l'entrée standard : ligne vide = valeur par défaut, fin de l'entrée = Annuler.\n"
    "  Les objets du menu (Fenetre, Ecran, Bordure, ImageFond, Minuteur, Action,\n"
    "  Bouton1..Bouton100, Texte1..Texte100) affichent chaque affectation :\n"
    "    Fenetre.Caption = Titre\n"
    "  WScript.Shell.Run affiche « Run: <commande> » sans rien lancer.\n"
    "  Une erreur écrit « Erreur <n> : <description> (ligne <l>) » sur la sortie\n"
    "  d'erreur ; le code de sortie est alors 1.\n"
    "\n"
    "  --max-steps N   arrête le script (erreur 18) après N tours de boucle ou\n"
    "                  appels de procédure ; 100000000 par défaut, 0 pour aucune limite\n";

std::string oneLine(std::string_view text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c == '\r' || c == '\n') {
            out += "¤";
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
        } else {
            out += c;
        }
    }
    return out;
}

std::string show(const Value& v)
{
    if (v.isObject())
        return v.asObject() ? "[" + static_cast<HostObject*>(v.asObject())->typeName() + "]" : "Nothing";
    if (v.isNull())
        return "Null";
    if (v.isArray())
        return "[Variant()]";
    return oneLine(toText(v));
}

// A run-time object of the menu: keeps its properties and prints each assignment.
class MenuObject : public HostObject {
public:
    explicit MenuObject(std::string name) : name_(std::move(name)) {}
    std::string typeName() const override { return name_; }
    HostResult getProperty(std::string_view name, Args args) override
    {
        if (!args.empty())
            return callMethod(name, args);
        auto it = props_.find(qor::lowerAscii(name));
        return HostResult::ok(it == props_.end() ? Value() : it->second);
    }
    HostResult setProperty(std::string_view name, Args, const Value& value) override
    {
        props_[qor::lowerAscii(name)] = value;
        std::printf("%s.%.*s = %s\n", name_.c_str(), int(name.size()), name.data(), show(value).c_str());
        return HostResult::ok();
    }
    HostResult callMethod(std::string_view name, Args args) override
    {
        std::string line = name_ + "." + std::string(name);
        for (std::size_t i = 0; i < args.size(); ++i)
            line += (i ? ", " : " ") + show(args[i]);
        std::printf("%s\n", line.c_str());
        return HostResult::ok();
    }

private:
    std::string name_;
    std::map<std::string, Value> props_;
};

class Picture : public HostObject {
public:
    explicit Picture(std::string path) : path_(std::move(path)) {}
    std::string typeName() const override { return "Picture"; }
    HostResult defaultValue() override { return HostResult::ok(Value::string(path_)); }
    HostResult getProperty(std::string_view name, Args) override
    {
        if (equalsNoCase(name, "Path"))
            return HostResult::ok(Value::string(path_));
        return noMember();
    }

private:
    std::string path_;
};

class Shell : public HostObject {
public:
    std::string typeName() const override { return "IWshShell3"; }
    HostResult callMethod(std::string_view name, Args args) override
    {
        if (!equalsNoCase(name, "Run"))
            return noMember();
        if (args.empty())
            return HostResult::fail(errc::WrongArguments);
        std::printf("Run: %s\n", show(args[0]).c_str());
        return HostResult::ok(Value::integer(0));
    }
    HostResult getProperty(std::string_view name, Args args) override { return callMethod(name, args); }
};

std::string readBytes(const std::string& path, bool& ok)
{
    std::ifstream in(path, std::ios::binary);
    ok = bool(in);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

// Menu files come in Windows-1252; a text that is valid UTF-8 is taken as it is.
std::string toUtf8(const std::string& bytes)
{
    return qor::isValidUtf8(bytes) ? bytes : qor::decodeCp1252(bytes);
}

// The player's own file object, reading paths as they are given.
qor::player::FileSystemObject* newFileSystem()
{
    return new qor::player::FileSystemObject([](std::string_view path) { return std::string(path); },
                                             [](const std::string& path) -> std::optional<std::string> {
                                                 bool ok = false;
                                                 std::string bytes = readBytes(path, ok);
                                                 return ok ? std::optional<std::string>(std::move(bytes)) : std::nullopt;
                                             });
}

class ConsoleHost : public ScriptHost {
public:
    int msgBox(const MsgBoxRequest& r) override
    {
        std::printf("MsgBox: %s | %s | %d\n", oneLine(r.prompt).c_str(), oneLine(r.title.value_or("")).c_str(),
                    r.buttons);
        std::fflush(stdout);
        static const int answers[6][3] = {
            {vbOK, vbOK, vbOK}, {vbOK, vbCancel, vbCancel}, {vbAbort, vbRetry, vbIgnore},
            {vbYes, vbNo, vbCancel}, {vbYes, vbNo, vbNo}, {vbRetry, vbCancel, vbCancel},
        };
        int kind = r.buttons & 7;
        int def = (r.buttons >> 8) & 3;
        return kind < 6 ? answers[kind][def > 2 ? 2 : def] : vbOK;
    }
    std::optional<std::string> inputBox(const InputBoxRequest& r) override
    {
        std::printf("InputBox: %s | %s | %s\n", oneLine(r.prompt).c_str(), oneLine(r.title.value_or("")).c_str(),
                    oneLine(r.defaultText).c_str());
        std::fflush(stdout);
        std::string line;
        if (!std::getline(std::cin, line))
            return std::nullopt;
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        return line.empty() ? r.defaultText : line;
    }
    HostResult createObject(std::string_view id) override
    {
        if (HostObject::equalsNoCase(id, "WScript.Shell"))
            return HostResult::ok(Value::object(new Shell));
        if (HostObject::equalsNoCase(id, "Scripting.FileSystemObject"))
            return HostResult::ok(Value::object(newFileSystem()));
        return ScriptHost::createObject(id);
    }
    HostResult loadPicture(std::string_view path) override
    {
        return HostResult::ok(Value::object(new Picture(std::string(path))));
    }
};

}  // namespace

int main(int argc, char** argv)
{
    std::string file;
    // A runaway loop ends by itself (error 18) instead of hanging the terminal.
    std::uint64_t maxSteps = 100'000'000;
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        if (a == "--help" || a == "-h") {
            std::fputs(kHelp, stdout);
            return 0;
        }
        if (a == "--max-steps" && i + 1 < argc) {
            maxSteps = std::strtoull(argv[++i], nullptr, 10);
            continue;
        }
        if (!file.empty() || (a.size() > 1 && a[0] == '-')) {
            std::fputs(kHelp, stderr);
            return 2;
        }
        file = a;
    }
    if (file.empty()) {
        std::fputs(kHelp, stderr);
        return 2;
    }
    bool ok = false;
    std::string source = readBytes(file, ok);
    if (!ok) {
        std::fprintf(stderr, "Impossible de lire %s\n", file.c_str());
        return 2;
    }
    ConsoleHost host;
    Module module(&host);
    module.setStepBudget(maxSteps);
    for (const char* name : {"Fenetre", "Ecran", "Bordure", "ImageFond", "Minuteur", "Action"})
        module.addObject(name, makeRef<MenuObject>(name));
    for (int n = 1; n <= 100; ++n) {
        module.addObject("Bouton" + std::to_string(n), makeRef<MenuObject>("Bouton" + std::to_string(n)));
        module.addObject("Texte" + std::to_string(n), makeRef<MenuObject>("Texte" + std::to_string(n)));
    }
    RunResult r = module.addCode(toUtf8(source));
    std::fflush(stdout);
    if (!r.ok()) {
        std::fprintf(stderr, "Erreur %d : %s (ligne %d)\n", r.error->number, r.error->description.c_str(),
                     r.error->line);
        return 1;
    }
    return 0;
}

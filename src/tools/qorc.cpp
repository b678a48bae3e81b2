// qorc: builds a project without the editor. See kHelp below and the README.

#include <unistd.h>

#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/build/build_messages.h"
#include "core/build/compiler.h"
#include "core/build/headless_project.h"
#include "core/build/html_launcher.h"
#include "core/build/web_menu.h"
#include "core/build/iso_image.h"
#include "core/build/local_file_system.h"
#include "core/build/local_program_runner.h"
#include "text/text_helpers.h"
#include "tools/qorc_console.h"

namespace qor {
namespace {

const char* kHelp =
    "Utilisation :\n"
    "  qorc build PROJET.qor CIBLE [--name N] [--author A] [--sub-menu NOM] [--no-runtime] [--yes] [--web]\n"
    "  qorc html PROJET.qor DOSSIER/\n"
    "  qorc iso PROJET.qor IMAGE.iso [--add DOSSIER]... [--name N] [--author A] [--no-runtime]\n"
    "\n"
    "build  compile le projet dans le dossier CIBLE, comme « En autorun (pour vos CDs) » :\n"
    "       CIBLE/Autorun.inf et CIBLE/qor/ (ou CIBLE/qor/NOM.exe pour un sous menu).\n"
    "       --name, --author : nom et auteur du projet (par défaut ceux du dialogue) ;\n"
    "       --sub-menu NOM : compile un sous menu à côté d'un menu principal existant ;\n"
    "       --no-runtime : ne copie pas les fichiers 'RUNTIME' ;\n"
    "       --yes : remplace une compilation existante (sinon elle est gardée et qorc refuse) ;\n"
    "       --web : écrit aussi index.htm et le menu web à la racine de CIBLE.\n"
    "html   écrit DOSSIER/index.htm, la page qui ouvre le menu web, et à côté qor_menu2.htm avec son\n"
    "       dossier qor_menu2/ ; DOSSIER est pris tel quel (« d/web » écrit « d/webindex.htm »).\n"
    "iso    compile dans un dossier temporaire et écrit une image de CD (ISO 9660, Joliet,\n"
    "       Rock Ridge ; nom de volume tiré du nom du projet) avec Autorun.inf, qor/ et chaque\n"
    "       DOSSIER de --add sous son propre nom (les médias des boutons « vidéo »).\n"
    "\n"
    "Les étapes s'affichent sur la sortie standard, les messages sur la sortie d'erreur.\n"
    "Code de sortie : 0 réussi, 1 refus ou erreur, 2 mauvaise utilisation.\n";

constexpr int kOk = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;

// The command line, read against the options each command takes.
struct Arguments {
    std::string command;
    std::vector<std::string> positional;
    std::map<std::string, std::string> values;   // --name, --author, --sub-menu
    std::vector<std::string> added;              // every --add
    bool yes = false;
    bool noRuntime = false;
    bool web = false;
};

struct OptionRule {
    const char* name;
    bool takesValue;
    const char* commands;   // the commands that accept it
};

constexpr OptionRule kOptions[] = {
    {"--name", true, "build iso"}, {"--author", true, "build iso"}, {"--sub-menu", true, "build"},
    {"--no-runtime", false, "build iso"}, {"--yes", false, "build"}, {"--add", true, "iso"},
    {"--web", false, "build"},
};

constexpr std::pair<const char*, std::size_t> kPositionals[] = {{"build", 2}, {"html", 2}, {"iso", 2}};

bool accepts(const OptionRule& rule, const std::string& command)
{
    return (" " + std::string(rule.commands) + " ").find(" " + command + " ") != std::string::npos;
}

bool readOption(Arguments& a, const std::string& word, int& i, int argc, char** argv)
{
    for (const auto& rule : kOptions) {
        if (word != rule.name || !accepts(rule, a.command))
            continue;
        if (!rule.takesValue) {
            (word == "--yes" ? a.yes : word == "--web" ? a.web : a.noRuntime) = true;
            return true;
        }
        if (++i >= argc)
            return false;
        if (word == "--add")
            a.added.push_back(argv[i]);
        else
            a.values[word] = argv[i];
        return true;
    }
    return false;
}

std::optional<Arguments> parse(int argc, char** argv)
{
    if (argc < 2)
        return std::nullopt;
    Arguments a;
    a.command = argv[1];
    std::size_t wanted = 0;
    for (const auto& [command, count] : kPositionals)
        if (a.command == command)
            wanted = count;
    if (wanted == 0)
        return std::nullopt;
    for (int i = 2; i < argc; ++i) {
        const std::string word = argv[i];
        if (word.rfind("--", 0) == 0) {
            if (!readOption(a, word, i, argc, argv))
                return std::nullopt;
        } else {
            a.positional.push_back(word);
        }
    }
    if (a.positional.size() != wanted)
        return std::nullopt;
    return a;
}

// The folder of this program, where compil.exe, autorun.ico and install.bat lie.
std::string programFolder(const char* argv0)
{
    char buffer[4096];
    const ssize_t n = ::readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    const std::string self = n > 0 ? std::string(buffer, std::size_t(n)) : std::string(argv0);
    return withTrailingSeparator(folderOf(self));
}

class Builder {
public:
    Builder(const Arguments& a, std::string program) : args_(a), program_(std::move(program)) {}

    int run();

private:
    bool load();
    CompileRequest request(const std::string& target) const;
    int compileInto(const std::string& target);
    int html();
    int web(const std::string& pageFolder);
    int iso();

    bool bake();

    const Arguments& args_;
    std::string program_;
    ConsoleDialogs dialogs_{std::cerr, args_.yes};
    ConsoleCompileView view_{std::cout};
    LocalFileSystem files_;
    MenuProject project_;
    BuildState state_;
};

int Builder::run()
{
    if (!load())
        return kFailed;
    if (args_.command == "html")
        return html();
    if (args_.command == "iso")
        return iso();
    return compileInto(args_.positional[1]);
}

bool Builder::load()
{
    if (!loadProjectWithoutViews(project_, args_.positional[0], dialogs_)) {
        std::cerr << "Le projet '" << args_.positional[0] << "' n'a pas pu être lu.\n";
        return false;
    }
    return true;
}

CompileRequest Builder::request(const std::string& target) const
{
    CompileRequest r = compileDefaults(project_, target);
    if (auto it = args_.values.find("--name"); it != args_.values.end())
        r.projectName = it->second;
    if (auto it = args_.values.find("--author"); it != args_.values.end())
        r.author = it->second;
    if (auto it = args_.values.find("--sub-menu"); it != args_.values.end()) {
        r.subMenu = true;
        r.subMenuName = it->second;
    }
    r.skipRuntime = args_.noRuntime;
    return r;
}

// The baker is a program of its own: only projects with transparent
// buttons pay for loading Qt's image classes. It is taken from qorc's own
// folder, never from the PATH, so that a stray program of that name is
// never run. Without its images the compilation would copy missing or stale
// "_transp.bmp" files, so a baker that cannot run ends the build.
bool Builder::bake()
{
    if (!needsBaking(project_))
        return true;
    const std::string baker = program_ + "qorbake";
    LocalProgramRunner runner;
    const Result<int> status = runner.run(baker, {project_.filePath});
    if (!status) {
        std::cerr << "Erreur : le programme '" << baker << "' qui calcule les images des boutons transparents "
                  << "n'a pas pu être lancé (" << status.error().description << ").\n";
        return false;
    }
    if (*status != 0) {
        std::cerr << "Erreur : les images des boutons transparents n'ont pas pu être calculées ('" << baker
                  << "' a échoué, code " << *status << ").\n";
        return false;
    }
    return true;
}

// True when target is empty or leads to the file system's root, through
// links too: a compilation there would write beside the system's folders.
bool isRootTarget(const std::string& target)
{
    if (target.empty() || isRootFolder(target))
        return true;
    char* real = ::realpath(target.c_str(), nullptr);
    const bool root = real && std::string_view(real) == "/";
    std::free(real);
    return root;
}

int Builder::compileInto(const std::string& target)
{
    if (isRootTarget(target)) {
        dialogs_.message(incorrectFolderMessage());
        return kFailed;
    }
    Compiler compiler(files_, dialogs_, state_);
    const CompileRequest r = request(target);
    // Checked before the baker writes anything beside the pictures.
    if (compiler.checkValues(project_, r) != CompileOutcome::Done || !bake())
        return kFailed;
    if (compiler.compile(project_, r, {program_, true}, view_) != CompileOutcome::Done)
        return kFailed;
    if (!args_.web)
        return kOk;
    // The CD opens in a browser too: the launcher and the web menu at its root.
    const std::string root = withTrailingSeparator(target);
    if (Status s = writeHtmlLauncher(files_, project_, root + kHtmlLauncherName); !s) {
        std::cerr << "Erreur : " << inFrench(s.error()).description << " (" << root << kHtmlLauncherName << ")\n";
        return kFailed;
    }
    return web(root);
}

int Builder::html()
{
    const std::string path = htmlLauncherPath(args_.positional[1]);
    // The web menu carries the same data line as a CD: checked before anything is written.
    Compiler compiler(files_, dialogs_, state_);
    if (compiler.checkValues(project_, request(folderOf(path))) != CompileOutcome::Done)
        return kFailed;
    if (Status s = writeHtmlLauncher(files_, project_, path); !s) {
        std::cerr << "Erreur : " << inFrench(s.error()).description << " (" << path << ")\n";
        return kFailed;
    }
    std::cout << path << '\n';
    if (!bake())
        return kFailed;
    return web(folderOf(path));
}

// The web menu beside the launcher: the page and its folder.
int Builder::web(const std::string& pageFolder)
{
    const CompileRequest names = request(pageFolder);
    if (Status s = writeWebMenu(files_, project_, {names.projectName, names.author}, pageFolder, program_); !s) {
        std::cerr << "Erreur : " << inFrench(s.error()).description << " (" << pageFolder << kWebPageName << ")\n";
        return kFailed;
    }
    std::cout << pageFolder << kWebPageName << '\n';
    return kOk;
}

int Builder::iso()
{
    for (const auto& folder : args_.added)
        if (!files_.isFolder(folder) || equalsNoCase(addedFolderName(folder), "qor")) {
            std::cerr << "Erreur : le dossier '" << folder << "' n'existe pas ou s'appelle 'qor'.\n";
            return kFailed;
        }
    auto scratch = files_.createTempFolder();
    if (!scratch) {
        std::cerr << "Erreur : " << scratch.error().description << '\n';
        return kFailed;
    }
    int result = compileInto(*scratch);
    if (result == kOk) {
        const std::string volume = isoVolumeName(request(*scratch).projectName);
        LocalProgramRunner runner;
        if (Status s = writeIsoImage(runner, args_.positional[1], volume, *scratch, args_.added); !s) {
            std::cerr << "Erreur : " << s.error().description << '\n';
            result = kFailed;
        } else {
            std::cout << args_.positional[1] << " (" << volume << ")\n";
        }
    }
    removeCompiledFolder(files_, *scratch);
    return result;
}

}  // namespace
}  // namespace qor

int main(int argc, char** argv)
{
    // A file-size limit must fail a write, not end the program half-way.
    std::signal(SIGXFSZ, SIG_IGN);
    if (argc >= 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
        std::cout << qor::kHelp;
        return qor::kOk;
    }
    const auto args = qor::parse(argc, argv);
    if (!args) {
        std::cerr << qor::kHelp;
        return qor::kUsage;
    }
    return qor::Builder(*args, qor::programFolder(argv[0])).run();
}

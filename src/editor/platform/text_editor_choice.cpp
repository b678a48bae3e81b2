#include "editor/platform/text_editor_choice.h"

#include <QFileInfo>
#include <QProcess>

namespace qor {
namespace {

bool isOurOwn(const QString& program, const QString& ownExecutable)
{
    const QFileInfo info(program);
    if (info.baseName().compare(QStringLiteral("qor"), Qt::CaseInsensitive) == 0)
        return true;
    if (ownExecutable.isEmpty())
        return false;
    const QFileInfo own(ownExecutable);
    // Through links when both exist, else as written.
    if (info.exists() && own.exists())
        return info.canonicalFilePath() == own.canonicalFilePath();
    return info.absoluteFilePath() == own.absoluteFilePath();
}

}  // namespace

const QStringList& commonTextEditors()
{
    static const QStringList editors = {
        QStringLiteral("gnome-text-editor"), QStringLiteral("gedit"), QStringLiteral("kwrite"),
        QStringLiteral("kate"), QStringLiteral("mousepad"), QStringLiteral("pluma"),
        QStringLiteral("xed"), QStringLiteral("featherpad"), QStringLiteral("leafpad"),
        QStringLiteral("geany"),
    };
    return editors;
}

std::optional<ProgramCall> callFromDesktopExec(const QString& exec, const QString& file)
{
    QStringList parts = QProcess::splitCommand(exec);
    if (parts.isEmpty())
        return std::nullopt;
    ProgramCall call;
    call.program = parts.takeFirst();
    bool placed = false;
    for (const QString& part : parts) {
        static const QStringList fileCodes = {QStringLiteral("%f"), QStringLiteral("%F"),
                                              QStringLiteral("%u"), QStringLiteral("%U")};
        if (fileCodes.contains(part)) {
            if (!placed)
                call.arguments << file;
            placed = true;
            continue;
        }
        // %i, %c, %k and the deprecated codes carry nothing we can give.
        if (part.size() == 2 && part.startsWith(QChar('%')) && part != QStringLiteral("%%"))
            continue;
        QString literal = part;
        literal.replace(QStringLiteral("%%"), QStringLiteral("%"));
        call.arguments << literal;
    }
    if (!placed)
        call.arguments << file;
    return call;
}

std::optional<ProgramCall> chooseTextEditor(const QString& file, const TextEditorEnvironment& env)
{
    if (env.findExecutable) {
        for (const QString& name : commonTextEditors()) {
            const QString path = env.findExecutable(name);
            if (!path.isEmpty() && !isOurOwn(path, env.ownExecutable))
                return ProgramCall{path, {file}};
        }
    }
    if (env.defaultTextEditorExec) {
        const auto call = callFromDesktopExec(env.defaultTextEditorExec(), file);
        if (call && !isOurOwn(call->program, env.ownExecutable))
            return call;
    }
    return std::nullopt;
}

QStringList desktopEntriesFor(const QString& mimeType, const QStringList& mimeappsContents)
{
    QStringList defaults;
    QStringList added;
    for (const QString& content : mimeappsContents) {
        QStringList* group = nullptr;
        for (const QString& raw : content.split(QChar('\n'))) {
            const QString line = raw.trimmed();
            if (line.startsWith(QChar('['))) {
                group = line == QStringLiteral("[Default Applications]") ? &defaults
                        : line == QStringLiteral("[Added Associations]") ? &added
                                                                          : nullptr;
                continue;
            }
            const int eq = line.indexOf(QChar('='));
            if (!group || eq < 0 || line.left(eq).trimmed() != mimeType)
                continue;
            for (const QString& entry : line.mid(eq + 1).split(QChar(';'), Qt::SkipEmptyParts)) {
                const QString name = entry.trimmed();
                if (!name.isEmpty() && !group->contains(name))
                    group->append(name);
            }
        }
    }
    for (const QString& name : added)
        if (!defaults.contains(name))
            defaults.append(name);
    return defaults;
}

}  // namespace qor

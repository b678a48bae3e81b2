#include "editor/platform/file_filter.h"

#include "editor/platform/qt_text.h"

namespace qor {
namespace {

// "Fichier QOR (*.qor)" -> "Fichier QOR": Qt puts the patterns back itself.
QString withoutTrailingPatterns(QString description)
{
    description = description.trimmed();
    if (description.endsWith(QChar(')'))) {
        const qsizetype open = description.lastIndexOf(QChar('('));
        if (open > 0)
            description = description.left(open).trimmed();
    }
    return description;
}

}  // namespace

QStringList qtNameFilters(std::string_view filter)
{
    const QStringList parts = toQt(filter).split(QChar('|'));
    QStringList out;
    if (toQt(filter).trimmed().isEmpty())
        return out;
    for (qsizetype i = 0; i < parts.size(); i += 2) {
        const QString description = withoutTrailingPatterns(parts[i]);
        QStringList patterns;
        if (i + 1 < parts.size()) {
            for (const QString& p : parts[i + 1].split(QChar(';'), Qt::SkipEmptyParts)) {
                const QString trimmed = p.trimmed();
                if (!trimmed.isEmpty())
                    patterns << trimmed;
            }
        }
        if (patterns.isEmpty())
            patterns << QStringLiteral("*");
        const QString joined = patterns.join(QChar(' '));
        out << (description.isEmpty() ? joined : description + QStringLiteral(" (") + joined + QChar(')'));
    }
    return out;
}

}  // namespace qor

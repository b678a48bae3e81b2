#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace qor {

// The core speaks UTF-8 std::string; Qt speaks QString. These are the only
// crossings between the two.
inline QString toQt(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

inline std::string fromQt(const QString& text)
{
    return text.toStdString();
}

// The core builds multi-line texts with CR LF; Qt widgets want plain LF.
inline QString toQtLines(std::string_view text)
{
    QString s = toQt(text);
    s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    s.replace(QChar('\r'), QChar('\n'));
    return s;
}

// And back: what the user typed in a multi-line field, with CR LF line ends.
inline std::string fromQtLines(const QString& text)
{
    QString s = text;
    s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    s.replace(QChar('\n'), QStringLiteral("\r\n"));
    return fromQt(s);
}

}  // namespace qor

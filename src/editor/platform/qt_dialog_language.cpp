#include "editor/platform/qt_dialog_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace qor {

QtDialogLanguage::~QtDialogLanguage()
{
    follow("English");
}

void QtDialogLanguage::follow(const std::string& language)
{
    const bool wanted = language.empty();
    if (wanted == installed_)
        return;
    if (!wanted) {
        QCoreApplication::removeTranslator(&french_);
        installed_ = false;
        return;
    }
    // A machine without Qt's French translations shows Qt's English.
    if (!loaded_)
        loaded_ = french_.load(QLocale(QLocale::French), QStringLiteral("qtbase"), QStringLiteral("_"),
                               QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    installed_ = loaded_ && QCoreApplication::installTranslator(&french_);
}

}  // namespace qor

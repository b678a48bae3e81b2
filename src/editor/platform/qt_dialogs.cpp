#include "editor/platform/qt_dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QPushButton>
#include <QTimer>

#include "editor/platform/colours.h"
#include "editor/platform/file_filter.h"
#include "editor/platform/qt_text.h"

#include <cmath>
#include <cstdlib>
#include <cstring>

#ifdef QOR_HAVE_XCB
#include <QGuiApplication>
#include <QWindow>
#include <qguiapplication_platform.h>
#include <xcb/xcb.h>
#endif

namespace qor {
namespace {

QWidget* dialogParent()
{
    return QApplication::activeWindow();
}

QMessageBox::Icon iconOf(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Critical: return QMessageBox::Critical;
    case MessageIcon::Question: return QMessageBox::Question;
    case MessageIcon::Exclamation: return QMessageBox::Warning;
    case MessageIcon::Information: return QMessageBox::Information;
    case MessageIcon::None: break;
    }
    return QMessageBox::NoIcon;
}

// The buttons' captions are Qt's own, in the interface language ("Oui" in
// French, "Yes" otherwise).
struct ButtonSpec {
    QMessageBox::StandardButton button;
};

std::vector<ButtonSpec> buttonsOf(MessageButtons buttons)
{
    const ButtonSpec ok{QMessageBox::Ok};
    const ButtonSpec cancel{QMessageBox::Cancel};
    const ButtonSpec yes{QMessageBox::Yes};
    const ButtonSpec no{QMessageBox::No};
    switch (buttons) {
    case MessageButtons::Ok: return {ok};
    case MessageButtons::OkCancel: return {ok, cancel};
    case MessageButtons::YesNo: return {yes, no};
    case MessageButtons::YesNoCancel: return {yes, no, cancel};
    }
    return {ok};
}

QString folderOrCurrent(const std::string& folder)
{
    return folder.empty() ? QDir::currentPath() : toQt(folder);
}

// Qt names a window whose title is empty after the application on X11;
// a message specified without a title must show none, so the title is
// cleared on the window itself.
void showWithoutTitle(QWidget& window)
{
#ifdef QOR_HAVE_XCB
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !window.windowHandle())
        return;
    xcb_connection_t* connection = x11->connection();
    const auto atom = [connection](const char* name) {
        const auto cookie = xcb_intern_atom(connection, 0, uint16_t(std::strlen(name)), name);
        xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection, cookie, nullptr);
        const xcb_atom_t found = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
        std::free(reply);
        return found;
    };
    const auto id = xcb_window_t(window.winId());
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, atom("_NET_WM_NAME"), atom("UTF8_STRING"), 8, 0,
                        "");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, "");
    xcb_flush(connection);
#else
    (void)window;
#endif
}

}  // namespace

std::unique_ptr<QMessageBox> buildMessageBox(const Message& message, QWidget* parent)
{
    auto box = std::make_unique<QMessageBox>(parent);
    box->setWindowTitle(toQt(message.title));
    // Plain text: messages hold "<" and ">" ("<inconnu>", "QOR <-> Manuel").
    box->setTextFormat(Qt::PlainText);
    box->setText(toQtLines(message.text));
    box->setIcon(iconOf(message.icon));
    const auto choices = buttonsOf(message.buttons);
    QMessageBox::StandardButtons set;
    for (const auto& s : choices)
        set |= s.button;
    box->setStandardButtons(set);
    // Without access keys, as the captions of the editor's other messages.
    for (const auto& s : choices)
        box->button(s.button)->setText(box->button(s.button)->text().remove(QChar('&')));
    const int index = message.defaultButton >= 0 && message.defaultButton < int(choices.size())
                          ? message.defaultButton : 0;
    box->setDefaultButton(choices[std::size_t(index)].button);
    if (message.systemModal) {
        box->setWindowModality(Qt::ApplicationModal);
        box->setWindowFlag(Qt::WindowStaysOnTopHint, true);
    } else {
        box->setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    }
    return box;
}

Answer answerOf(QMessageBox::StandardButton button)
{
    switch (button) {
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    case QMessageBox::Cancel: return Answer::Cancel;
    default: return Answer::Ok;
    }
}

Answer QtDialogs::message(const Message& message)
{
    auto box = buildMessageBox(message, dialogParent());
    if (message.title.empty()) {
        box->winId();
        showWithoutTitle(*box);
        // Once more when the box is up, after the window system took it.
        QTimer::singleShot(0, box.get(), [b = box.get()] { showWithoutTitle(*b); });
    }
    box->exec();
    // Closing the box with its title bar button counts as its escape button.
    const auto clicked = box->standardButton(box->clickedButton());
    if (clicked == QMessageBox::NoButton)
        return message.buttons == MessageButtons::Ok ? Answer::Ok
               : message.buttons == MessageButtons::YesNo ? Answer::No : Answer::Cancel;
    return answerOf(clicked);
}

std::string QtDialogs::inputBox(const std::string& prompt, const std::string& title,
                                const std::string& defaultText)
{
    QInputDialog dialog(dialogParent());
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setWindowTitle(toQt(title));
    dialog.setLabelText(toQtLines(prompt));
    dialog.setTextValue(toQt(defaultText));
    // OK and Cancel come from Qt, in the interface language.
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return fromQt(dialog.textValue());
}

void configureFileDialog(QFileDialog& dialog, const FileDialogRequest& request, bool save)
{
    dialog.setWindowTitle(toQt(request.title));
    dialog.setDirectory(folderOrCurrent(request.initialFolder));
    const QStringList filters = qtNameFilters(request.filter);
    if (!filters.isEmpty())
        dialog.setNameFilters(filters);
    if (save) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
        dialog.setDefaultSuffix(QString());
    } else {
        dialog.setAcceptMode(QFileDialog::AcceptOpen);
        dialog.setFileMode(QFileDialog::ExistingFile);
    }
    if (!request.initialName.empty())
        dialog.selectFile(toQt(request.initialName));
}

namespace {

std::optional<std::string> runFileDialog(const FileDialogRequest& request, bool save)
{
    QFileDialog dialog(dialogParent());
    configureFileDialog(dialog, request, save);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return fromQt(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

}  // namespace

std::optional<std::string> QtDialogs::openFile(const FileDialogRequest& request)
{
    return runFileDialog(request, false);
}

std::optional<std::string> QtDialogs::saveFile(const FileDialogRequest& request)
{
    return runFileDialog(request, true);
}

std::optional<std::string> QtDialogs::pickFolder(const std::string& prompt)
{
    const QString folder = QFileDialog::getExistingDirectory(dialogParent(), toQtLines(prompt),
                                                             QDir::currentPath());
    if (folder.isEmpty())
        return std::nullopt;
    return fromQt(QDir::toNativeSeparators(folder));
}

std::optional<Colour> QtDialogs::pickColour(Colour initial)
{
    const QColor chosen = QColorDialog::getColor(toQColor(initial, QApplication::palette()),
                                                 dialogParent());
    if (!chosen.isValid())
        return std::nullopt;
    return fromQColor(chosen);
}

std::optional<FontChoice> QtDialogs::pickFont(const FontChoice& initial)
{
    QFontDialog dialog(toQFont(initial), dialogParent());
    // What the dialog shows for the asked font before the user touches it.
    const QFont shown = dialog.currentFont();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return changedFont(initial, shown, dialog.selectedFont());
}

QFont toQFont(const FontChoice& font)
{
    QFont f(toQt(font.name));
    if (font.size > 0)
        f.setPointSizeF(font.size);
    f.setBold(font.bold);
    f.setItalic(font.italic);
    f.setStrikeOut(font.strikethrough);
    f.setUnderline(font.underline);
    return f;
}

FontChoice fromQFont(const QFont& font)
{
    FontChoice c;
    c.name = fromQt(font.family());
    c.size = font.pointSizeF() > 0 ? font.pointSizeF() : 8;
    c.bold = font.bold();
    c.italic = font.italic();
    c.strikethrough = font.strikeOut();
    c.underline = font.underline();
    return c;
}

FontChoice changedFont(const FontChoice& initial, const QFont& shown, const QFont& chosen)
{
    FontChoice c = fromQFont(chosen);
    if (chosen.family().compare(shown.family(), Qt::CaseInsensitive) == 0 ||
        chosen.family().compare(toQt(initial.name), Qt::CaseInsensitive) == 0)
        c.name = initial.name;
    const double size = chosen.pointSizeF();
    if (std::abs(size - shown.pointSizeF()) < 0.01 || std::abs(size - initial.size) < 0.01)
        c.size = initial.size;
    return c;
}

}  // namespace qor

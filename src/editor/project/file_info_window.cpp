#include "editor/project/file_info_window.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "editor/platform/qt_text.h"
#include "editor/platform/widget_names.h"
#include "editor/ui/run_time_texts.h"

namespace qor {
namespace {

QLineEdit* lineField(const char* name, bool readOnly)
{
    auto* f = new QLineEdit;
    named(f, name);
    f->setReadOnly(readOnly);
    if (readOnly)
        f->setFocusPolicy(Qt::ClickFocus);  // out of the Tab order
    return f;
}

// What cannot be edited is shown on the window's own colour, whatever
// colour the appearance gave the fields.
void showOnWindowColour(QLineEdit& field, const QWidget& window)
{
    QPalette p = field.palette();
    p.setColor(QPalette::Base, window.palette().color(QPalette::Window));
    field.setPalette(p);
}

}  // namespace

FileInfoWindow::FileInfoWindow(WindowHooks& hooks, QWidget* parent) : QDialog(parent)
{
    hooks_ = &hooks;
    named(this, WindowId::FileInfo);
    setWindowTitle(QStringLiteral("Propriétés"));
    setModal(true);

    auto* layout = new QVBoxLayout(this);
    fileLine_ = new QLabel(this);
    named(fileLine_, "Label1");
    fileLine_->setTextFormat(Qt::PlainText);
    layout->addWidget(fileLine_);

    auto* form = new QFormLayout;
    editor_ = lineField("Text5", true);
    version_ = lineField("Text6", true);
    fileVersion_ = lineField("Text7", true);
    authorName_ = lineField("Text1", false);
    authorEmail_ = lineField("Text2", false);
    authorWebSite_ = lineField("Text3", false);
    notes_ = new QPlainTextEdit;
    named(notes_, "Text4");
    notes_->setTabChangesFocus(true);
    form->addRow(named(new QLabel(QStringLiteral("Editeur :"), this), "Label2"), editor_);
    form->addRow(named(new QLabel(QStringLiteral("Version :"), this), "Label3"), version_);
    form->addRow(named(new QLabel(QStringLiteral("Version fichier :"), this), "Label4"), fileVersion_);
    form->addRow(named(new QLabel(QStringLiteral("Nom de l'auteur :"), this), "Label5"), authorName_);
    form->addRow(named(new QLabel(QStringLiteral("Adresse e-mail :"), this), "Label6"), authorEmail_);
    form->addRow(named(new QLabel(QStringLiteral("Site internet :"), this), "Label7"), authorWebSite_);
    form->addRow(named(new QLabel(QStringLiteral("Notes :"), this), "Label8"), notes_);
    layout->addLayout(form);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    auto* ok = new QPushButton(QStringLiteral("&Valider"), this);
    named(ok, "Command1");
    ok->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("&Annuler"), this);
    named(cancel, "Command2");
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    layout->addLayout(buttons);

    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(notes_, &QPlainTextEdit::textChanged, this, &FileInfoWindow::applyNotesRule);

    runLoadHooks(*this, hooks);
    for (QLineEdit* f : {editor_, version_, fileVersion_})
        showOnWindowColour(*f, *this);
}

void FileInfoWindow::fill(const FileInfoView& view)
{
    fileLine_->setText(inInterfaceLanguage(*hooks_, toQt(view.fileLine)));
    editor_->setText(inInterfaceLanguage(*hooks_, toQt(view.editor)));
    version_->setText(inInterfaceLanguage(*hooks_, toQt(view.version)));
    fileVersion_->setText(inInterfaceLanguage(*hooks_, toQt(view.fileVersion)));
    authorName_->setText(toQt(view.authorName));
    authorEmail_->setText(toQt(view.authorEmail));
    authorWebSite_->setText(toQt(view.authorWebSite));
    notes_->setPlainText(toQtLines(view.notes));
    authorName_->setFocus();
}

FileInfoView FileInfoWindow::values() const
{
    return {fromQt(fileLine_->text()),        fromQt(editor_->text()),
            fromQt(version_->text()),         fromQt(fileVersion_->text()),
            fromQt(authorName_->text()),      fromQt(authorEmail_->text()),
            fromQt(authorWebSite_->text()),   fromQtLines(notes_->toPlainText())};
}

QLineEdit* FileInfoWindow::field(const char* name) const
{
    return findChild<QLineEdit*>(QString::fromUtf8(name));
}

void FileInfoWindow::applyNotesRule()
{
    if (!notesRule_ || applyingRule_)
        return;
    const QString typed = notes_->toPlainText();
    const QString kept = toQtLines(notesRule_(fromQtLines(typed)));
    if (kept == typed)
        return;
    // Keep the caret where the user was typing, moved by what the rule changed.
    const int caret = notes_->textCursor().position() + int(kept.size() - typed.size());
    applyingRule_ = true;
    notes_->setPlainText(kept);
    QTextCursor cursor = notes_->textCursor();
    cursor.setPosition(std::clamp(caret, 0, int(kept.size())));
    notes_->setTextCursor(cursor);
    applyingRule_ = false;
}

}  // namespace qor

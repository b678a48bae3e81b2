#include "editor/scripting/script_editor_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"

namespace qor {

ScriptEditorWindow::ScriptEditorWindow(const ScreenMetrics& screen, WindowHooks& hooks)
    : QWidget(nullptr, Qt::Window), screen_(screen)
{
    named(this, WindowId::ScriptEditor);
    setWindowTitle(QStringLiteral("Code VBS"));

    strip_ = named(new QWidget(this), "Picture1");
    auto* row = new QHBoxLayout(strip_);
    row->setContentsMargins(4, 2, 4, 2);
    for (auto [caption, name] : {std::pair{"F5 - &Tester", "Command1"}, std::pair{"Assistant", "Command2"},
                                 std::pair{"Nouvelle procédure", "Command3"}}) {
        auto* b = named(new QPushButton(QString::fromUtf8(caption), strip_), name);
        b->setEnabled(false);
        row->addWidget(b);
    }
    autoFormat_ = named(new QCheckBox(QStringLiteral("Mise en forme automatique"), strip_), "Check1");
    autoFormat_->setChecked(true);
    row->addWidget(autoFormat_);
    row->addStretch();

    // Placed by hand on resize, not by the strip's layout: its distance to
    // the right edge is part of the window's layout rule. The strip keeps
    // room for it so that it never covers the commands.
    procedures_ = named(new QComboBox(strip_), "Combo1");
    procedures_->addItem(QStringLiteral("Procédures"));
    procedures_->setMinimumContentsLength(18);
    row->addSpacing(procedures_->sizeHint().width() + twipsToPixels(kProcedureListMargin, screen.twipsPerPixelX));
    declarations_ = named(new QListWidget(this), "List1");
    declarations_->addItem(QStringLiteral("RIEN"));
    declarations_->hide();

    text_ = named(new QPlainTextEdit(this), "Text1");
    QFont mono(QStringLiteral("Courier New"));
    mono.setStyleHint(QFont::Monospace);
    mono.setFixedPitch(true);
    text_->setFont(mono);
    text_->setLineWrapMode(QPlainTextEdit::NoWrap);
    text_->setTabChangesFocus(false);

    auto* cursorPrompt = named(new QLabel(QStringLiteral("[Choix du nouveau curseur : cliquez ICI]"), this), "Label3");
    cursorPrompt->hide();
    auto* notice = named(new QLabel(QStringLiteral("Veuillez patienter..."), this), "Label2");
    notice->setAlignment(Qt::AlignCenter);
    notice->setFrameShape(QFrame::Box);
    notice->hide();

    newProcedure_ = named(new QGroupBox(this), "Frame1");
    auto* grid = new QGridLayout(newProcedure_);
    grid->addWidget(named(new QLabel(QStringLiteral("Nom :")), "Label1"), 0, 0);
    grid->addWidget(named(new QLineEdit, "Text2"), 0, 1, 1, 2);
    auto* type = named(new QGroupBox(QStringLiteral("Type")), "Frame2");
    auto* typeRow = new QVBoxLayout(type);
    typeRow->addWidget(named(new QRadioButton(QStringLiteral("Function")), "Option1"));
    typeRow->addWidget(named(new QRadioButton(QStringLiteral("Sub")), "Option2"));
    auto* scope = named(new QGroupBox(QStringLiteral("Portée")), "Frame3");
    auto* scopeRow = new QVBoxLayout(scope);
    scopeRow->addWidget(named(new QRadioButton(QStringLiteral("Private")), "Option3"));
    scopeRow->addWidget(named(new QRadioButton(QStringLiteral("Public")), "Option4"));
    grid->addWidget(type, 1, 0, 1, 2);
    grid->addWidget(scope, 1, 2);
    grid->addWidget(named(new QPushButton(QStringLiteral("&Valider")), "Command4"), 2, 1);
    grid->addWidget(named(new QPushButton(QStringLiteral("Annuler")), "Command5"), 2, 2);
    newProcedure_->hide();

    resize(twipsToPixels(11000, 6000, screen));
    runLoadHooks(*this, hooks);
}

void ScriptEditorWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int stripHeight = strip_->sizeHint().height();
    strip_->setGeometry(0, 0, width(), stripHeight);
    text_->setGeometry(0, stripHeight, width(), std::max(0, height() - stripHeight));
    const int listWidth = procedures_->sizeHint().width();
    const int margin = twipsToPixels(kProcedureListMargin, screen_.twipsPerPixelX);
    procedures_->setGeometry(strip_->width() - listWidth - margin,
                             (stripHeight - procedures_->sizeHint().height()) / 2, listWidth,
                             procedures_->sizeHint().height());
}

}  // namespace qor

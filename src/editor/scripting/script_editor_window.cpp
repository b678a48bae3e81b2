#include "editor/scripting/script_editor_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

#include "core/scripting/assistant_generators.h"
#include "core/scripting/procedure_list.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"
#include "editor/scripting/assistant_popup.h"
#include "editor/ui/run_time_texts.h"

namespace qor {
namespace {

bool isF5Release(const QKeyEvent* key)
{
    return key->key() == Qt::Key_F5 && !key->isAutoRepeat();
}

// Enter alone: Shift, Ctrl or Alt with it does not format.
bool isPlainEnter(const QKeyEvent* key)
{
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    return enter && !(key->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier));
}

QTimer* namedTimer(QObject* parent, const char* name, int interval, bool singleShot)
{
    auto* timer = named(new QTimer(parent), name);
    timer->setInterval(interval);
    timer->setSingleShot(singleShot);
    return timer;
}

}  // namespace

ScriptEditorWindow::ScriptEditorWindow(const ScreenMetrics& screen, WindowHooks& hooks)
    : QWidget(nullptr, Qt::Window), screen_(screen)
{
    hooks_ = &hooks;
    named(this, WindowId::ScriptEditor);
    setWindowTitle(QStringLiteral("Code VBS"));
    buildStrip();
    buildText();
    buildNewProcedurePanel();
    buildOverlays();
    buildTimers();
    assistant_ = new AssistantPopup(kAssistantMenuCaption, qor::assistantMenu(), this);
    cursors_ = new AssistantPopup(kCursorMenuCaption, qor::cursorMenu(), this);
    connect(assistant_, &AssistantPopup::chosen, this, &ScriptEditorWindow::assistantChosen);
    connect(cursors_, &AssistantPopup::chosen, this, [this](const QString&, int cursor) { emit cursorChosen(cursor); });
    resize(twipsToPixels(11000, 6000, screen));
    runLoadHooks(*this, hooks);
}

void ScriptEditorWindow::setCaption(const QString& french)
{
    setWindowTitle(inInterfaceLanguage(*hooks_, french));
}

void ScriptEditorWindow::buildStrip()
{
    strip_ = named(new QWidget(this), "Picture1");
    auto* row = new QHBoxLayout(strip_);
    row->setContentsMargins(4, 2, 4, 2);
    auto* test = named(new QPushButton(QStringLiteral("F5 - &Tester"), strip_), "Command1");
    auto* assistant = named(new QPushButton(QStringLiteral("Assistant"), strip_), "Command2");
    auto* newProcedure = named(new QPushButton(QStringLiteral("Nouvelle procédure"), strip_), "Command3");
    autoFormat_ = named(new QCheckBox(QStringLiteral("Mise en forme automatique"), strip_), "Check1");
    autoFormat_->setChecked(true);
    for (QWidget* w : std::initializer_list<QWidget*>{test, assistant, newProcedure, autoFormat_})
        row->addWidget(w);
    row->addStretch();
    connect(test, &QPushButton::clicked, this, &ScriptEditorWindow::testRunRequested);
    connect(assistant, &QPushButton::clicked, this,
            [this, assistant] { assistant_->popup(assistant->mapToGlobal(QPoint(0, assistant->height()))); });
    connect(newProcedure, &QPushButton::clicked, this, &ScriptEditorWindow::openNewProcedurePanel);

    // Placed by hand on resize, not by the strip's layout: its distance to
    // the right edge is part of the window's layout rule. The strip keeps
    // room for it so that it never covers the commands.
    procedures_ = named(new QComboBox(strip_), "Combo1");
    procedures_->addItem(inInterfaceLanguage(*hooks_, toQt(kProcedureListTitle)));
    procedures_->setMinimumContentsLength(18);
    row->addSpacing(procedures_->sizeHint().width() + twipsToPixels(kProcedureListMargin, screen_.twipsPerPixelX));
    connect(procedures_, &QComboBox::activated, this, [this](int index) {
        if (index > 0)
            emit procedureChosen(procedures_->itemText(index));
        procedures_->setCurrentIndex(0);
    });
    declarations_ = named(new QListWidget(this), "List1");
    declarations_->addItem(toQt(kProcedureListNothing));
    declarations_->hide();
}

void ScriptEditorWindow::buildText()
{
    text_ = named(new QPlainTextEdit(this), "Text1");
    QFont mono(QStringLiteral("Courier New"));
    mono.setStyleHint(QFont::Monospace);
    mono.setFixedPitch(true);
    text_->setFont(mono);
    text_->setLineWrapMode(QPlainTextEdit::NoWrap);
    // Tab is typed into the script, not used to leave it.
    text_->setTabChangesFocus(false);
    text_->installEventFilter(this);
}

void ScriptEditorWindow::buildNewProcedurePanel()
{
    newProcedure_ = named(new QGroupBox(this), "Frame1");
    auto* grid = new QGridLayout(newProcedure_);
    procedureName_ = named(new QLineEdit, "Text2");
    grid->addWidget(named(new QLabel(QStringLiteral("Nom :")), "Label1"), 0, 0);
    grid->addWidget(procedureName_, 0, 1, 1, 2);
    auto* type = named(new QGroupBox(QStringLiteral("Type")), "Frame2");
    auto* typeRow = new QVBoxLayout(type);
    function_ = named(new QRadioButton(QStringLiteral("Function")), "Option1");
    sub_ = named(new QRadioButton(QStringLiteral("Sub")), "Option2");
    typeRow->addWidget(function_);
    typeRow->addWidget(sub_);
    auto* scope = named(new QGroupBox(QStringLiteral("Portée")), "Frame3");
    auto* scopeRow = new QVBoxLayout(scope);
    private_ = named(new QRadioButton(QStringLiteral("Private")), "Option3");
    public_ = named(new QRadioButton(QStringLiteral("Public")), "Option4");
    scopeRow->addWidget(private_);
    scopeRow->addWidget(public_);
    grid->addWidget(type, 1, 0, 1, 2);
    grid->addWidget(scope, 1, 2);
    auto* confirm = named(new QPushButton(QStringLiteral("&Valider")), "Command4");
    auto* cancel = named(new QPushButton(QStringLiteral("Annuler")), "Command5");
    grid->addWidget(confirm, 2, 1);
    grid->addWidget(cancel, 2, 2);
    connect(confirm, &QPushButton::clicked, this, &ScriptEditorWindow::confirmNewProcedure);
    connect(procedureName_, &QLineEdit::returnPressed, this, &ScriptEditorWindow::confirmNewProcedure);
    connect(cancel, &QPushButton::clicked, newProcedure_, &QWidget::hide);
    newProcedure_->setAutoFillBackground(true);
    newProcedure_->hide();
}

void ScriptEditorWindow::buildOverlays()
{
    // Over the text's bottom right corner, so that blinking moves nothing.
    cursorPrompt_ = named(new QLabel(toQt(kCursorChoiceLabel), this), "Label3");
    cursorPrompt_->setCursor(Qt::PointingHandCursor);
    cursorPrompt_->setFrameShape(QFrame::Box);
    cursorPrompt_->setMargin(4);
    cursorPrompt_->setAutoFillBackground(true);
    cursorPrompt_->installEventFilter(this);
    cursorPrompt_->hide();
    notice_ = named(new QLabel(QStringLiteral("Veuillez patienter..."), this), "Label2");
    notice_->setAlignment(Qt::AlignCenter);
    notice_->setFrameShape(QFrame::Box);
    notice_->setAutoFillBackground(true);
    notice_->hide();
}

void ScriptEditorWindow::buildTimers()
{
    formatTimer_ = namedTimer(this, "Timer1", 10, true);
    blinkTimer_ = namedTimer(this, "Timer2", 800, false);
    procedureTimer_ = namedTimer(this, "Timer3", 10, true);
    connect(blinkTimer_, &QTimer::timeout, this, [this] { cursorPrompt_->setVisible(!cursorPrompt_->isVisible()); });
}

void ScriptEditorWindow::showProcedures(const QStringList& names, const QStringList& declarations)
{
    procedures_->clear();
    procedures_->addItem(inInterfaceLanguage(*hooks_, toQt(kProcedureListTitle)));
    procedures_->addItems(names);
    procedures_->setCurrentIndex(0);
    declarations_->clear();
    declarations_->addItem(toQt(kProcedureListNothing));
    declarations_->addItems(declarations);
}

void ScriptEditorWindow::showCursorPrompt(bool pending)
{
    cursorPrompt_->setVisible(pending);
    cursorPrompt_->raise();
    if (pending)
        blinkTimer_->start();
    else
        blinkTimer_->stop();
}

void ScriptEditorWindow::showWaitNotice(bool shown)
{
    notice_->setVisible(shown);
    if (shown)
        notice_->raise();
}

void ScriptEditorWindow::openNewProcedurePanel()
{
    sub_->setChecked(true);
    public_->setChecked(true);
    newProcedure_->show();
    newProcedure_->raise();
    procedureName_->setFocus();
}

void ScriptEditorWindow::confirmNewProcedure()
{
    emit newProcedureConfirmed(procedureName_->text(),
                               function_->isChecked() ? ProcedureKind::Function : ProcedureKind::Sub,
                               private_->isChecked() ? ProcedureScope::Private : ProcedureScope::Public);
}

void ScriptEditorWindow::newProcedureAdded(const QString& name)
{
    procedureName_->setText(name);
    newProcedure_->hide();
}

bool ScriptEditorWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == text_ && event->type() == QEvent::KeyPress && isPlainEnter(static_cast<QKeyEvent*>(event)))
        emit enterTyped();
    if (watched == text_ && event->type() == QEvent::KeyRelease && isF5Release(static_cast<QKeyEvent*>(event))) {
        emit testRunRequested();
        return true;
    }
    if (watched == cursorPrompt_ && event->type() == QEvent::MouseButtonPress) {
        cursors_->popup(QCursor::pos());
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ScriptEditorWindow::keyReleaseEvent(QKeyEvent* event)
{
    if (isF5Release(event))
        emit testRunRequested();
    else
        QWidget::keyReleaseEvent(event);
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
    placeOverlays();
}

// The panel and the notice stand in the middle of the text.
void ScriptEditorWindow::placeOverlays()
{
    const QRect area = text_->geometry();
    const QSize panel = newProcedure_->sizeHint();
    newProcedure_->setGeometry(QRect(area.center() - QPoint(panel.width() / 2, panel.height() / 2), panel));
    const QSize notice(std::min(area.width(), 300), std::min(area.height(), 60));
    notice_->setGeometry(QRect(area.center() - QPoint(notice.width() / 2, notice.height() / 2), notice));
    const QSize prompt = cursorPrompt_->sizeHint();
    cursorPrompt_->setGeometry(QRect(area.bottomRight() - QPoint(prompt.width() + 20, prompt.height() + 20), prompt));
}

}  // namespace qor

#include "editor/build/compile_dialog.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "editor/platform/colours.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/widget_names.h"
#include "editor/ui/run_time_texts.h"

namespace qor {

const char* const CompileDialog::kInstruction =
    "Indiquez ci-dessous votre répertoire 'à graver', dans lequel seront placés tous les fichiers à graver. Le "
    "fichier 'autorun.inf' et le dossier 'qor' devront être copié à la racine du CD-R (c'est à dire dans aucun "
    "dossier/sous dossier) :";

namespace {

// The progress bar counts in thousandths of the bytes to copy, whatever their total.
constexpr int kProgressSteps = 1000;

}  // namespace

CompileDialog::CompileDialog(BuildFlows& build, const CompileRequest& fields, const QString& iconPath,
                             WindowHooks& hooks, QWidget* parent)
    : QDialog(parent), build_(build)
{
    hooks_ = &hooks;
    setObjectName(QStringLiteral("Form6"));
    setWindowTitle(QStringLiteral("Création pour graver"));
    setAttribute(Qt::WA_DeleteOnClose, false);
    buildFields(fields, iconPath);
    runLoadHooks(*this, hooks);
}

void CompileDialog::buildFields(const CompileRequest& fields, const QString& iconPath)
{
    auto* layout = new QVBoxLayout(this);
    instruction_ = named(new QLabel(QString::fromUtf8(kInstruction)), "Label1");
    instruction_->setWordWrap(true);
    layout->addWidget(instruction_);

    auto* targetRow = new QHBoxLayout;
    target_ = named(new QLineEdit(toQt(fields.target)), "Text1");
    browse_ = named(new QPushButton(QStringLiteral("...")), "Command2");
    targetRow->addWidget(target_, 1);
    targetRow->addWidget(browse_);
    layout->addLayout(targetRow);

    auto* grid = new QGridLayout;
    name_ = named(new QLineEdit(toQt(fields.projectName)), "Text2");
    author_ = named(new QLineEdit(toQt(fields.author)), "Text3");
    subMenu_ = named(new QCheckBox(QStringLiteral("Sous menu    Nom :")), "Check2");
    subMenuName_ = named(new QLineEdit(toQt(fields.subMenuName)), "Text4");
    skipRuntime_ = named(new QCheckBox(QStringLiteral("Ne pas copier les fichiers 'RUNTIME'")), "Check1");
    help_ = named(new QLabel(QStringLiteral("[Infos]")), "Label6");
    help_->setCursor(Qt::PointingHandCursor);
    help_->installEventFilter(this);
    auto* icon = named(new QLabel, "Image1");
    icon->setPixmap(QPixmap(iconPath));
    grid->addWidget(named(new QLabel(QStringLiteral("Nom du projet :")), "Label4"), 0, 0);
    grid->addWidget(name_, 0, 1);
    grid->addWidget(icon, 0, 2, 2, 1);
    grid->addWidget(named(new QLabel(QStringLiteral("Auteur du projet :")), "Label5"), 1, 0);
    grid->addWidget(author_, 1, 1);
    grid->addWidget(subMenu_, 2, 0);
    grid->addWidget(subMenuName_, 2, 1);
    grid->addWidget(skipRuntime_, 3, 0, 1, 2);
    grid->addWidget(help_, 3, 2);
    layout->addLayout(grid);
    layout->addWidget(buildProgressFrame());
    validate_ = named(new QPushButton(QStringLiteral("&Valider")), "Command1");
    layout->addWidget(validate_);

    subMenu_->setChecked(fields.subMenu);
    skipRuntime_->setChecked(fields.skipRuntime);
    subMenuToggled(fields.subMenu);
    connect(subMenu_, &QCheckBox::toggled, this, &CompileDialog::subMenuToggled);
    connect(browse_, &QPushButton::clicked, this, [this] {
        if (auto folder = build_.browseTarget())
            target_->setText(toQt(*folder));
        target_->setFocus();
    });
    connect(validate_, &QPushButton::clicked, this, &CompileDialog::compile);
    resize(520, sizeHint().height());
}

QWidget* CompileDialog::buildProgressFrame()
{
    auto* frame = named(new QGroupBox(QStringLiteral("Progression")), "Frame1");
    auto* column = new QVBoxLayout(frame);
    status_ =
        named(new QLabel(inInterfaceLanguage(*hooks_, QStringLiteral("En attente de validation du répertoire..."))),
              "Label2");
    step_ = named(new QLabel, "Label3");
    progress_ = named(new QProgressBar, "ProgressBar1");
    progress_->setRange(0, kProgressSteps);
    progress_->setValue(0);
    column->addWidget(status_);
    column->addWidget(step_);
    column->addWidget(progress_);
    return frame;
}

CompileRequest CompileDialog::request() const
{
    CompileRequest r;
    r.target = fromQt(target_->text());
    r.projectName = fromQt(name_->text());
    r.author = fromQt(author_->text());
    r.subMenu = subMenu_->isChecked();
    r.subMenuName = fromQt(subMenuName_->text());
    r.skipRuntime = skipRuntime_->isChecked();
    return r;
}

void CompileDialog::subMenuToggled(bool ticked)
{
    const CompileFieldStates states = compileFieldStates(ticked);
    subMenuName_->setEnabled(states.subMenuNameEnabled);
    skipRuntime_->setEnabled(states.skipRuntimeEnabled);
}

void CompileDialog::compile()
{
    if (compiling_)
        return;
    compiling_ = true;
    (void)build_.compile(request(), *this);
    compiling_ = false;
}

bool CompileDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == help_ && event->type() == QEvent::MouseButtonRelease) {
        build_.showRuntimeHelp();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void CompileDialog::setTarget(const std::string& target)
{
    target_->setText(toQt(target));
}

void CompileDialog::setFieldsEnabled(bool enabled)
{
    for (QWidget* w : std::initializer_list<QWidget*>{validate_, target_, name_, author_, skipRuntime_})
        w->setEnabled(enabled);
}

void CompileDialog::setStatus(const std::string& text, Colour colour)
{
    status_->setText(inInterfaceLanguage(*hooks_, toQt(text)));
    status_->setStyleSheet(colour == kNormalColour ? QString()
                                                   : QStringLiteral("color: %1;").arg(
                                                         toQColor(colour, palette()).name()));
    repaintNow();
}

void CompileDialog::setStep(const std::string& text)
{
    step_->setText(inInterfaceLanguage(*hooks_, toQt(text)));
    repaintNow();
}

void CompileDialog::setProgress(std::uint64_t done, std::uint64_t total)
{
    const std::uint64_t part = total == 0 ? kProgressSteps : std::min(done, total) * kProgressSteps / total;
    progress_->setValue(int(part));
    repaintNow();
}

void CompileDialog::setInstruction(const std::string& text)
{
    instruction_->setText(inInterfaceLanguage(*hooks_, toQtLines(text)));
    repaintNow();
}

// The compilation runs on the interface thread: the dialog paints between
// its steps and chunks, and no click or key reaches any window meanwhile.
void CompileDialog::repaintNow()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace qor

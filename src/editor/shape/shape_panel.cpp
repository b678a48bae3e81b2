#include "editor/shape/shape_panel.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <iterator>

#include "core/shape/shape_flows.h"
#include "editor/platform/widget_names.h"

namespace qor {
namespace {

struct FrameRow {
    const char* caption;
    const char* name;
};

// "Edition" above "Spécial".
constexpr FrameRow kFrames[] = {{"Edition", "Frame1"}, {"Spécial", "Frame2"}};

// Each command in the panel's order, top to bottom, with its frame and
// control name.
struct CommandRow {
    ShapePanel::Command command;
    int frame;
    const char* caption;
    const char* name;
};

constexpr CommandRow kCommands[] = {
    {ShapePanel::Preview, 0, "Aperçu", "Command6"},   {ShapePanel::Restart, 0, "Recommencer", "Command1"},
    {ShapePanel::NoShape, 0, "Pas de forme", "Command2"}, {ShapePanel::Validate, 0, "Valider", "Command4"},
    {ShapePanel::Cancel, 0, "Annuler", "Command5"},   {ShapePanel::Load, 1, "Charger", "Command3"},
    {ShapePanel::Save, 1, "Sauver", "Command7"},
};

}  // namespace

ShapePanel::ShapePanel(WindowHooks& hooks)
    : QWidget(nullptr, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                           Qt::MSWindowsFixedSizeDialogHint)
{
    named(this, WindowId::ShapePanel);
    setWindowTitle(QStringLiteral("Forme"));
    auto* layout = new QVBoxLayout(this);
    QVBoxLayout* inner[std::size(kFrames)] = {};
    for (std::size_t f = 0; f < std::size(kFrames); ++f) {
        auto* frame = new QGroupBox(QString::fromUtf8(kFrames[f].caption), this);
        named(frame, kFrames[f].name);
        inner[f] = new QVBoxLayout(frame);
        layout->addWidget(frame);
    }
    for (const CommandRow& c : kCommands) {
        auto* button = new QPushButton(QString::fromUtf8(c.caption));
        named(button, c.name);
        inner[c.frame]->addWidget(button);
        commands_[c.command] = button;
        const Command which = c.command;
        connect(button, &QPushButton::clicked, this, [this, which] { run(which); });
    }
    layout->setSizeConstraint(QLayout::SetFixedSize);
    commands_[Preview]->setEnabled(false);
    runLoadHooks(*this, hooks);
}

void ShapePanel::setPreviewEnabled(bool enabled) { commands_[Preview]->setEnabled(enabled); }

void ShapePanel::run(Command c)
{
    if (!flows_)
        return;
    using Run = void (ShapeFlows::*)();
    static constexpr Run kRuns[kCommandCount] = {&ShapeFlows::preview, &ShapeFlows::restart, &ShapeFlows::noShape,
                                                 &ShapeFlows::validate, &ShapeFlows::cancel,  &ShapeFlows::load,
                                                 &ShapeFlows::save};
    (flows_->*kRuns[c])();
}

void ShapePanel::closeEvent(QCloseEvent* event)
{
    // Whatever closes the panel closes the editor; the flows then close
    // this window themselves, which comes back here with nothing left to do.
    if (flows_)
        flows_->close();
    event->accept();
}

}  // namespace qor

#include "editor/app/appearance_editor_panel.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "editor/app/main_window.h"
#include "editor/platform/colours.h"
#include "editor/platform/qt_text.h"
#include "editor/ui/appearance_frame.h"

namespace qor {
namespace {

// Clicks on a swatch label, as a button's clicks.
class ClickFilter : public QObject {
public:
    ClickFilter(QObject* parent, std::function<void()> clicked) : QObject(parent), clicked_(std::move(clicked)) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease) {
            clicked_();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> clicked_;
};

}  // namespace

AppearanceEditorPanel::AppearanceEditorPanel(MainWindow& main, AppearanceEditor& editor) : main_(main)
{
    main_.whenAppearanceFrameBuilt([this, &editor](AppearanceFrame& frame) { connectControls(frame, editor); });
}

void AppearanceEditorPanel::connectControls(AppearanceFrame& frame, AppearanceEditor& editor)
{
    const std::pair<const char*, void (AppearanceEditor::*)()> buttons[] = {
        {"Command1", &AppearanceEditor::load}, {"Command2", &AppearanceEditor::save},
        {"Command3", &AppearanceEditor::test}, {"Command4", &AppearanceEditor::close},
        {"Command5", &AppearanceEditor::pickFont},
    };
    for (const auto& [name, action] : buttons)
        if (auto* b = frame.findChild<QPushButton*>(QString::fromLatin1(name)))
            QObject::connect(b, &QPushButton::clicked, b, [&editor, action = action] { (editor.*action)(); });
    for (int i = 0; i < 3; ++i)
        frame.swatch(i)->installEventFilter(new ClickFilter(frame.swatch(i), [&editor, i] { editor.pickColour(i); }));
}

void AppearanceEditorPanel::setAppearanceEditorVisible(bool visible)
{
    main_.setAppearanceEditorVisible(visible);
}

void AppearanceEditorPanel::showAppearanceList(const std::vector<std::string>& names, int selected)
{
    QComboBox* list = main_.appearanceFrame()->appearanceList();
    list->clear();
    for (const auto& n : names)
        list->addItem(toQt(n));
    list->setCurrentIndex(selected);
}

int AppearanceEditorPanel::selectedAppearance() { return main_.appearanceFrame()->appearanceList()->currentIndex(); }

void AppearanceEditorPanel::showEditorFields(const Appearance& fields)
{
    fields_ = fields;
    AppearanceFrame* frame = main_.appearanceFrame();
    const Colour colours[3] = {fields.windowBack, fields.fieldBack, fields.textColor};
    for (int i = 0; i < 3; ++i) {
        QPalette p = frame->swatch(i)->palette();
        p.setColor(QPalette::Window, toQColor(colours[i], QApplication::palette()));
        frame->swatch(i)->setPalette(p);
    }
    if (auto* font = frame->findChild<QLineEdit*>(QStringLiteral("Text3")))
        font->setText(toQt(fields.font));
}

Appearance AppearanceEditorPanel::editorFields()
{
    Appearance a = fields_;
    if (auto* font = main_.appearanceFrame()->findChild<QLineEdit*>(QStringLiteral("Text3")))
        a.font = fromQt(font->text());
    return a;
}

std::string AppearanceEditorPanel::newAppearanceName()
{
    auto* name = main_.appearanceFrame()->findChild<QLineEdit*>(QStringLiteral("Text2"));
    return name ? fromQt(name->text()) : std::string();
}

void AppearanceEditorPanel::clearNewAppearanceName()
{
    if (auto* name = main_.appearanceFrame()->findChild<QLineEdit*>(QStringLiteral("Text2")))
        name->clear();
}

}  // namespace qor

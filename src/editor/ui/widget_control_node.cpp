#include "editor/ui/widget_control_node.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTextEdit>

#include "editor/platform/colours.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/widget_names.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

// The window a control shows in: menus pop up as windows of their own but
// belong to the window that owns them.
QWidget* owningWindow(QObject* o)
{
    for (; o; o = o->parent()) {
        auto* w = qobject_cast<QWidget*>(o);
        if (w && w->isWindow() && !qobject_cast<QMenu*>(w))
            return w;
    }
    return nullptr;
}

// The parts a toolkit builds inside a control (a text area's viewport and
// scroll bars, a combo box's line edit, a spin box's arrows) are not the
// window's controls: colouring them hides the control's own look, and
// changing their focus reaches the control itself through its focus proxy.
bool isToolkitPart(QObject* o, QWidget* window)
{
    if (o->objectName().startsWith(QLatin1String("qt_")))
        return true;
    for (QObject* p = o->parent(); p && p != window; p = p->parent()) {
        if (qobject_cast<QComboBox*>(p) || qobject_cast<QAbstractSpinBox*>(p) || qobject_cast<QTextEdit*>(p) ||
            qobject_cast<QPlainTextEdit*>(p) || qobject_cast<QAbstractItemView*>(p))
            return true;
        // A scroll area's bars sit in containers of its own; what it scrolls
        // (a panel and its controls) belongs to the window.
        if (qobject_cast<QScrollBar*>(o) && p->objectName().startsWith(QLatin1String("qt_scrollarea_")))
            return true;
    }
    return false;
}

// A submenu's command carries its menu's name; the menu stands for both.
bool isSubmenuCommand(QObject* o)
{
    auto* a = qobject_cast<QAction*>(o);
    return a && a->menu<QMenu*>();
}

}  // namespace

WidgetControlNode::WidgetControlNode(QObject* object, QWidget* window) : object_(object), window_(window) {}

std::unique_ptr<ControlNode> windowNode(QWidget& window)
{
    return std::make_unique<WidgetControlNode>(&window, &window);
}

std::string WidgetControlNode::typeName() const
{
    QObject* o = object_;
    if (o == window_.data()) return "Form";
    if (qobject_cast<QAction*>(o) || qobject_cast<QMenu*>(o)) return "Menu";
    if (qobject_cast<QRadioButton*>(o)) return "OptionButton";
    if (qobject_cast<QCheckBox*>(o)) return "CheckBox";
    if (qobject_cast<QAbstractButton*>(o)) return "CommandButton";
    if (qobject_cast<QLabel*>(o)) return "Label";
    if (qobject_cast<QLineEdit*>(o) || qobject_cast<QTextEdit*>(o) || qobject_cast<QPlainTextEdit*>(o)) return "TextBox";
    if (qobject_cast<QComboBox*>(o)) return "ComboBox";
    if (qobject_cast<QListWidget*>(o)) return "ListBox";
    if (qobject_cast<QGroupBox*>(o)) return "Frame";
    return "PictureBox";
}

std::string WidgetControlNode::name() const { return object_ ? fromQt(object_->objectName()) : std::string(); }

int WidgetControlNode::index() const { return object_ ? controlIndex(*object_) : -1; }

std::vector<QObject*> WidgetControlNode::windowControls() const
{
    std::vector<QObject*> found;
    if (!window_ || object_ != window_.data())
        return found;
    for (QObject* o : window_->findChildren<QObject*>()) {
        if ((qobject_cast<QWidget*>(o) || qobject_cast<QAction*>(o)) && owningWindow(o) == window_.data() &&
            !isSubmenuCommand(o) && !isToolkitPart(o, window_.data()))
            found.push_back(o);
    }
    return found;
}

std::vector<std::unique_ptr<ControlNode>> WidgetControlNode::controls(std::string_view name)
{
    if (!byName_) {
        if (auto* late = dynamic_cast<LateControls*>(window_.data()))
            late->buildLateControls();
        byName_.emplace();
        for (QObject* o : windowControls())
            if (!o->objectName().isEmpty())
                byName_->emplace(toLowerText(fromQt(o->objectName())), o);
    }
    std::vector<std::unique_ptr<ControlNode>> nodes;
    const auto [first, last] = byName_->equal_range(toLowerText(name));
    for (auto it = first; it != last; ++it)
        if (it->second)
            nodes.push_back(std::make_unique<WidgetControlNode>(it->second, window_));
    return nodes;
}

std::vector<std::unique_ptr<ControlNode>> WidgetControlNode::allControls()
{
    std::vector<std::unique_ptr<ControlNode>> nodes;
    for (QObject* o : windowControls())
        nodes.push_back(std::make_unique<WidgetControlNode>(o, window_));
    return nodes;
}

std::vector<std::unique_ptr<ControlNode>> WidgetControlNode::controlsWithin(const QObject& part)
{
    std::vector<std::unique_ptr<ControlNode>> nodes;
    for (QObject* o : windowControls()) {
        QObject* up = o;
        while (up && up != &part)
            up = up->parent();
        if (up)
            nodes.push_back(std::make_unique<WidgetControlNode>(o, window_));
    }
    return nodes;
}

std::optional<PropertyValue> WidgetControlNode::readText(ControlProperty property) const
{
    QObject* o = object_;
    auto* w = qobject_cast<QWidget*>(o);
    auto* a = qobject_cast<QAction*>(o);
    if (property == ControlProperty::Caption) {
        if (o == window_.data()) return fromQt(window_->windowTitle());
        if (a) return fromQt(a->text());
        if (auto* m = qobject_cast<QMenu*>(o)) return fromQt(m->title());
        if (auto* b = qobject_cast<QAbstractButton*>(o)) return fromQt(b->text());
        if (auto* l = qobject_cast<QLabel*>(o)) return fromQt(l->text());
        if (auto* g = qobject_cast<QGroupBox*>(o)) return fromQt(g->title());
        return std::nullopt;
    }
    if (property == ControlProperty::Text) {
        if (auto* e = qobject_cast<QLineEdit*>(o)) return fromQt(e->text());
        if (auto* e = qobject_cast<QTextEdit*>(o)) return fromQt(e->toPlainText());
        if (auto* e = qobject_cast<QPlainTextEdit*>(o)) return fromQt(e->toPlainText());
        if (auto* c = qobject_cast<QComboBox*>(o)) return fromQt(c->currentText());
        return std::nullopt;
    }
    if (property == ControlProperty::ToolTipText && (w || a))
        return fromQt(w ? w->toolTip() : a->toolTip());
    if (property == ControlProperty::Tag)
        return fromQt(o->property("Tag").toString());
    if (property == ControlProperty::FontName && w)
        return fromQt(w->font().family());
    return std::nullopt;
}

std::optional<PropertyValue> WidgetControlNode::read(ControlProperty property) const
{
    QObject* o = object_;
    if (!o)
        return std::nullopt;
    auto* w = qobject_cast<QWidget*>(o);
    auto* a = qobject_cast<QAction*>(o);
    switch (property) {
    case ControlProperty::Visible:
        if (w || a) return w ? !w->isHidden() : a->isVisible();
        return std::nullopt;
    case ControlProperty::Enabled:
        if (w || a) return w ? w->isEnabled() : a->isEnabled();
        return std::nullopt;
    case ControlProperty::TabStop:
        if (w) return (w->focusPolicy() & Qt::TabFocus) != 0;
        return std::nullopt;
    case ControlProperty::BackColor:
        if (w) return std::int64_t(std::uint32_t(fromQColor(w->palette().color(w->backgroundRole()))));
        return std::nullopt;
    case ControlProperty::ForeColor:
        if (w) return std::int64_t(std::uint32_t(fromQColor(w->palette().color(w->foregroundRole()))));
        return std::nullopt;
    default:
        return readText(property);
    }
}

bool WidgetControlNode::writeText(ControlProperty property, const QString& text)
{
    QObject* o = object_;
    auto* w = qobject_cast<QWidget*>(o);
    auto* a = qobject_cast<QAction*>(o);
    if (property == ControlProperty::Caption) {
        if (o == window_.data()) window_->setWindowTitle(text);
        else if (a) a->setText(text);
        else if (auto* m = qobject_cast<QMenu*>(o)) m->setTitle(text);
        else if (auto* b = qobject_cast<QAbstractButton*>(o)) b->setText(text);
        else if (auto* l = qobject_cast<QLabel*>(o)) l->setText(text);
        else if (auto* g = qobject_cast<QGroupBox*>(o)) g->setTitle(text);
        else return false;
        return true;
    }
    if (property == ControlProperty::Text) {
        if (auto* e = qobject_cast<QLineEdit*>(o)) e->setText(text);
        else if (auto* e = qobject_cast<QTextEdit*>(o)) e->setPlainText(text);
        else if (auto* e = qobject_cast<QPlainTextEdit*>(o)) e->setPlainText(text);
        else if (auto* c = qobject_cast<QComboBox*>(o); c && c->isEditable()) c->setEditText(text);
        else return false;
        return true;
    }
    if (property == ControlProperty::ToolTipText && (w || a)) {
        w ? w->setToolTip(text) : a->setToolTip(text);
        return true;
    }
    if (property == ControlProperty::Tag) {
        o->setProperty("Tag", text);
        return true;
    }
    if (property == ControlProperty::FontName && w) {
        // Setting a font, even the same one, makes the widget and its
        // children work their fonts out again: only a change is made.
        if (w->font().family() != text) {
            QFont f = w->font();
            f.setFamily(text);
            w->setFont(f);
        }
        return true;
    }
    return false;
}

bool WidgetControlNode::writeColour(ControlProperty property, std::int64_t colour)
{
    auto* w = qobject_cast<QWidget*>(object_.data());
    if (!w || qobject_cast<QMenu*>(w))
        return false;
    // System colours come from the style's own palette, not from one an
    // earlier appearance changed.
    const QColor c = toQColor(Colour(std::uint32_t(colour)), QApplication::palette(w));
    QPalette p = w->palette();
    if (property == ControlProperty::BackColor) {
        for (auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
            p.setColor(role, c);
        w->setAutoFillBackground(true);
    } else {
        // The disabled state keeps the style's greyed text, so a command
        // that cannot be used looks it under every appearance.
        for (auto group : {QPalette::Active, QPalette::Inactive})
            for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
                p.setColor(group, role, c);
    }
    // The same colours again (the default appearance on the style's own
    // palette): nothing to repaint or hand down to the children.
    if (p != w->palette())
        w->setPalette(p);
    return true;
}

bool WidgetControlNode::write(ControlProperty property, const PropertyValue& value)
{
    QObject* o = object_;
    if (!o)
        return false;
    auto* w = qobject_cast<QWidget*>(o);
    auto* a = qobject_cast<QAction*>(o);
    if (const auto* text = std::get_if<std::string>(&value))
        return writeText(property, toQt(*text));
    if (const auto* n = std::get_if<std::int64_t>(&value))
        return (property == ControlProperty::BackColor || property == ControlProperty::ForeColor) &&
               writeColour(property, *n);
    const bool on = std::get<bool>(value);
    switch (property) {
    case ControlProperty::Visible:
        if (w) w->setVisible(on);
        else if (a) a->setVisible(on);
        return w || a;
    case ControlProperty::Enabled:
        if (w) w->setEnabled(on);
        else if (a) a->setEnabled(on);
        return w || a;
    case ControlProperty::TabStop:
        if (!w || w == window_.data()) return false;
        // Only the Tab key's part of the policy: a click still gives the
        // focus, and the caret, to a field.
        w->setFocusPolicy(on ? Qt::FocusPolicy(w->focusPolicy() | Qt::TabFocus)
                             : Qt::FocusPolicy(w->focusPolicy() & ~Qt::TabFocus));
        return true;
    default:
        return false;
    }
}

bool WidgetControlNode::addItem(const std::string& text)
{
    if (auto* c = qobject_cast<QComboBox*>(object_.data())) c->addItem(toQt(text));
    else if (auto* l = qobject_cast<QListWidget*>(object_.data())) l->addItem(toQt(text));
    else return false;
    return true;
}

bool WidgetControlNode::clearItems()
{
    if (auto* c = qobject_cast<QComboBox*>(object_.data())) c->clear();
    else if (auto* l = qobject_cast<QListWidget*>(object_.data())) l->clear();
    else return false;
    return true;
}

}  // namespace qor

#pragma once

// Typing as a person does it: a click into the field first, then the keys
// go wherever the focus went. A field that a click cannot focus gets
// nothing, as it would under a person's hands.

#include <QAbstractScrollArea>
#include <QApplication>
#include <QTest>
#include <QWidget>

namespace qor::test {

// Clicks the field (a text area's visible page, not its frame) and hands
// back the widget that holds the focus afterwards, or null.
inline QWidget* clickInto(QWidget* field)
{
    QWidget* window = field->window();
    if (!window->isVisible())
        window->show();
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window))
        return nullptr;
    QWidget* target = field;
    if (auto* area = qobject_cast<QAbstractScrollArea*>(field))
        target = area->viewport();
    QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(target->width() - 4, target->height() - 4));
    return QApplication::focusWidget();
}

// Clicks the field, then types the text where the focus is. False when
// the click left the focus somewhere else than the field.
[[nodiscard]] inline bool typeInto(QWidget* field, const QString& text)
{
    QWidget* focus = clickInto(field);
    if (focus != field)
        return false;
    QTest::keyClicks(focus, text);
    return true;
}

// More text where the focus is, after a first typeInto.
inline void typeHere(const QString& text)
{
    if (QWidget* focus = QApplication::focusWidget())
        QTest::keyClicks(focus, text);
}

// One key where the focus is (Return, Tab, a shortcut), after the text.
inline void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    if (QWidget* focus = QApplication::focusWidget())
        QTest::keyClick(focus, key, modifiers);
}

}  // namespace qor::test

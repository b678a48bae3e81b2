#include "editor/designer/panel_controls.h"

#include <QGridLayout>
#include <QLabel>

#include "editor/platform/colours.h"
#include "editor/platform/widget_names.h"

namespace qor {

QPushButton* makeCommand(QWidget* parent, const QString& caption, const QString& name)
{
    auto* b = named(new QPushButton(caption, parent), name);
    b->setAutoDefault(false);
    return b;
}

PathRow addPathRow(QGridLayout& grid, int row, const QString& caption, const QString& name, bool withClear)
{
    QWidget* parent = grid.parentWidget();
    PathRow r;
    grid.addWidget(new QLabel(caption, parent), row, 0, 1, 3);
    r.field = named(new QLineEdit(parent), name);
    r.field->setReadOnly(true);
    grid.addWidget(r.field, row + 1, 0);
    r.browse = makeCommand(parent, QStringLiteral("..."), name + QStringLiteral("_parcourir"));
    r.browse->setFixedWidth(24);
    grid.addWidget(r.browse, row + 1, 1);
    if (withClear) {
        r.clear = makeCommand(parent, QStringLiteral("X"), name + QStringLiteral("_effacer"));
        r.clear->setFixedWidth(24);
        grid.addWidget(r.clear, row + 1, 2);
    }
    return r;
}

QPushButton* makeSwatch(QWidget* parent, const QString& name)
{
    auto* s = makeCommand(parent, QString(), name);
    s->setFlat(true);
    s->setAutoFillBackground(true);
    s->setFixedSize(40, 18);
    return s;
}

void showSwatchColour(QPushButton& swatch, Colour colour)
{
    QPalette p = swatch.palette();
    p.setColor(QPalette::Button, toQColor(colour, p));
    p.setColor(QPalette::Window, toQColor(colour, p));
    swatch.setPalette(p);
    swatch.setProperty("colour", colour);
}

}  // namespace qor

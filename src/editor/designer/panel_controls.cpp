#include "editor/designer/panel_controls.h"

#include <QGridLayout>
#include <QHBoxLayout>
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

QPushButton* makeSmallCommand(QWidget* parent, const QString& caption, const QString& name)
{
    auto* b = makeCommand(parent, caption, name);
    b->setFixedWidth(b->fontMetrics().horizontalAdvance(caption) + 14);
    return b;
}

QLabel* makeLabel(QWidget* parent, const QString& caption, const QString& name)
{
    return named(new QLabel(caption, parent), name);
}

QLabel* makeCaption(QWidget* parent, const QString& caption, const QString& name)
{
    auto* label = makeLabel(parent, caption, name);
    label->setWordWrap(true);
    return label;
}

// "Check_plein" -> "Label_plein", "Text_fond" -> "Label_fond".
QString captionName(const QString& controlName, const QString& prefix)
{
    return QStringLiteral("Label") + controlName.mid(prefix.size());
}

namespace {

// A caption that passes its clicks to a check box.
class BoxCaption : public QLabel {
public:
    BoxCaption(const QString& caption, QCheckBox* box) : QLabel(caption, box->parentWidget()), box_(box)
    {
        setWordWrap(true);
    }

protected:
    void mouseReleaseEvent(QMouseEvent*) override
    {
        if (box_->isEnabled())
            box_->click();
    }

private:
    QCheckBox* box_;
};

}  // namespace

QCheckBox* addWrappedBox(QGridLayout& grid, int row, const QString& caption, const QString& name)
{
    auto* box = named(new QCheckBox(grid.parentWidget()), name);
    auto* line = new QHBoxLayout;
    line->setSpacing(2);
    line->addWidget(box, 0, Qt::AlignTop);
    line->addWidget(named(new BoxCaption(caption, box), captionName(name, QStringLiteral("Check"))), 1);
    grid.addLayout(line, row, 0, 1, 3);
    return box;
}

PathRow addPathRow(QGridLayout& grid, int row, const QString& caption, const QString& name, bool withClear)
{
    QWidget* parent = grid.parentWidget();
    PathRow r;
    grid.addWidget(makeLabel(parent, caption, captionName(name, QStringLiteral("Text"))), row, 0, 1, 3);
    r.field = named(new QLineEdit(parent), name);
    r.field->setReadOnly(true);
    grid.addWidget(r.field, row + 1, 0);
    r.browse = makeSmallCommand(parent, QStringLiteral("..."), name + QStringLiteral("_parcourir"));
    grid.addWidget(r.browse, row + 1, 1);
    if (withClear) {
        r.clear = makeSmallCommand(parent, QStringLiteral("X"), name + QStringLiteral("_effacer"));
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
    // A swatch shows the project's colour whatever the appearance.
    s->setProperty("Tag", QStringLiteral("N_DESIGN"));
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

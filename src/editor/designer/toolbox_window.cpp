#include "editor/designer/toolbox_window.h"

#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"

namespace qor {

ToolboxWindow::ToolboxWindow(const ScreenMetrics& screen, WindowHooks& hooks)
{
    named(this, WindowId::Toolbox);
    setWindowTitle(QStringLiteral("Objets"));

    struct Group {
        const char* caption;
        const char* name;
        std::vector<const char*> commands;
    };
    const Group groups[] = {
        {"Boutons", "Frame1", {"Multimédia", "Quitter", "Code VBS"}},
        {"Boîte de texte", "Frame2", {"Créer"}},
        {"Forme du menu", "Frame3", {"Editeur", "Transparence"}},
    };
    auto* layout = new QVBoxLayout(this);
    int n = 0;
    for (const auto& g : groups) {
        auto* box = new QGroupBox(QString::fromUtf8(g.caption), this);
        named(box, g.name);
        auto* inner = new QVBoxLayout(box);
        for (const char* caption : g.commands) {
            auto* button = new QPushButton(QString::fromUtf8(caption), box);
            named(button, QStringLiteral("Command%1").arg(n + 1));
            inner->addWidget(button);
            commands_[n++] = button;
        }
        layout->addWidget(box);
    }
    // A column as narrow and short as its commands allow, beside the worksheet,
    // and wide enough for the window system to show its title in full.
    setFixedSize(std::max(sizeHint().width(), twipsToPixels(2400, screen.twipsPerPixelX)),
                 sizeHint().height());
    runLoadHooks(*this, hooks);
}

}  // namespace qor

#include <QApplication>
#include <QMainWindow>

#include "core/product.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QString::fromStdString("QOR v" + qor::product::versionText() + " - créateur de menus"));
    window.resize(640, 60);
    window.show();
    return app.exec();
}

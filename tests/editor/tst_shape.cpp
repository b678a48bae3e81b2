// The shape editor as a user drives it: "Editeur" in the toolbox, a
// triangle drawn with the mouse, "Aperçu", "Sauver", "Charger",
// "Valider", then the project saved with its shape block. The dialogs are
// scripted; the windows are the real ones.

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "editor/app/main_window.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/shape/shape_panel.h"
#include "editor/shape/shape_surface.h"
#include "editor/ui/mouse_position_window.h"
#include "editor_session.h"

using namespace qor;
using qor::test::Session;

namespace {

void sendMouse(QWidget* w, QEvent::Type type, QPoint pos, Qt::MouseButton button, Qt::MouseButtons held)
{
    QMouseEvent e(type, QPointF(pos), QPointF(w->mapToGlobal(pos)), button, held, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

void click(QWidget* w, QPoint pos, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(w, QEvent::MouseMove, pos, Qt::NoButton, Qt::NoButton);
    sendMouse(w, QEvent::MouseButtonPress, pos, button, button);
    sendMouse(w, QEvent::MouseButtonRelease, pos, button, Qt::NoButton);
}

// The four windows the editor hides while it is open.
QList<QWidget*> hiddenWhileOpen(Session& s)
{
    return {&s.windows().toolbox(), &s.windows().main(), &s.windows().properties(), &s.windows().mousePosition()};
}

void openEditor(Session& s)
{
    QTest::mouseClick(s.windows().toolbox().command(int(ToolboxCommand::ShapeEditor)), Qt::LeftButton);
}

}  // namespace

class TestShape : public QObject {
    Q_OBJECT
private slots:
    void openingLaysTheSurfaceOverTheWorksheet();
    void aTriangleDrawnPreviewedSavedLoadedAndValidated();
    void closingThePanelByItsBoxRestoresEverything();
    void aPreviewOfTwoPointsShowsNothingOfTheSurface();
};

void TestShape::openingLaysTheSurfaceOverTheWorksheet()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    s.core().project().shapePoints = {{150, 150}, {1500, 150}, {150, 1500}, {150, 150}};
    const QPoint toolboxPlace = s.windows().toolbox().pos();
    WorksheetWindow& sheet = s.windows().worksheet();
    const QPoint sheetOrigin = sheet.mapToGlobal(QPoint(0, 0));
    openEditor(s);

    for (QWidget* w : hiddenWhileOpen(s))
        QVERIFY2(!w->isVisible(), qPrintable(w->objectName()));
    QVERIFY(sheet.isMinimized());
    ShapeSurface* surface = s.editor->shapeView().surface();
    ShapePanel* panel = s.editor->shapeView().panel();
    QVERIFY(surface && surface->isVisible() && panel && panel->isVisible());
    QCOMPARE(surface->objectName(), QStringLiteral("Form16"));
    QCOMPARE(panel->objectName(), QStringLiteral("Form17"));
    QVERIFY(surface->windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(surface->pos(), sheetOrigin);
    QCOMPARE(surface->size(), sheet.size());
    QCOMPARE(panel->pos(), toolboxPlace);
    QCOMPARE(panel->windowTitle(), QStringLiteral("Forme"));
    QCOMPARE(surface->hint()->text(), QStringLiteral("Bouton droit pour fermer le polygone"));

    // Both frames in order, the commands in theirs, only "Aperçu" disabled.
    const auto frames = panel->findChildren<QGroupBox*>();
    QCOMPARE(frames.size(), 2);
    QCOMPARE(frames[0]->title(), QStringLiteral("Edition"));
    QCOMPARE(frames[1]->title(), QStringLiteral("Spécial"));
    QVERIFY(frames[0]->y() < frames[1]->y());
    const QStringList captions{"Aperçu", "Recommencer", "Pas de forme", "Valider", "Annuler", "Charger", "Sauver"};
    const QStringList names{"Command6", "Command1", "Command2", "Command4", "Command5", "Command3", "Command7"};
    int lastY = -1;
    for (int i = 0; i < ShapePanel::kCommandCount; ++i) {
        QPushButton* b = panel->command(ShapePanel::Command(i));
        QCOMPARE(b->text(), captions[i]);
        QCOMPARE(b->objectName(), names[i]);
        QCOMPARE(b->isEnabled(), i != ShapePanel::Preview);
        const int y = b->mapTo(panel, QPoint(0, 0)).y();
        QVERIFY(y > lastY);
        lastY = y;
    }

    // The old shape's edges in RGB(192, 0, 0): the top edge runs along y = 10 px.
    const QImage shown = surface->grab().toImage();
    QCOMPARE(shown.pixel(50, 10), ShapeSurface::kOldEdgeColour);
    QVERIFY(shown.pixel(50, 50) != ShapeSurface::kOldEdgeColour);
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestShape::aTriangleDrawnPreviewedSavedLoadedAndValidated()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    openEditor(s);
    ShapeSurface* surface = s.editor->shapeView().surface();
    ShapePanel* panel = s.editor->shapeView().panel();
    QVERIFY(surface && panel);

    // Three clicks and a right click; 20 px is 300 twips at 15 twips a pixel.
    click(surface, {20, 20});
    click(surface, {200, 30});
    click(surface, {30, 200});
    QVERIFY(!panel->command(ShapePanel::Preview)->isEnabled());
    QCOMPARE(panel->command(ShapePanel::Load)->isEnabled(), true);
    click(surface, {100, 100}, Qt::RightButton);
    QVERIFY(panel->command(ShapePanel::Preview)->isEnabled());
    const ShapePoints drawn{{300, 300}, {3000, 450}, {450, 3000}, {300, 300}};
    QCOMPARE(s.core().shapeEditor().editor().points(), drawn);

    // "Aperçu": the surface keeps the triangle's inside only.
    QTest::mouseClick(panel->command(ShapePanel::Preview), Qt::LeftButton);
    QVERIFY(!panel->command(ShapePanel::Preview)->isEnabled());
    const QRegion mask = surface->mask();
    QVERIFY(mask.contains(QPoint(40, 40)));
    QVERIFY(!mask.contains(QPoint(150, 150)));
    QVERIFY(!mask.contains(QPoint(5, 5)));

    // "Sauver", byte for byte, under the name given.
    const std::string folder = s.folder("formes");
    s.dialogs.saveAnswers = {folder + "triangle"};
    QTest::mouseClick(panel->command(ShapePanel::Save), Qt::LeftButton);
    const std::string saved =
        "[FormeMenu]\r\nX=300\r\nY=300\r\nX=3000\r\nY=450\r\nX=450\r\nY=3000\r\nX=300\r\nY=300\r\n[/FormeMenu]\r\n";
    QCOMPARE(readFileBytes(folder + "triangle").value(), saved);

    // "Charger" of a hidden file replaces the working list.
    const std::string hidden = Session::write(folder + ".carre.ffl",
                                              "[FormeMenu]\r\nX=0\r\nY=0\r\nX=1500\r\nY=0\r\nX=1500\r\nY=1500\r\n"
                                              "X=0\r\nY=1500\r\nX=0\r\nY=0\r\n[/FormeMenu]\r\n");
    s.dialogs.openAnswers = {hidden};
    QTest::mouseClick(panel->command(ShapePanel::Load), Qt::LeftButton);
    QVERIFY(panel->command(ShapePanel::Preview)->isEnabled());
    QCOMPARE(s.core().shapeEditor().editor().points().size(), std::size_t(5));

    // "Valider": the project takes it, the editor's windows go, the others come back.
    QTest::mouseClick(panel->command(ShapePanel::Validate), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!s.editor->shapeView().surface());
    for (QWidget* w : hiddenWhileOpen(s))
        QVERIFY2(w->isVisible(), qPrintable(w->objectName()));
    QVERIFY(!s.windows().worksheet().isMinimized());

    // The project saved carries the block.
    s.dialogs.saveAnswers = {folder + "menu.qor"};
    s.trigger(CommandId::SaveAs);
    const std::string project = readFileBytes(folder + "menu.qor").value();
    QVERIFY(project.find("[FormeMenu]\r\nX=0\r\nY=0\r\nX=1500\r\nY=0\r\nX=1500\r\nY=1500\r\nX=0\r\nY=1500\r\nX=0\r\n"
                         "Y=0\r\n[/FormeMenu]\r\n") != std::string::npos);
    QVERIFY(s.dialogs.unexpected.isEmpty());
    QVERIFY(s.dialogs.messages.empty());
}

void TestShape::closingThePanelByItsBoxRestoresEverything()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    const ShapePoints kept{{15, 15}, {300, 15}, {15, 300}, {15, 15}};
    s.core().project().shapePoints = kept;
    openEditor(s);
    ShapeSurface* surface = s.editor->shapeView().surface();
    click(surface, {20, 20});
    click(surface, {60, 20});
    s.editor->shapeView().panel()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!s.core().shapeEditor().isOpen());
    QVERIFY(!s.editor->shapeView().panel());
    for (QWidget* w : hiddenWhileOpen(s))
        QVERIFY2(w->isVisible(), qPrintable(w->objectName()));
    QCOMPARE(s.core().project().shapePoints, kept);
    // A new opening starts empty.
    openEditor(s);
    QCOMPARE(s.core().shapeEditor().editor().state(), ShapeState::Empty);
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestShape::aPreviewOfTwoPointsShowsNothingOfTheSurface()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    openEditor(s);
    ShapeSurface* surface = s.editor->shapeView().surface();
    ShapePanel* panel = s.editor->shapeView().panel();
    click(surface, {20, 20});
    click(surface, {120, 80});
    click(surface, {0, 0}, Qt::RightButton);
    QTest::mouseClick(panel->command(ShapePanel::Preview), Qt::LeftButton);
    QVERIFY(!surface->mask().isEmpty());
    QVERIFY(surface->mask().intersected(surface->rect()).isEmpty());
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

QTEST_MAIN(TestShape)
#include "tst_shape.moc"

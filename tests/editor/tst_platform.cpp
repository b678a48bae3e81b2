#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QFontDialog>
#include <QTest>

#include "editor/platform/colours.h"
#include "editor/platform/desktop_file_type_registry.h"
#include "editor/platform/file_filter.h"
#include "editor/platform/qt_desktop.h"
#include "editor/platform/qt_dialog_language.h"
#include "editor/platform/qt_dialogs.h"
#include "editor/platform/qt_settings_store.h"
#include "editor/platform/text_editor_choice.h"
#include "editor/platform/twips.h"

using namespace qor;

Q_DECLARE_METATYPE(qor::Colour)

class TestPlatform : public QObject {
    Q_OBJECT

private slots:
    void fileFilters_data();
    void fileFilters();

    void plainColours_data();
    void plainColours();
    void systemColoursComeFromThePalette_data();
    void systemColoursComeFromThePalette();

    void twips_data();
    void twips();
    void widgetGeometryInTwips();

    void messageBoxes_data();
    void messageBoxes();
    void systemModalMessageStaysOnTop();
    void messageTextIsPlainWithLineFeeds();
    void fileDialogs();
    void fontDialogKeepsWhatWasNotChanged_data();
    void fontDialogKeepsWhatWasNotChanged();

    void settingsRoundTrip();
    void settingsKeysIgnoreLetterCase();
    void settingsGeneralIsTheFilesGeneralSection();
    void settingsThatCannotBeWritten();
    void settingsReachTheDiskTogether();

    void textEditorChoice_data();
    void textEditorChoice();
    void mimeappsDefaults_data();
    void mimeappsDefaults();
    void desktopExecLines_data();
    void desktopExecLines();
    void targetsBecomeUrls_data();
    void targetsBecomeUrls();
    void startedProgramIsFollowedUntilTerminated();
    void emptyCommandLineStartsNothing();

    void desktopExecArguments_data();
    void desktopExecArguments();
    void fileTypeRegistration();
    void fileTypeRegistrationWithoutTools();
    void fileTypeRegistrationWhereNothingCanBeWritten();
};

// ---- file filters ----------------------------------------------------------

void TestPlatform::fileFilters_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("project, no blanks")
        << QStringLiteral("Fichier QOR v1.0/v1.1 (*.qor)|*.qor|Fichier QMB ou compatible (*.qmb)|*.qmb")
        << QStringList{QStringLiteral("Fichier QOR v1.0/v1.1 (*.qor)"),
                       QStringLiteral("Fichier QMB ou compatible (*.qmb)")};
    QTest::newRow("blanks around the bars")
        << QStringLiteral("Fichier QOR v1.1 (*.qor) | *.qor")
        << QStringList{QStringLiteral("Fichier QOR v1.1 (*.qor)")};
    QTest::newRow("several patterns")
        << QStringLiteral("Son *.wav, *.mp3, *.mid, *.aif, *.wma | *.wav;*.mp3;*.mid;*.aif;*.wma")
        << QStringList{QStringLiteral("Son *.wav, *.mp3, *.mid, *.aif, *.wma (*.wav *.mp3 *.mid *.aif *.wma)")};
    QTest::newRow("description whose parentheses differ from the patterns")
        << QStringLiteral("Images (toutes) | *.jpg;*.gif")
        << QStringList{QStringLiteral("Images (*.jpg *.gif)")};
    QTest::newRow("lone description matches everything")
        << QStringLiteral("Image *.bmp | *.bmp | Tous")
        << QStringList{QStringLiteral("Image *.bmp (*.bmp)"), QStringLiteral("Tous (*)")};
    QTest::newRow("empty patterns") << QStringLiteral("Tout | ;") << QStringList{QStringLiteral("Tout (*)")};
    QTest::newRow("empty filter") << QString() << QStringList{};
}

void TestPlatform::fileFilters()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, expected);
    QCOMPARE(qtNameFilters(filter.toStdString()), expected);
}

// ---- colours ---------------------------------------------------------------

void TestPlatform::plainColours_data()
{
    QTest::addColumn<qor::Colour>("colour");
    QTest::addColumn<QColor>("qt");
    // 0x00BBGGRR: red is the low byte.
    QTest::newRow("red") << qor::Colour(0x0000FF) << QColor(255, 0, 0);
    QTest::newRow("blue") << qor::Colour(0xFF0000) << QColor(0, 0, 255);
    QTest::newRow("Bleu appearance") << qor::Colour(16755370) << QColor(0xAA, 0xAA, 0xFF);
    QTest::newRow("Sombre field") << qor::Colour(2208689) << QColor(0xB1, 0xB3, 0x21);
    QTest::newRow("black") << qor::Colour(0) << QColor(0, 0, 0);
    QTest::newRow("white") << qor::Colour(0xFFFFFF) << QColor(255, 255, 255);
}

void TestPlatform::plainColours()
{
    QFETCH(qor::Colour, colour);
    QFETCH(QColor, qt);
    QCOMPARE(toQColor(colour, QPalette()), qt);
    QCOMPARE(fromQColor(qt), colour);
}

void TestPlatform::systemColoursComeFromThePalette_data()
{
    QTest::addColumn<qor::Colour>("colour");
    QTest::addColumn<int>("role");
    // The options file stores them as negative numbers.
    QTest::newRow("15 button face") << qor::Colour(-2147483633) << int(QPalette::Button);
    QTest::newRow("5 window") << qor::Colour(-2147483643) << int(QPalette::Base);
    QTest::newRow("18 button text") << qor::Colour(-2147483630) << int(QPalette::ButtonText);
    QTest::newRow("8 window text") << qor::Colour(0x80000008) << int(QPalette::Text);
    QTest::newRow("13 highlight") << qor::Colour(0x8000000D) << int(QPalette::Highlight);
    QTest::newRow("unknown number") << qor::Colour(0x800000FF) << int(QPalette::Window);
}

void TestPlatform::systemColoursComeFromThePalette()
{
    QFETCH(qor::Colour, colour);
    QFETCH(int, role);
    // A palette whose every role has its own colour tells the roles apart.
    QPalette palette;
    for (int r = 0; r < QPalette::NColorRoles; ++r)
        palette.setColor(QPalette::Active, QPalette::ColorRole(r), QColor(r * 9, 255 - r * 9, r));
    QVERIFY(isSystemColour(colour));
    QCOMPARE(toQColor(colour, palette), palette.color(QPalette::Active, QPalette::ColorRole(role)));
}

// ---- twips -----------------------------------------------------------------

void TestPlatform::twips_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<double>("dpiX");
    QTest::addColumn<double>("dpiY");
    QTest::addColumn<double>("tppX");
    QTest::addColumn<double>("tppY");
    QTest::addColumn<double>("widthTwips");
    QTest::addColumn<double>("heightTwips");
    QTest::newRow("ordinary 96 dpi") << QSize(1024, 768) << 96.0 << 96.0 << 15.0 << 15.0 << 15360.0 << 11520.0;
    QTest::newRow("120 dpi") << QSize(800, 600) << 120.0 << 120.0 << 12.0 << 12.0 << 9600.0 << 7200.0;
    QTest::newRow("axes differ") << QSize(640, 480) << 144.0 << 72.0 << 10.0 << 20.0 << 6400.0 << 9600.0;
    QTest::newRow("no dpi reported") << QSize(100, 100) << 0.0 << -1.0 << 15.0 << 15.0 << 1500.0 << 1500.0;
}

void TestPlatform::twips()
{
    QFETCH(QSize, pixels);
    QFETCH(double, dpiX);
    QFETCH(double, dpiY);
    QFETCH(double, tppX);
    QFETCH(double, tppY);
    QFETCH(double, widthTwips);
    QFETCH(double, heightTwips);
    const ScreenMetrics m = screenMetricsOf(pixels, dpiX, dpiY);
    QCOMPARE(m.twipsPerPixelX, tppX);
    QCOMPARE(m.twipsPerPixelY, tppY);
    QCOMPARE(m.widthTwips, widthTwips);
    QCOMPARE(m.heightTwips, heightTwips);
    QCOMPARE(m.widthPixels(), double(pixels.width()));
}

void TestPlatform::widgetGeometryInTwips()
{
    const ScreenMetrics screen = screenMetricsOf(QSize(1280, 1024), 96, 144);   // 15 and 10 twips
    QWidget w;
    setGeometryTwips(w, {1500, 1000, 9000, 7200}, screen);
    QCOMPARE(w.pos(), QPoint(100, 100));
    QCOMPARE(w.size(), QSize(600, 720));
    QCOMPARE(geometryTwips(w, screen), (TwipsRect{1500, 1000, 9000, 7200}));
    // Twips that fall between pixels go to the nearest one.
    resizeTwips(w, 7, 4, screen);
    QCOMPARE(w.size(), QSize(0, 0));
    resizeTwips(w, 8, 6, screen);
    QCOMPARE(w.size(), QSize(1, 1));
}

// ---- dialogs ---------------------------------------------------------------

void TestPlatform::messageBoxes_data()
{
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("defaultButton");
    QTest::addColumn<int>("qtIcon");
    QTest::addColumn<QStringList>("buttonTexts");
    QTest::addColumn<QString>("defaultText");
    QTest::newRow("error, OK") << int(MessageIcon::Critical) << int(MessageButtons::Ok) << 0
                               << int(QMessageBox::Critical) << QStringList{"OK"} << "OK";
    QTest::newRow("refusal") << int(MessageIcon::Exclamation) << int(MessageButtons::Ok) << 0
                             << int(QMessageBox::Warning) << QStringList{"OK"} << "OK";
    QTest::newRow("result") << int(MessageIcon::Information) << int(MessageButtons::Ok) << 0
                            << int(QMessageBox::Information) << QStringList{"OK"} << "OK";
    QTest::newRow("question, No by default") << int(MessageIcon::Question) << int(MessageButtons::YesNo) << 1
                                             << int(QMessageBox::Question) << QStringList{"Oui", "Non"} << "Non";
    QTest::newRow("save question") << int(MessageIcon::Question) << int(MessageButtons::YesNoCancel) << 2
                                   << int(QMessageBox::Question) << QStringList{"Oui", "Non", "Annuler"}
                                   << "Annuler";
    QTest::newRow("no icon, OK/Cancel") << int(MessageIcon::None) << int(MessageButtons::OkCancel) << 0
                                        << int(QMessageBox::NoIcon) << QStringList{"OK", "Annuler"} << "OK";
    QTest::newRow("default out of range") << int(MessageIcon::Question) << int(MessageButtons::YesNo) << 5
                                          << int(QMessageBox::Question) << QStringList{"Oui", "Non"} << "Oui";
}

void TestPlatform::messageBoxes()
{
    QFETCH(int, icon);
    QFETCH(int, buttons);
    QFETCH(int, defaultButton);
    QFETCH(int, qtIcon);
    QFETCH(QStringList, buttonTexts);
    QFETCH(QString, defaultText);
    // The captions are Qt's, in the interface language: French here.
    QtDialogLanguage french;
    french.follow("");
    if (!french.french())
        QSKIP("Qt's French translations (qt6-translations-l10n) are not installed");
    Message m{"Texte", "Titre", MessageIcon(icon), MessageButtons(buttons), defaultButton, false};
    auto box = buildMessageBox(m, nullptr);
    QCOMPARE(box->windowTitle(), QStringLiteral("Titre"));
    QCOMPARE(int(box->icon()), qtIcon);
    QStringList texts;
    for (QAbstractButton* b : box->buttons())
        texts << b->text();
    texts.sort();
    buttonTexts.sort();
    QCOMPARE(texts, buttonTexts);
    QVERIFY(box->defaultButton());
    QCOMPARE(box->defaultButton()->text(), defaultText);
    QVERIFY(!box->windowFlags().testFlag(Qt::WindowStaysOnTopHint));

    // Each button answers what it says.
    for (QAbstractButton* b : box->buttons()) {
        const Answer a = answerOf(box->standardButton(b));
        const QString t = b->text();
        QCOMPARE(a, t == "Oui" ? Answer::Yes : t == "Non" ? Answer::No : t == "Annuler" ? Answer::Cancel : Answer::Ok);
    }
}

void TestPlatform::fontDialogKeepsWhatWasNotChanged_data()
{
    // What the user did in the dialog started on "MS Sans Serif" 8.25.
    QTest::addColumn<QString>("family");  // empty: the family the dialog showed
    QTest::addColumn<double>("size");     // 0: the size the dialog showed
    QTest::addColumn<bool>("bold");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("keptSize");
    QTest::newRow("confirmed unchanged") << QString() << 0.0 << false << "MS Sans Serif" << 8.25;
    QTest::newRow("bold only") << QString() << 0.0 << true << "MS Sans Serif" << 8.25;
    QTest::newRow("bigger") << QString() << 12.0 << false << "MS Sans Serif" << 12.0;
    QTest::newRow("another family") << "Courier New" << 0.0 << false << "Courier New" << 8.25;
}

void TestPlatform::fontDialogKeepsWhatWasNotChanged()
{
    QFETCH(QString, family);
    QFETCH(double, size);
    QFETCH(bool, bold);
    QFETCH(QString, name);
    QFETCH(double, keptSize);
    const FontChoice asked{"MS Sans Serif", 8.25, false, false, false, false};
    // The dialog shows a family and size of its own for a font this system lacks.
    QFontDialog dialog(toQFont(asked));
    const QFont shown = dialog.currentFont();
    QFont chosen = shown;
    if (!family.isEmpty())
        chosen.setFamily(family);
    if (size > 0)
        chosen.setPointSizeF(size);
    chosen.setBold(bold);
    const FontChoice kept = changedFont(asked, shown, chosen);
    QCOMPARE(QString::fromStdString(kept.name), name);
    QCOMPARE(kept.size, keptSize);
    QCOMPARE(kept.bold, bold);
}

void TestPlatform::systemModalMessageStaysOnTop()
{
    QWidget owner;
    Message m{"Enregistrer ?", "QOR", MessageIcon::Question, MessageButtons::YesNoCancel, 0, true};
    auto box = buildMessageBox(m, &owner);
    QCOMPARE(box->windowModality(), Qt::ApplicationModal);
    QVERIFY(box->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    m.systemModal = false;
    auto plain = buildMessageBox(m, &owner);
    QCOMPARE(plain->windowModality(), Qt::WindowModal);
}

void TestPlatform::messageTextIsPlainWithLineFeeds()
{
    Message m{"Lien QOR <-> Manuel\r\n\r\n<b>ok</b>", "t", MessageIcon::Information};
    auto box = buildMessageBox(m, nullptr);
    QCOMPARE(box->textFormat(), Qt::PlainText);
    QCOMPARE(box->text(), QStringLiteral("Lien QOR <-> Manuel\n\n<b>ok</b>"));
}

void TestPlatform::fileDialogs()
{
    QTemporaryDir dir;
    FileDialogRequest request{"&Ouvrir", "Fichier QOR v1.0/v1.1 (*.qor)|*.qor|Fichier QMB ou compatible (*.qmb)|*.qmb",
                              dir.path().toStdString(), ""};
    QFileDialog open;
    configureFileDialog(open, request, false);
    QCOMPARE(open.windowTitle(), QStringLiteral("&Ouvrir"));
    QCOMPARE(open.acceptMode(), QFileDialog::AcceptOpen);
    QCOMPARE(open.fileMode(), QFileDialog::ExistingFile);
    QCOMPARE(open.nameFilters().size(), 2);
    QCOMPARE(QDir(open.directory()).canonicalPath(), QDir(dir.path()).canonicalPath());

    request.title = "Enregistrer &Sous";
    request.initialName = "menu";
    QFileDialog save;
    configureFileDialog(save, request, true);
    QCOMPARE(save.acceptMode(), QFileDialog::AcceptSave);
    // The name is kept as typed: no extension added, no replace question.
    QVERIFY(save.defaultSuffix().isEmpty());
    QVERIFY(save.testOption(QFileDialog::DontConfirmOverwrite));

    // No folder: the process's current folder.
    QFileDialog current;
    configureFileDialog(current, FileDialogRequest{"t", "", "", ""}, false);
    QCOMPARE(QDir(current.directory()).canonicalPath(), QDir::current().canonicalPath());
}

// ---- settings store --------------------------------------------------------

void TestPlatform::settingsRoundTrip()
{
    QTemporaryDir dir;
    QtSettingsStore store(dir.path());
    QCOMPARE(store.get("QOR", "Manuel", "Chemin", "défaut"), std::string("défaut"));
    QVERIFY(store.save("QOR", "Manuel", "Chemin", "/home/é/manuel/"));
    QVERIFY(store.save("QOR", "FichiersRecents", "Fichier1", "/a b/c.qor"));
    QVERIFY(store.save("QOR", "Manuel", "FoisDem", "2"));
    // Read back before they reach the disk.
    QCOMPARE(store.get("QOR", "Manuel", "FoisDem", ""), std::string("2"));
    QVERIFY(store.flush());
    // A second store on the same folder (the next start) reads them back.
    QtSettingsStore later(dir.path());
    QCOMPARE(later.get("QOR", "Manuel", "Chemin", ""), std::string("/home/é/manuel/"));
    QCOMPARE(later.get("QOR", "FichiersRecents", "Fichier1", ""), std::string("/a b/c.qor"));
    QCOMPARE(later.get("QOR", "Manuel", "FoisDem", ""), std::string("2"));
    QCOMPARE(later.get("QOR", "FichiersRecents", "Fichier2", "<none>"), std::string("<none>"));
    // An emptied value is a value, not the default.
    QVERIFY(later.save("QOR", "Manuel", "Chemin", ""));
    QCOMPARE(store.get("QOR", "Manuel", "Chemin", "défaut"), std::string());
    // Applications are kept apart.
    QCOMPARE(store.get("Autre", "Manuel", "FoisDem", "0"), std::string("0"));
    QCOMPARE(store.fileName("QOR"), QDir(dir.path()).filePath("QOR.ini"));
}

void TestPlatform::settingsKeysIgnoreLetterCase()
{
    QTemporaryDir dir;
    QtSettingsStore store(dir.path());
    QVERIFY(store.save("QOR", "General", "Langue", "English"));
    QCOMPARE(store.get("QOR", "General", "langue", ""), std::string("English"));
    QCOMPARE(store.get("QOR", "general", "LANGUE", ""), std::string("English"));
    // Writing under another spelling replaces the value, it does not add a key.
    QVERIFY(store.save("QOR", "General", "langue", ""));
    QCOMPARE(store.get("QOR", "General", "Langue", "x"), std::string());
    QVERIFY(store.save("QOR", "manuel", "chemin", "/m/"));
    QCOMPARE(store.get("QOR", "Manuel", "Chemin", ""), std::string("/m/"));
    QVERIFY(store.flush());
    QSettings raw(store.fileName("QOR"), QSettings::IniFormat);
    QCOMPARE(raw.childKeys(), QStringList{"Langue"});
}

void TestPlatform::settingsGeneralIsTheFilesGeneralSection()
{
    QTemporaryDir dir;
    QtSettingsStore store(dir.path());
    QVERIFY(store.save("QOR", "General", "Version", "2.0"));
    QVERIFY(store.save("QOR", "Manuel", "FoisDem", "1"));
    QVERIFY(store.flush());
    QFile file(store.fileName("QOR"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY2(text.contains("[General]\nVersion=2.0"), qPrintable(text));
    QVERIFY2(text.contains("[Manuel]\nFoisDem=1"), qPrintable(text));
}

void TestPlatform::settingsThatCannotBeWritten()
{
    QTemporaryDir dir;
    // The settings file's place is taken by a folder: nothing can be written.
    QVERIFY(QDir(dir.path()).mkdir("QOR.ini"));
    QtSettingsStore store(dir.path());
    QVERIFY(!store.save("QOR", "Manuel", "Chemin", "/m/"));
    QCOMPARE(store.get("QOR", "Manuel", "Chemin", "défaut"), std::string("défaut"));
}

void TestPlatform::settingsReachTheDiskTogether()
{
    QTemporaryDir dir;
    const QString file = QDir(dir.path()).filePath("QOR.ini");
    {
        QtSettingsStore store(dir.path());
        QVERIFY(store.save("QOR", "General", "DernHeure", "10:00:00"));
        QVERIFY(store.save("QOR", "General", "DernDate", "23/11/2026"));
        // One write for the burst, a moment later: not at the event loop's
        // next turn, which paints the windows of a start.
        QCoreApplication::processEvents();
        QVERIFY(!QFile::exists(file));
        QTRY_VERIFY(QFile::exists(file));
        QCOMPARE(QtSettingsStore(dir.path()).get("QOR", "General", "DernDate", ""), std::string("23/11/2026"));
        // A value saved just before the store goes is not lost.
        QVERIFY(store.save("QOR", "Manuel", "FoisDem", "3"));
    }
    QCOMPARE(QtSettingsStore(dir.path()).get("QOR", "Manuel", "FoisDem", ""), std::string("3"));
}

// ---- desktop ---------------------------------------------------------------

void TestPlatform::textEditorChoice_data()
{
    QTest::addColumn<QStringList>("onPath");
    QTest::addColumn<QString>("defaultExec");
    QTest::addColumn<QString>("expectedProgram");
    QTest::addColumn<QStringList>("expectedArguments");
    const QString f = QStringLiteral("/p/menu.qor");
    QTest::newRow("first of the list wins") << QStringList{"mousepad", "gedit"} << "kwrite %U"
                                            << "/usr/bin/gedit" << QStringList{f};
    QTest::newRow("only one installed") << QStringList{"geany"} << "" << "/usr/bin/geany" << QStringList{f};
    QTest::newRow("none: default for plain text") << QStringList{} << "featherpad --standalone %F"
                                                  << "featherpad" << QStringList{"--standalone", f};
    QTest::newRow("default is QOR itself") << QStringList{} << "/opt/qor/qor %f" << "" << QStringList{};
    QTest::newRow("default is the running editor") << QStringList{} << "/work/self/editor %f" << ""
                                                   << QStringList{};
    QTest::newRow("nothing at all") << QStringList{} << "" << "" << QStringList{};
    QTest::newRow("unknown programs are ignored") << QStringList{"vim", "emacs"} << "" << "" << QStringList{};
}

void TestPlatform::textEditorChoice()
{
    QFETCH(QStringList, onPath);
    QFETCH(QString, defaultExec);
    QFETCH(QString, expectedProgram);
    QFETCH(QStringList, expectedArguments);
    TextEditorEnvironment env;
    env.findExecutable = [&](const QString& name) {
        return onPath.contains(name) ? QStringLiteral("/usr/bin/") + name : QString();
    };
    env.defaultTextEditorExec = [&] { return defaultExec; };
    env.ownExecutable = QStringLiteral("/work/self/editor");
    const auto call = chooseTextEditor(QStringLiteral("/p/menu.qor"), env);
    if (expectedProgram.isEmpty()) {
        QVERIFY(!call.has_value());
        return;
    }
    QVERIFY(call.has_value());
    QCOMPARE(call->program, expectedProgram);
    QCOMPARE(call->arguments, expectedArguments);
}

void TestPlatform::mimeappsDefaults_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("entries");
    const QString user = QStringLiteral("[Default Applications]\ntext/plain=mousepad.desktop;\n");
    const QString system = QStringLiteral("[Default Applications]\ntext/html=firefox.desktop\n"
                                          "text/plain=gedit.desktop;vim.desktop\n");
    const QString added = QStringLiteral("[Added Associations]\ntext/plain=geany.desktop;gedit.desktop;\n");
    QTest::newRow("none") << QStringList{} << QStringList{};
    QTest::newRow("the user's file first") << QStringList{user, system}
                                           << QStringList{"mousepad.desktop", "gedit.desktop", "vim.desktop"};
    QTest::newRow("added associations after every default") << QStringList{added, system}
                                                            << QStringList{"gedit.desktop", "vim.desktop", "geany.desktop"};
    QTest::newRow("other types and groups ignored")
        << QStringList{QStringLiteral("[Removed Associations]\ntext/plain=kate.desktop\n"
                                      "[Default Applications]\ntext/plainx=a.desktop\n text/plain = b.desktop ; \n")}
        << QStringList{"b.desktop"};
}

void TestPlatform::mimeappsDefaults()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, entries);
    QCOMPARE(desktopEntriesFor(QStringLiteral("text/plain"), files), entries);
}

void TestPlatform::desktopExecLines_data()
{
    QTest::addColumn<QString>("exec");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    const QString f = QStringLiteral("/a b/c.qor");
    QTest::newRow("file code") << "gedit %U" << "gedit" << QStringList{f};
    QTest::newRow("no file code: file last") << "mousepad" << "mousepad" << QStringList{f};
    QTest::newRow("other codes dropped") << "kate -b %i %c %k %F" << "kate" << QStringList{"-b", f};
    QTest::newRow("percent sign kept") << "ed --width=50%% %f" << "ed" << QStringList{"--width=50%", f};
    QTest::newRow("quoted program") << "\"/opt/my editor/ed\" %f" << "/opt/my editor/ed" << QStringList{f};
    QTest::newRow("two file codes give the file once") << "x %f %u" << "x" << QStringList{f};
    QTest::newRow("empty") << "" << "" << QStringList{};
}

void TestPlatform::desktopExecLines()
{
    QFETCH(QString, exec);
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    const auto call = callFromDesktopExec(exec, QStringLiteral("/a b/c.qor"));
    if (program.isEmpty()) {
        QVERIFY(!call.has_value());
        return;
    }
    QVERIFY(call.has_value());
    QCOMPARE(call->program, program);
    QCOMPARE(call->arguments, arguments);
}

void TestPlatform::targetsBecomeUrls_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("url");
    const QString cwd = QDir::currentPath();
    QTest::newRow("web page") << "http://www.qor.example.org/page.php?ext=php&q=faq"
                              << "http://www.qor.example.org/page.php?ext=php&q=faq";
    QTest::newRow("bug report keeps %20 and accents")
        << "http://x.org/br.php?bug=bouton%20ne%20marche%20pas%20é"
        << "http://x.org/br.php?bug=bouton%20ne%20marche%20pas%20%C3%A9";
    QTest::newRow("mail") << "mailto:contact@qor.example.org" << "mailto:contact@qor.example.org";
    QTest::newRow("relative file") << "index.htm"
                                   << QUrl::fromLocalFile(cwd + "/index.htm").toString(QUrl::FullyEncoded);
    QTest::newRow("absolute file") << "/tmp/a b.htm" << "file:///tmp/a%20b.htm";
    QTest::newRow("windows separators") << "doc\\manuel.htm"
                                        << QUrl::fromLocalFile(cwd + "/doc/manuel.htm").toString(QUrl::FullyEncoded);
}

void TestPlatform::targetsBecomeUrls()
{
    QFETCH(QString, target);
    QFETCH(QString, url);
    QCOMPARE(urlOfTarget(target.toStdString()).toString(QUrl::FullyEncoded), url);
}

void TestPlatform::startedProgramIsFollowedUntilTerminated()
{
    QtDesktop desktop;
    const auto pid = desktop.start("sleep 30", WindowShow::Normal);
    QVERIFY(pid.has_value());
    QVERIFY(desktop.isRunning(*pid));
    desktop.terminate(*pid);
    QTRY_VERIFY_WITH_TIMEOUT(!desktop.isRunning(*pid), 5000);

    const auto quick = desktop.start("true", WindowShow::Minimised);
    QVERIFY(quick.has_value());
    QTRY_VERIFY_WITH_TIMEOUT(!desktop.isRunning(*quick), 5000);
}

void TestPlatform::emptyCommandLineStartsNothing()
{
    QtDesktop desktop;
    QVERIFY(!desktop.start("   ", WindowShow::Normal).has_value());
    QVERIFY(!desktop.start("/no/such/program-qor", WindowShow::Normal).has_value());
    QVERIFY(!desktop.isRunning(0));
    QVERIFY(!desktop.open("  ", WindowShow::Normal));
    // No editor anywhere: nothing is started and the caller hears so.
    desktop.textEditorEnvironment().findExecutable = [](const QString&) { return QString(); };
    desktop.textEditorEnvironment().defaultTextEditorExec = [] { return QString(); };
    QVERIFY(!desktop.editText("/tmp/x.qor"));
}

// ---- file type registration -----------------------------------------------

void TestPlatform::desktopExecArguments_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("written");
    QTest::newRow("plain") << "/opt/qor/qor" << "\"/opt/qor/qor\"";
    QTest::newRow("blanks and accents") << "/home/zoé/mes programmes/qor" << "\"/home/zoé/mes programmes/qor\"";
    QTest::newRow("percent: not a field code") << "/a/100%/qor" << "\"/a/100%%/qor\"";
    QTest::newRow("dollar") << "/a/$HOME/qor" << "\"/a/\\\\$HOME/qor\"";
    QTest::newRow("back quote") << "/a/`x`/qor" << "\"/a/\\\\`x\\\\`/qor\"";
    QTest::newRow("double quote") << "/a/\"q\"/qor" << "\"/a/\\\\\"q\\\\\"/qor\"";
    QTest::newRow("backslash") << "/a\\b/qor" << "\"/a\\\\\\\\b/qor\"";
}

void TestPlatform::desktopExecArguments()
{
    QFETCH(QString, path);
    QFETCH(QString, written);
    QCOMPARE(desktopExecArgument(path), written);
}

void TestPlatform::fileTypeRegistration()
{
    QTemporaryDir data;
    DesktopFileTypeRegistry registry(data.path());
    QStringList started;
    registry.findProgram = [](const QString& program) { return "/usr/bin/" + program; };
    registry.startProgram = [&](const QString& program, const QStringList& arguments) {
        started << program + " " + arguments.join(' ');
    };
    registry.registerProjectFiles("/opt/mes outils/qor", "Source d'un menu QOR & <autres>");

    QCOMPARE(registry.mimePackageFile(), data.filePath("mime/packages/application-x-qor.xml"));
    QFile mime(registry.mimePackageFile());
    QVERIFY(mime.open(QIODevice::ReadOnly));
    const QString xml = QString::fromUtf8(mime.readAll());
    QVERIFY2(xml.contains("<mime-type type=\"application/x-qor\">"), qPrintable(xml));
    QVERIFY2(xml.contains("<glob pattern=\"*.qor\"/>"), qPrintable(xml));
    // The description is text, not markup.
    QVERIFY2(xml.contains("<comment>Source d'un menu QOR &amp; &lt;autres&gt;</comment>"), qPrintable(xml));

    QCOMPARE(registry.desktopEntryFile(), data.filePath("applications/qor.desktop"));
    QFile entry(registry.desktopEntryFile());
    QVERIFY(entry.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(entry.readAll()).split('\n');
    QCOMPARE(lines.first(), QStringLiteral("[Desktop Entry]"));
    QVERIFY(lines.contains("Type=Application"));
    QVERIFY(lines.contains("Exec=\"/opt/mes outils/qor\" %f"));
    QVERIFY(lines.contains("MimeType=application/x-qor;"));

    QCOMPARE(started, (QStringList{"/usr/bin/update-mime-database " + data.filePath("mime"),
                                   "/usr/bin/update-desktop-database " + data.filePath("applications")}));

    // A second registration replaces the files, it does not add to them.
    registry.registerProjectFiles("/usr/local/bin/qor", "Source d'un menu QOR");
    entry.close();
    QVERIFY(entry.open(QIODevice::ReadOnly));
    const QString again = QString::fromUtf8(entry.readAll());
    QVERIFY(again.contains("Exec=\"/usr/local/bin/qor\" %f"));
    QCOMPARE(again.count("[Desktop Entry]"), 1);
}

void TestPlatform::fileTypeRegistrationWithoutTools()
{
    QTemporaryDir data;
    DesktopFileTypeRegistry registry(data.path());
    QStringList started;
    registry.findProgram = [](const QString&) { return QString(); };
    registry.startProgram = [&](const QString& program, const QStringList&) { started << program; };
    registry.registerProjectFiles("/opt/qor/qor", "Source d'un menu QOR");
    QVERIFY(QFile::exists(registry.mimePackageFile()));
    QVERIFY(QFile::exists(registry.desktopEntryFile()));
    QVERIFY(started.isEmpty());
}

void TestPlatform::fileTypeRegistrationWhereNothingCanBeWritten()
{
    QTemporaryDir dir;
    QFile blocker(dir.filePath("fichier"));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    DesktopFileTypeRegistry registry(dir.filePath("fichier/data"));
    QStringList started;
    registry.findProgram = [](const QString& program) { return "/usr/bin/" + program; };
    registry.startProgram = [&](const QString& program, const QStringList&) { started << program; };
    // Best effort: nothing written, nothing refreshed, nothing reported.
    registry.registerProjectFiles("/opt/qor/qor", "Source d'un menu QOR");
    QVERIFY(!QFile::exists(registry.mimePackageFile()));
    QVERIFY(started.isEmpty());
}

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"

// The German translation as the console loads it: the embedded file answers in every
// context, the menus come up German with one accelerator per letter, and the source file
// holds no entry left unfinished.

#include "app/app.h"
#include "support/emulated_host.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

class tst_German : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void textsComeBackGerman_data();
    void textsComeBackGerman();
    void menusAreGermanWithOneAcceleratorPerLetter();
    void sourceFileHasNoUnfinishedEntry();

private:
    QTemporaryDir m_dir;
    QTranslator m_translator;
};

void tst_German::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    Q_INIT_RESOURCE(translations);
    QVERIFY(m_dir.isValid());
    QStandardPaths::setTestModeEnabled(true);
    qputenv("TMPDIR", QFile::encodeName(m_dir.path()));
    QCoreApplication::setApplicationName(QStringLiteral("StrataKeep"));
    QCoreApplication::setOrganizationName(QStringLiteral("VOR-test"));
    // Each suite keeps its settings in its own folder: suites run side by side.
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_dir.path());
    QSettings().clear();

    const QString path = SK_TranslationPath(QStringLiteral("German"), QStringLiteral("de"));
    QVERIFY2(m_translator.load(path), qPrintable(path));
    QVERIFY(QCoreApplication::installTranslator(&m_translator));
}

void tst_German::cleanupTestCase()
{
    QCoreApplication::removeTranslator(&m_translator);
}

void tst_German::textsComeBackGerman_data()
{
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("german");

    QTest::newRow("menu entry") << QByteArray("SK_MainWindow") << QByteArray("&Create")
                                << "&Erstellen";
    QTest::newRow("submenu") << QByteArray("SK_MainWindow") << QByteArray("Check Consistency")
                             << "Konsistenzprüfung";
    // Words the code looks up at run time, so the extraction only sees them through markers.
    QTest::newRow("driver state in the window")
        << QByteArray("SK_MainWindow") << QByteArray("READY") << "BEREIT";
    QTest::newRow("driver state in the delete list")
        << QByteArray("SK_DeleteForm") << QByteArray("CRITICAL") << "KRITISCH";
    QTest::newRow("task in the priority dialog")
        << QByteArray("SK_TaskPriorityDialog") << QByteArray("TIER MOVE") << "TIER-VERSCHIEBUNG";
    QTest::newRow("column shared by the disk lists")
        << QByteArray("SK_initDisksDialog") << QByteArray("Free Space") << "Freier Speicher";
    QTest::newRow("form text") << QByteArray("SK_diskSpareDialog")
                               << QByteArray("Assign as Global Spare")
                               << "Als globales Ersatzlaufwerk zuweisen";
    QTest::newRow("question") << QByteArray("SK_CreateDialog") << QByteArray("Confirm Create")
                              << "Erstellen bestätigen";
    QTest::newRow("fragment keeps its blank")
        << QByteArray("SK_TieringDialog") << QByteArray("Array ") << "Array ";
    QTest::newRow("placeholders kept")
        << QByteArray("SK_MainWindow") << QByteArray("Restart %1 and change language to %2?")
        << "%1 neu starten und die Sprache auf %2 umstellen?";
    QTest::newRow("start-up message")
        << QByteArray("main") << QByteArray("The Application is already running.")
        << "Die Anwendung wird bereits ausgeführt.";
    QTest::newRow("controller column")
        << QByteArray("sk_ControllerProperties") << QByteArray("Slot") << "Steckplatz";
}

void tst_German::textsComeBackGerman()
{
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, source);
    QFETCH(QString, german);
    QCOMPARE(QCoreApplication::translate(context.constData(), source.constData()), german);
}

void tst_German::menusAreGermanWithOneAcceleratorPerLetter()
{
    EmulatedHostScope host;
    SK_MainWindow window;
    QCOMPARE(SK_MainWindow::tr("&Disk"), QStringLiteral("Daten&träger"));

    QStringList titles;
    QList<QMenu *> menus;
    for (QAction *entry : window.menuBar()->actions()) {
        titles << entry->text();
        if (entry->menu())
            menus << entry->menu();
    }
    QCOMPARE(titles, QStringList({QStringLiteral("&Datei"), QStringLiteral("&Array"),
                                  QStringLiteral("Daten&träger"), QStringLiteral("A&nsicht"),
                                  QStringLiteral("&Hilfe")}));

    const auto accelerator = [](const QString &text) {
        const int at = text.indexOf(QLatin1Char('&'));
        return at < 0 || at + 1 >= text.size() ? QChar() : text.at(at + 1).toLower();
    };
    QCOMPARE(menus.size(), 5);
    while (!menus.isEmpty()) {
        QMenu *menu = menus.takeFirst();
        QHash<QChar, QString> taken;
        for (QAction *entry : menu->actions()) {
            if (entry->isSeparator())
                continue;
            if (entry->menu())
                menus << entry->menu();
            const QChar key = accelerator(entry->text());
            if (key.isNull())
                continue;
            QVERIFY2(!taken.contains(key),
                     qPrintable(menu->title() + QStringLiteral(": ") + taken.value(key) +
                                QStringLiteral(", ") + entry->text()));
            taken.insert(key, entry->text());
        }
    }
}

void tst_German::sourceFileHasNoUnfinishedEntry()
{
    const QString path = QFINDTESTDATA("../../resources/translations/StrataPanel2_German_de.ts");
    QFile file(path);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));

    QXmlStreamReader xml(&file);
    int messages = 0;
    QStringList open;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("message")) {
            ++messages;
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const bool unfinished = !xml.attributes().value(QStringLiteral("type")).isEmpty();
            if (unfinished || xml.readElementText().isEmpty())
                open << source;
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(messages > 400);
    QVERIFY2(open.isEmpty(), qPrintable(open.join(QStringLiteral(" | "))));
}

QTEST_MAIN(tst_German)
#include "tst_german.moc"

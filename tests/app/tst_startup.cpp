#include "app/app.h"
#include "support/emulated_host.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QTreeWidget>
#include <QtTest>

class tst_Startup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void versionTextLiesBetweenItsMarkers();
    void everyLanguageHasItsResource();
    void eventLanguage_data();
    void eventLanguage();
    void languageReachesTheWindow_data();
    void languageReachesTheWindow();
    void secondCopyIsRefusedWithoutAWindow();

private:
    QTemporaryDir m_settingsDir;
    QTemporaryDir m_runtimeDir;
};

void tst_Startup::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    Q_INIT_RESOURCE(translations);
    QVERIFY(m_settingsDir.isValid() && m_runtimeDir.isValid());
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtimeDir.path()));
    // The window's log files land in the temporary folder.
    qputenv("TMPDIR", QFile::encodeName(m_runtimeDir.path()));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsDir.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settingsDir.path());
    SK_SetApplicationIdentity();
}

void tst_Startup::init()
{
    QSettings().clear();
}

void tst_Startup::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_Startup::versionTextLiesBetweenItsMarkers()
{
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("StrataKeep"));
    QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("VOR"));
    QCOMPARE(QCoreApplication::applicationVersion(), QStringLiteral("9.3.3-00097"));
    // The three strings follow each other, each with its terminator.
    QCOMPARE(QByteArray(SK_VersionText - 8, 8), QByteArray("SKBNBGN\0", 8));
    QCOMPARE(QByteArray(SK_VersionText + 12, 8), QByteArray("SKBNEND\0", 8));
}

void tst_Startup::everyLanguageHasItsResource()
{
    const auto &resources = SK_LanguageResources();
    QCOMPARE(resources.size(), 36);
    for (const auto &language : resources) {
        const QString path = SK_TranslationPath(QString::fromLatin1(language.fileWord),
                                                QString::fromLatin1(language.code));
        QVERIFY2(QFile::exists(path), qPrintable(path));
        QTranslator translator;
        QVERIFY2(translator.load(path), qPrintable(path));
    }
}

// The languages languageReachesTheWindow doesn't see in the event view.
void tst_Startup::eventLanguage_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("number");
    QTest::newRow("Swedish") << "sv_SE" << 12;
    QTest::newRow("Arabic") << "ar" << 13;
    QTest::newRow("Hong Kong Chinese") << "zh_HK" << 22;
    QTest::newRow("Norwegian") << "no" << 26;
    QTest::newRow("Ukrainian") << "uk_UA" << 35;
    QTest::newRow("empty") << "" << 0;
}

void tst_Startup::eventLanguage()
{
    QFETCH(QString, code);
    QFETCH(int, number);
    QCOMPARE(SK_EventLanguage(code), number);
}

// A start-up: the language code stored before (none if empty), the system's locale, the
// code stored after, the translation file installed (none if empty) and the text of
// the critical array's event in the window.
static void startUpRow(const char *name, const char *stored, const char *locale, const char *after,
                       const char *resource, const QString &critical)
{
    QTest::newRow(name) << QString(stored) << QString(locale) << QString(after)
                        << (*resource ? QString(resource) : QString()) << critical;
}

void tst_Startup::languageReachesTheWindow_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("systemLocale");
    QTest::addColumn<QString>("storedAfter");
    QTest::addColumn<QString>("resource");
    QTest::addColumn<QString>("criticalText");

    const QString english = QStringLiteral("- Array 2 has gone critical.");
    const QString german = QStringLiteral("- Array 2 ist in den kritischen Zustand gewechselt.");
    const char *germanFile = "StrataPanel2_German_de.qm";
    startUpRow("stored German", "de", "en_US", "de", germanFile, german);
    startUpRow("first run on a German system", "", "de", "de", germanFile, german);
    startUpRow("first run with a hyphenated locale runs in English", "", "de_AT", "en", "",
               english);
    startUpRow("first run in Danish has no plain file", "", "da_DK", "en", "", english);
    startUpRow("unknown stored code runs in English", "xx", "de", "xx", "", english);
    startUpRow("stored French", "fr", "de", "fr", "StrataPanel2_French_fr.qm",
               QStringLiteral("- La grappe 2 est passée à l'état critique."));
    startUpRow("stored Danish: an empty translation, Danish events", "da_DK", "de", "da_DK",
               "StrataPanel2_Danish_da_DK.qm", QStringLiteral("- Array 2 er blevet kritisk."));
    startUpRow("stored Simplified Chinese: no file, yet Chinese events", "zh_CN", "de", "zh_CN", "",
               QStringLiteral("- 阵列 2 已进入临界状态。"));
    startUpRow("stored Traditional Chinese: no file either, its own events", "zh_TW", "de", "zh_TW",
               "", QStringLiteral("- 陣列 2 已進入嚴重狀態。"));
}

// The start-up as the console runs it, up to the window: the translation chosen from
// the settings or the system locale, then the window on a fresh emulated host, whose
// event view takes its language from the same setting.
void tst_Startup::languageReachesTheWindow()
{
    QFETCH(QString, stored);
    QFETCH(QString, systemLocale);
    QFETCH(QString, storedAfter);
    QFETCH(QString, resource);
    QFETCH(QString, criticalText);

    QLocale::setDefault(QLocale(systemLocale));
    QSettings settings;
    if (!stored.isEmpty())
        settings.setValue(SK_SettingsKey::ApplicationLanguage, stored);
    QTranslator translator;
    QCOMPARE(SK_ChooseTranslation(translator, settings), !resource.isEmpty());
    QCOMPARE(settings.value(SK_SettingsKey::ApplicationLanguage).toString(), storedAfter);
    QVERIFY2(translator.filePath().endsWith(resource), qPrintable(translator.filePath()));
    // Qt's own button texts follow where Qt's catalogue is carried: German only.
    QTranslator qtTranslator;
    const bool german = storedAfter == QLatin1String("de");
    QCOMPARE(!resource.isEmpty() && SK_InstallQtTranslation(qtTranslator, storedAfter), german);
    QMessageBox box(QMessageBox::Question, QString(), QString(),
                    QMessageBox::Yes | QMessageBox::Cancel);
    QCOMPARE(box.button(QMessageBox::Cancel)->text(),
             german ? QStringLiteral("Abbrechen") : QStringLiteral("Cancel"));

    EmulatedHostScope host;
    SK_MainWindow window;
    QTreeWidget *events = window.findChild<QTreeWidget *>(QStringLiteral("eventList"));
    QTreeWidgetItem *critical =
        events->findItems(QStringLiteral("1015"), Qt::MatchExactly, 2).value(0);
    QVERIFY2(critical, "the workstation's log holds a critical array");
    QCOMPARE(critical->text(4), criticalText);
    // Where the installed file translates the column's title, the window shows it.
    const QString title = translator.translate("SK_MainWindow", "Text");
    QCOMPARE(events->headerItem()->text(4), title.isEmpty() ? QStringLiteral("Text") : title);
}

void tst_Startup::secondCopyIsRefusedWithoutAWindow()
{
    // The first copy: another holder of the same lock.
    SK_SingleInstance first(QStringLiteral("StrataKeep"));
    QVERIFY(!first.alreadyRunning());

    QString shownText;
    QTimer::singleShot(0, [&shownText] {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *box = qobject_cast<QMessageBox *>(widget)) {
                shownText = box->text();
                box->accept();
            }
        }
    });
    QCOMPARE(SK_RunConsole(*qApp), 0);
    QCOMPARE(shownText, QStringLiteral("The Application is already running."));
    for (QWidget *widget : QApplication::topLevelWidgets())
        QVERIFY(!qobject_cast<SK_MainWindow *>(widget));
}

QTEST_MAIN(tst_Startup)
#include "tst_startup.moc"

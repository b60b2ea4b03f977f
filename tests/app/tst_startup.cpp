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
    void translationChoice_data();
    void translationChoice();
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

void tst_Startup::eventLanguage_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("number");
    QTest::newRow("English") << "en" << 0;
    QTest::newRow("Simplified Chinese") << "zh_CN" << 1;
    QTest::newRow("German") << "de" << 5;
    QTest::newRow("Swedish") << "sv_SE" << 12;
    QTest::newRow("Arabic") << "ar" << 13;
    QTest::newRow("Hong Kong Chinese") << "zh_HK" << 22;
    QTest::newRow("Norwegian") << "no" << 26;
    QTest::newRow("Ukrainian") << "uk_UA" << 35;
    QTest::newRow("unknown code") << "xx_YY" << 0;
    QTest::newRow("empty") << "" << 0;
}

void tst_Startup::eventLanguage()
{
    QFETCH(QString, code);
    QFETCH(int, number);
    QCOMPARE(SK_EventLanguage(code), number);
}

void tst_Startup::translationChoice_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("systemLocale");
    QTest::addColumn<bool>("installed");
    QTest::addColumn<QString>("storedAfter");

    QTest::newRow("first run in German finds its file") << ""
                                                        << "de" << true << "de";
    QTest::newRow("first run with a hyphenated name finds none") << ""
                                                                 << "de_AT" << false << "en";
    QTest::newRow("first run in Danish has no plain file") << ""
                                                           << "da_DK" << false << "en";
    QTest::newRow("stored French loads") << "fr"
                                         << "de" << true << "fr";
    QTest::newRow("stored Danish loads") << "da_DK"
                                         << "en_US" << true << "da_DK";
    QTest::newRow("stored Simplified Chinese misses its misspelt file") << "zh_CN"
                                                                        << "de" << false << "zh_CN";
    QTest::newRow("stored Traditional Chinese misses its misspelt file")
        << "zh_TW"
        << "de" << false << "zh_TW";
    QTest::newRow("stored code without resource is kept") << "xx"
                                                          << "de" << false << "xx";
}

void tst_Startup::translationChoice()
{
    QFETCH(QString, stored);
    QFETCH(QString, systemLocale);
    QFETCH(bool, installed);
    QFETCH(QString, storedAfter);

    QLocale::setDefault(QLocale(systemLocale));
    QSettings settings;
    if (!stored.isEmpty())
        settings.setValue(SK_SettingsKey::ApplicationLanguage, stored);
    QTranslator translator;
    QCOMPARE(SK_ChooseTranslation(translator, settings), installed);
    QCOMPARE(settings.value(SK_SettingsKey::ApplicationLanguage).toString(), storedAfter);
    QCoreApplication::removeTranslator(&translator);
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
    QTest::newRow("stored German") << "de"
                                   << "en_US"
                                   << "de"
                                   << "StrataPanel2_German_de.qm" << german;
    QTest::newRow("first run on a German system") << ""
                                                  << "de"
                                                  << "de"
                                                  << "StrataPanel2_German_de.qm" << german;
    QTest::newRow("first run with a hyphenated locale runs in English")
        << ""
        << "de_AT"
        << "en" << QString() << english;
    QTest::newRow("unknown stored code runs in English") << "xx"
                                                         << "de"
                                                         << "xx" << QString() << english;
    QTest::newRow("stored Danish: an empty translation, Danish events")
        << "da_DK"
        << "de"
        << "da_DK"
        << "StrataPanel2_Danish_da_DK.qm" << QStringLiteral("- Array 2 er blevet kritisk.");
    QTest::newRow("stored Simplified Chinese: no file, yet Chinese events")
        << "zh_CN"
        << "de"
        << "zh_CN" << QString() << QStringLiteral("- 阵列 2 已进入临界状态。");
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

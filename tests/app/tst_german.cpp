// The German translation as the console loads it: the embedded file answers in every
// context, the menus come up German with one accelerator per letter, the window and every
// dialog show no text left English, and the source file holds no entry left unfinished.

#include "app/app.h"
#include "dialogs/dialogs.h"
#include "support/emulated_host.h"
#include "support/widget_helpers.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTranslator>
#include <QTreeWidget>
#include <QXmlStreamReader>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace {

QString tsPath()
{
    return QFINDTESTDATA("../../resources/translations/StrataPanel2_German_de.ts");
}

// The English source texts whose German differs: seeing one of them means a text missed
// its translation. Qt's own button words are added, since they come from Qt's catalogue.
QSet<QString> textsThatMustNotShow()
{
    QSet<QString> english{QStringLiteral("Cancel"), QStringLiteral("&Cancel"),
                          QStringLiteral("&Yes"),   QStringLiteral("&No"),
                          QStringLiteral("Close"),  QStringLiteral("&Close"),
                          QStringLiteral("Apply"),  QStringLiteral("Help")};
    QFile file(tsPath());
    if (!file.open(QIODevice::ReadOnly))
        return english;
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const QString german = xml.readElementText();
            if (!german.isEmpty() && german != source)
                english.insert(source);
        }
    }
    return english;
}

// Columns that show words as the drivers give them ("Disk" as a type), or "Yes" and "No"
// kept in English on purpose: their cells are passed over, their titles still count.
struct KeptColumn
{
    const char *context;
    const char *title;
};
constexpr KeptColumn kKeptColumns[] = {
    {"SK_MainWindow", "Type"},    {"SK_MainWindow", "Informed Hot Swap"},
    {"SK_MainWindow", "System"},  {"SK_MainWindow", "Scan"},
    {"SK_MainWindow", "Trim"},    {"SK_CreateDialog", "GS"},
    {"SK_CreateDialog", "Trim"},  {"SK_CreateDialog", "Informed Hot Swap"},
    {"SK_TransformDialog", "GS"}, {"SK_TransformDialog", "Informed Hot Swap"},
};

bool isKeptColumn(const QString &title)
{
    return std::any_of(std::begin(kKeptColumns), std::end(kKeptColumns), [&](const KeptColumn &k) {
        return title == QCoreApplication::translate(k.context, k.title);
    });
}

void noteItem(const QTreeWidgetItem *item, const QTreeWidgetItem *header, QStringList &texts)
{
    for (int column = 0; column < item->columnCount(); ++column) {
        if (item != header && isKeptColumn(header->text(column)))
            continue;
        texts << item->text(column) << item->toolTip(column);
    }
    for (int i = 0; i < item->childCount(); ++i)
        noteItem(item->child(i), header, texts);
}

void noteActions(const QList<QAction *> &actions, QStringList &texts)
{
    for (QAction *action : actions) {
        texts << action->text() << action->toolTip() << action->statusTip();
        if (action->menu())
            noteActions(action->menu()->actions(), texts);
    }
}

// Every text a widget tree puts on screen: titles, labels, buttons, tabs, headers, rows,
// choices, hints and the actions of its menus.
QStringList shownTexts(QWidget *root)
{
    QStringList texts{root->windowTitle()};
    QList<QWidget *> widgets = root->findChildren<QWidget *>();
    widgets.prepend(root);
    for (QWidget *w : widgets) {
        texts << w->toolTip() << w->statusTip() << w->whatsThis();
        if (auto *label = qobject_cast<QLabel *>(w))
            texts << label->text();
        if (auto *button = qobject_cast<QAbstractButton *>(w))
            texts << button->text();
        if (auto *group = qobject_cast<QGroupBox *>(w))
            texts << group->title();
        if (auto *edit = qobject_cast<QLineEdit *>(w))
            texts << edit->placeholderText();
        if (auto *tabs = qobject_cast<QTabWidget *>(w)) {
            for (int i = 0; i < tabs->count(); ++i)
                texts << tabs->tabText(i) << tabs->tabToolTip(i);
        }
        if (auto *combo = qobject_cast<QComboBox *>(w)) {
            for (int i = 0; i < combo->count(); ++i)
                texts << combo->itemText(i);
        }
        if (auto *tree = qobject_cast<QTreeWidget *>(w)) {
            noteItem(tree->headerItem(), tree->headerItem(), texts);
            for (int i = 0; i < tree->topLevelItemCount(); ++i)
                noteItem(tree->topLevelItem(i), tree->headerItem(), texts);
        }
        noteActions(w->actions(), texts);
    }
    texts.removeAll(QString());
    return texts;
}

} // namespace

class tst_German : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void textsComeBackGerman_data();
    void textsComeBackGerman();
    void menusAreGermanWithOneAcceleratorPerLetter();
    void windowAndDialogsShowNoEnglishText();
    void sourceFileHasNoUnfinishedEntry();

private:
    QTemporaryDir m_dir;
    QTranslator m_translator;
    QTranslator m_qtTranslator;
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
    QVERIFY(SK_InstallQtTranslation(m_qtTranslator, QStringLiteral("de")));
}

void tst_German::cleanupTestCase()
{
    QCoreApplication::removeTranslator(&m_qtTranslator);
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
                               << QByteArray("Assign as Global Spare") << "Globales Ersatzlaufwerk";
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

// The window on the default workstation and each dialog it opens, shown as a German user
// sees them: no text may be one whose translation differs from it.
void tst_German::windowAndDialogsShowNoEnglishText()
{
    constexpr quint32 kData = 2;
    EmulatedHostScope host;
    host.host->modify([](sk_emu::Model &m) {
        for (sk_emu::Array &a : m.arrays) {
            if (a.route == kData)
                a.task = sk_emu::Task{sk_emu::code::TaskCheck, sk_emu::code::TaskStarted, 25000};
        }
        return true;
    });
    SK_MainWindow window;
    window.show();
    QTreeWidget *disks = window.findChild<QTreeWidget *>(QStringLiteral("diskList"));
    QVERIFY(disks && disks->topLevelItemCount() > 0);
    const QTreeWidgetItem *disk = disks->topLevelItem(0);
    // Opened modal, a dialog would answer its own boxes; shown, it only draws.
    BoxAnswerer boxes(QMessageBox::Cancel);

    const QSize icons(16, 16);
    // Each dialog is made only when its turn comes: the window must not count their texts.
    const std::vector<std::pair<const char *, std::function<QWidget *()>>> shown{
        {"main window", [&]() -> QWidget * { return &window; }},
        {"create",
         [&]() -> QWidget * { return new SK_CreateDialog(*window.api(), icons, &window); }},
        {"transform",
         [&]() -> QWidget * {
             return new SK_TransformDialog(*window.api(), int(kData), icons, &window);
         }},
        {"caching", [&]() -> QWidget * { return new SK_TieringDialog(*window.api(), &window); }},
        {"delete", [&]() -> QWidget * { return new SK_DeleteForm(*window.api(), &window); }},
        {"priority",
         [&]() -> QWidget * { return new SK_TaskPriorityDialog(*window.api(), kData, &window); }},
        {"name",
         [&]() -> QWidget * { return new SK_ArrayNameDialog(*window.api(), kData, &window); }},
        {"disk options",
         [&]() -> QWidget * {
             return new SK_diskSpareDialog(*window.api(), disk->text(0), disk->text(10),
                                           disk->data(0, Qt::UserRole).toUInt(), kData, &window);
         }},
        {"initialise",
         [&]() -> QWidget * { return new SK_initDisksDialog(*window.api(), &window); }},
        {"clear metadata",
         [&]() -> QWidget * { return new SK_ClearMetadataDialog(*window.api(), &window); }},
        {"disk properties",
         [&]() -> QWidget * { return new SK_DiskProperites(*window.api(), &window); }},
        {"SMART", [&]() -> QWidget * { return new SK_SmartDiskDialog(*window.api(), &window); }},
        {"controllers",
         [&]() -> QWidget * { return new sk_ControllerProperties(*window.api(), &window); }},
        {"about", [&]() -> QWidget * { return new SK_AboutDialog(*window.api(), &window); }},
        {"insert notice",
         [&]() -> QWidget * { return new Sk_insertRemoveDialog(*window.api(), 1009, &window); }},
    };

    const QSet<QString> english = textsThatMustNotShow();
    QVERIFY2(english.size() > 300, qPrintable(QString::number(english.size())));
    for (const auto &[name, make] : shown) {
        QWidget *widget = make();
        widget->show();
        QCoreApplication::processEvents();
        QStringList left;
        for (const QString &text : shownTexts(widget)) {
            if (english.contains(text))
                left << text;
        }
        left.removeDuplicates();
        QVERIFY2(left.isEmpty(), qPrintable(QString::fromLatin1(name) + QStringLiteral(": ") +
                                            left.join(QStringLiteral(" | "))));
        if (widget != &window)
            delete widget;
    }
    QVERIFY2(boxes.texts.isEmpty(), qPrintable(boxes.texts.join(QLatin1Char('\n'))));
}

void tst_German::sourceFileHasNoUnfinishedEntry()
{
    const QString path = tsPath();
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

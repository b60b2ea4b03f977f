// The event view: the driver's numbered log, read by cursor at every refresh. The
// driver's entries carry no time of day, so the console stamps each new event when it
// first sees it and keeps those stamps in "EventsLog.xml" for the next run.

#include "app/sk_mainwindow.h"

#include "dialogs/dialogs.h"

#include <QAction>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QDomDocument>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputDialog>
#include <QStandardPaths>
#include <QTextStream>
#include <QTreeWidget>
#include <QXmlStreamWriter>

namespace {

const QString kUnknownTime = QStringLiteral("   --   ");
constexpr quint32 kValidEntry = 53;

bool isInsertOrRemove(qint32 code)
{
    return code == 1038 || code == 1039 || code == 1042 || code == 1043;
}

QString priorityText(quint32 priority)
{
    switch (priority) {
    case 0:
        return SK_MainWindow::tr("Very Low");
    case 1:
        return SK_MainWindow::tr("Informational");
    case 2:
        return SK_MainWindow::tr("Warning");
    case 3:
        return SK_MainWindow::tr("Critical");
    case 4:
        return SK_MainWindow::tr("Fatal");
    default:
        return SK_MainWindow::tr("Unknown");
    }
}

const QByteArray kClosingTag("</Logs>");

// Where the closing tag starts when the file ends with it, blanks after it allowed
// (a text editor adds a line end); -1 when the file was cut off or isn't ours.
qint64 closingTagOffset(QFile &file)
{
    const qint64 size = file.size();
    const qint64 window = qMin<qint64>(size, 256);
    if (!file.seek(size - window))
        return -1;
    QByteArray tail = file.read(window);
    while (!tail.isEmpty() && QChar::isSpace(static_cast<uchar>(tail.back())))
        tail.chop(1);
    if (!tail.endsWith(kClosingTag))
        return -1;
    return size - window + tail.size() - kClosingTag.size();
}

// A damaged file is kept beside under a name of its own, never written into: the times
// it holds can still be read by hand, and the next append starts a sound file.
bool setDamagedFileAside(const QString &path)
{
    const QFileInfo info(path);
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    QString aside = info.dir().absoluteFilePath(
        info.completeBaseName() + QStringLiteral(".damaged-") + stamp + QStringLiteral(".xml"));
    for (int n = 2; QFile::exists(aside); ++n)
        aside = info.dir().absoluteFilePath(info.completeBaseName() + QStringLiteral(".damaged-") +
                                            stamp + QLatin1Char('-') + QString::number(n) +
                                            QStringLiteral(".xml"));
    return QFile::rename(path, aside);
}

} // namespace

void SK_MainWindow::pollEvents()
{
    qint32 notifyCode = 0;
    bool wantNotice = false;
    for (;;) {
        const SK_EventMessage message =
            raidApi->GetEventMessage(nextEventNumber, static_cast<quint32>(eventLanguage));
        if (message.status != kValidEntry)
            break;
        SK_EventRecord record;
        record.number = message.number;
        record.code = message.code;
        record.priority = message.priority;
        record.text = message.text;
        record.status = static_cast<qint32>(message.status);
        if (firstEventPoll || nextEventNumber < firstLiveEvent) {
            record.time = kUnknownTime;
        } else {
            record.time = QLocale::c().toString(QDateTime::currentDateTime(), eventDateFormat);
            if (isInsertOrRemove(record.code)) {
                notifyCode = record.code;
                // When the notifier program runs, it does the telling.
                if (!raidApi->IsProcessRunning(QStringLiteral("skpopup.exe")))
                    wantNotice = true;
            }
            newEventRecords.push_back(record);
        }
        addEventRow(record);
        eventRecords.push_back(record);
        ++nextEventNumber;
    }

    if (!firstEventPoll) {
        if (!newEventRecords.empty()) {
            appendApplicationLog(newEventRecords);
            appendEventsXml(newEventRecords);
            newEventRecords.clear();
        }
        if (wantNotice && notifyCode >= 1 && notifyArmed) {
            notifyArmed = false;
            auto *notice =
                new Sk_insertRemoveDialog(*raidApi, static_cast<quint32>(notifyCode), this);
            notice->setObjectName(QStringLiteral("insertRemoveNotice"));
            notice->setModal(true);
            notice->setWindowTitle(tr("Event Notification"));
            notice->setWindowFlags(notice->windowFlags() & ~Qt::WindowContextHelpButtonHint);
            notice->exec();
            delete notice;
            notifyTimer.start();
        }
        eventList->resizeColumnToContents(1);
        eventList->setColumnWidth(1, eventList->columnWidth(1) + 10);
        firstEventPoll = false;
        sortEventList();
        return;
    }

    firstLiveEvent = nextEventNumber;
    loadEventsXml(true);
    for (int i = 0; i < eventList->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = eventList->topLevelItem(i);
        for (const SK_EventRecord &record : qAsConst(eventRecords)) {
            if (QString::number(record.number) == row->text(0) &&
                QString::number(record.code) == row->text(2)) {
                row->setText(1, record.time);
                break;
            }
        }
    }
    if (!eventRecords.empty()) {
        raidApi->WriteDeveloperDump(logFilePath);
        appendApplicationLog(eventRecords);
    }
    firstEventPoll = false;
    sortEventList();
}

void SK_MainWindow::sortEventList()
{
    eventList->setSortingEnabled(true);
    eventList->sortByColumn(eventSortColumn, static_cast<Qt::SortOrder>(eventSortOrder));
    eventList->setRootIsDecorated(false);
}

void SK_MainWindow::addEventRow(const SK_EventRecord &record)
{
    auto *row = new QTreeWidgetItem;
    row->setData(0, Qt::DisplayRole, record.number);
    row->setText(1, record.time);
    row->setText(2, QString::number(record.code));
    row->setText(3, priorityText(record.priority));
    row->setText(4, record.text);
    eventList->addTopLevelItem(row);
}

// One line per event: its time (or now, for an event from before this run) followed
// directly by its text.
void SK_MainWindow::appendApplicationLog(const std::list<SK_EventRecord> &records)
{
    if (!QFile::exists(logFilePath)) {
        SK_AppLog::ensureLogFile(QFileInfo(logFilePath).absolutePath(),
                                 QCoreApplication::applicationName());
        return;
    }
    QStringList lines;
    for (const SK_EventRecord &record : records) {
        const QString time =
            record.time == kUnknownTime
                ? QLocale::c().toString(QDateTime::currentDateTime(), eventDateFormat)
                : record.time;
        lines.append(time + record.text);
    }
    SK_AppLog::appendLines(logFilePath, lines);
}

void SK_MainWindow::computeEventsLogPath()
{
    const QString folder = SK_AppLog::folderFor(QCoreApplication::applicationDirPath(),
                                                QCoreApplication::applicationName());
    eventsLogPath = QDir(folder).absoluteFilePath(QStringLiteral("EventsLog.xml"));
}

// Appends entries in place: the closing tag is overwritten and written again after
// them, so the file never has to be read to grow. A file that doesn't end with the tag
// (cut off, or not ours) is set aside rather than written into.
void SK_MainWindow::appendEventsXml(const std::list<SK_EventRecord> &records)
{
    if (!QFile::exists(eventsLogPath))
        computeEventsLogPath();
    QFile file(eventsLogPath);
    qint64 size = file.size();
    if (size > 0) {
        if (!file.open(QIODevice::ReadWrite))
            return;
        const qint64 closingAt = closingTagOffset(file);
        if (closingAt < 0) {
            file.close();
            if (!setDamagedFileAside(eventsLogPath))
                return;
            size = 0;
        } else {
            file.resize(closingAt);
            file.seek(closingAt);
        }
    }
    if (size == 0 && !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    if (size == 0) {
        xml.writeStartDocument();
        xml.writeStartElement(QStringLiteral("Logs"));
    }
    for (const SK_EventRecord &record : records) {
        xml.writeStartElement(QStringLiteral("LogEntry"));
        xml.writeTextElement(QStringLiteral("LogNumber"), QString::number(record.number));
        xml.writeTextElement(QStringLiteral("LogTime"), record.time);
        xml.writeTextElement(QStringLiteral("Code"), QString::number(record.code));
        xml.writeTextElement(QStringLiteral("Text"), record.text);
        xml.writeEndElement();
    }
    if (size > 0) {
        QTextStream tail(&file);
        tail << "\n" << kClosingTag;
    } else {
        xml.writeEndElement();
        xml.writeEndDocument();
    }
}

// An append cut short can leave a line holding only "<"; such lines are dropped
// before the file is read.
void SK_MainWindow::loadEventsXml(bool repair)
{
    if (!QFile::exists(eventsLogPath))
        computeEventsLogPath();
    if (repair) {
        QFile file(eventsLogPath);
        if (file.open(QIODevice::ReadWrite | QIODevice::Text)) {
            QStringList kept;
            bool dropped = false;
            QTextStream in(&file);
            while (!in.atEnd()) {
                const QString line = in.readLine();
                if (line == QLatin1String("<"))
                    dropped = true;
                else
                    kept.append(line);
            }
            if (dropped) {
                file.resize(0);
                QTextStream out(&file);
                out << kept.join(QLatin1Char('\n')) << '\n';
            }
        }
    }
    QFile file(eventsLogPath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    QDomDocument document;
    const bool parsed = document.setContent(&file);
    file.close();
    if (!parsed)
        return;
    for (QDomElement entry = document.documentElement().firstChildElement(); !entry.isNull();
         entry = entry.nextSiblingElement()) {
        if (entry.tagName() != QLatin1String("LogEntry"))
            continue;
        const quint32 number = entry.firstChildElement(QStringLiteral("LogNumber")).text().toUInt();
        const qint32 code = entry.firstChildElement(QStringLiteral("Code")).text().toInt();
        const QString time = entry.firstChildElement(QStringLiteral("LogTime")).text();
        for (SK_EventRecord &record : eventRecords) {
            if (record.number == number && record.code == code) {
                record.time = time;
                break;
            }
        }
    }
}

void SK_MainWindow::eventViewToggle_Form()
{
    eventList->setHidden(!eventViewAct->isChecked());
}

void SK_MainWindow::eventViewFilter_Form()
{
    bool accepted = false;
    const int maximum = static_cast<int>(nextEventNumber) - 1;
    const int value = QInputDialog::getInt(
        this, tr("Event View Filter"), tr("Please enter the minimum event number you wish to see:"),
        0, 3, maximum, 1, &accepted);
    if (accepted && value <= maximum) {
        minEventNumber = static_cast<quint32>(value);
        menu_refresh();
    }
}

#include "service/sk_eventslogfile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

const QByteArray kClosingTag("</Logs>");
// How far from the end the closing tag is looked for: blanks an editor leaves after it.
constexpr qint64 kTailWindow = 256;

// Where the closing tag starts when the file ends with it, blanks after it allowed;
// -1 when the file was cut off or isn't ours.
qint64 closingTagOffset(QFile &file)
{
    const qint64 size = file.size();
    const qint64 window = qMin(size, kTailWindow);
    if (!file.seek(size - window))
        return -1;
    QByteArray tail = file.read(window);
    while (!tail.isEmpty() && QChar::isSpace(static_cast<uchar>(tail.back())))
        tail.chop(1);
    if (!tail.endsWith(kClosingTag))
        return -1;
    return size - window + tail.size() - kClosingTag.size();
}

void writeEntries(QXmlStreamWriter &xml, const std::vector<SK_EventRecord> &records)
{
    for (const SK_EventRecord &record : records) {
        xml.writeStartElement(QStringLiteral("LogEntry"));
        xml.writeTextElement(QStringLiteral("LogNumber"), QString::number(record.number));
        xml.writeTextElement(QStringLiteral("LogTime"), record.time);
        xml.writeTextElement(QStringLiteral("Code"), QString::number(record.code));
        xml.writeTextElement(QStringLiteral("Text"), record.text);
        xml.writeEndElement();
    }
}

// One LogEntry's fields by tag, in any order; other tags are passed over.
void readEntry(QXmlStreamReader &xml, SK_EventTime &entry)
{
    while (xml.readNextStartElement()) {
        const QStringRef tag = xml.name();
        if (tag == QLatin1String("LogNumber"))
            entry.number = xml.readElementText().toUInt();
        else if (tag == QLatin1String("Code"))
            entry.code = xml.readElementText().toInt();
        else if (tag == QLatin1String("LogTime"))
            entry.time = xml.readElementText();
        else
            xml.skipCurrentElement();
    }
}

} // namespace

SK_EventsLogFile::SK_EventsLogFile(const QString &path) : m_path(path) {}

bool SK_EventsLogFile::fail(const QString &why) const
{
    m_error = why;
    return false;
}

// A damaged file is kept beside under a name of its own, never written into: the times
// it holds can still be read by hand.
bool SK_EventsLogFile::setDamagedFileAside()
{
    const QFileInfo info(m_path);
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    const QString base = info.completeBaseName() + QStringLiteral(".damaged-") + stamp;
    QString aside = info.dir().absoluteFilePath(base + QStringLiteral(".xml"));
    for (int n = 2; QFile::exists(aside); ++n)
        aside = info.dir().absoluteFilePath(base + QLatin1Char('-') + QString::number(n) +
                                            QStringLiteral(".xml"));
    if (!QFile::rename(m_path, aside))
        return fail(QStringLiteral("cannot set the damaged %1 aside").arg(m_path));
    m_asidePath = aside;
    return true;
}

bool SK_EventsLogFile::append(const std::vector<SK_EventRecord> &records)
{
    m_error.clear();
    QFile file(m_path);
    qint64 size = file.size();
    if (size > 0) {
        if (!file.open(QIODevice::ReadWrite))
            return fail(file.errorString());
        const qint64 closingAt = closingTagOffset(file);
        if (closingAt < 0) {
            file.close();
            if (!setDamagedFileAside())
                return false;
            size = 0;
        } else if (!file.resize(closingAt) || !file.seek(closingAt)) {
            return fail(file.errorString());
        }
    }
    if (size == 0 && !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return fail(file.errorString());

    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    if (size == 0) {
        xml.writeStartDocument();
        xml.writeStartElement(QStringLiteral("Logs"));
    }
    writeEntries(xml, records);
    if (size > 0) {
        file.write("\n");
        file.write(kClosingTag);
    } else {
        xml.writeEndElement();
        xml.writeEndDocument();
    }
    if (xml.hasError() || !file.flush())
        return fail(file.errorString());
    return true;
}

bool SK_EventsLogFile::repair()
{
    m_error.clear();
    QFile file(m_path);
    if (!file.exists())
        return true;
    if (!file.open(QIODevice::ReadWrite | QIODevice::Text))
        return fail(file.errorString());
    const QByteArray text = file.readAll();
    QList<QByteArray> lines = text.split('\n');
    if (!lines.isEmpty() && lines.back().isEmpty())
        lines.removeLast(); // the split's empty piece after the last line end
    const auto stray = [](const QByteArray &line) { return line == "<"; };
    if (std::none_of(lines.cbegin(), lines.cend(), stray))
        return true;
    lines.erase(std::remove_if(lines.begin(), lines.end(), stray), lines.end());
    QByteArray kept;
    kept.reserve(text.size());
    for (const QByteArray &line : qAsConst(lines))
        kept += line + '\n';
    if (!file.resize(0) || !file.seek(0) || file.write(kept) != kept.size())
        return fail(file.errorString());
    return true;
}

bool SK_EventsLogFile::readTimes(std::vector<SK_EventTime> &entries) const
{
    m_error.clear();
    entries.clear();
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return fail(file.errorString());
    QXmlStreamReader xml(&file);
    if (xml.readNextStartElement()) {
        while (xml.readNextStartElement()) {
            if (xml.name() != QLatin1String("LogEntry")) {
                xml.skipCurrentElement();
                continue;
            }
            SK_EventTime entry;
            readEntry(xml, entry);
            entries.push_back(entry);
        }
    }
    // Whatever follows the document element must be well-formed too: a file that is
    // damaged anywhere gives no time at all.
    while (!xml.atEnd())
        xml.readNext();
    if (xml.hasError()) {
        entries.clear();
        return fail(QStringLiteral("%1, line %2: %3")
                        .arg(m_path)
                        .arg(xml.lineNumber())
                        .arg(xml.errorString()));
    }
    return true;
}

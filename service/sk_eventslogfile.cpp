#include "service/sk_eventslogfile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

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
void readEntry(QXmlStreamReader &xml, SK_EventRecord &entry)
{
    while (xml.readNextStartElement()) {
        const QStringRef tag = xml.name();
        if (tag == QLatin1String("LogNumber"))
            entry.number = xml.readElementText().toUInt();
        else if (tag == QLatin1String("Code"))
            entry.code = xml.readElementText().toInt();
        else if (tag == QLatin1String("LogTime"))
            entry.time = xml.readElementText();
        else if (tag == QLatin1String("Text"))
            entry.text = xml.readElementText();
        else
            xml.skipCurrentElement();
    }
}

struct FileContent
{
    std::vector<SK_EventRecord> entries; // the whole entries up to the first fault
    bool wellFormed = false;             // no fault at all
    bool ours = false;                   // and a UTF-8 "Logs" document an append can extend
    QString fault;
};

FileContent readContent(QIODevice &device)
{
    FileContent content;
    QXmlStreamReader xml(&device);
    bool rootIsLogs = false;
    if (xml.readNextStartElement()) {
        rootIsLogs = xml.name() == QLatin1String("Logs");
        while (xml.readNextStartElement()) {
            if (xml.name() != QLatin1String("LogEntry")) {
                xml.skipCurrentElement();
                continue;
            }
            SK_EventRecord entry;
            readEntry(xml, entry);
            if (xml.hasError())
                break; // cut off inside this entry: it isn't whole
            content.entries.push_back(entry);
        }
    }
    // Whatever follows the document element must be well-formed too.
    while (!xml.atEnd())
        xml.readNext();
    content.wellFormed = !xml.hasError();
    const QStringRef encoding = xml.documentEncoding();
    content.ours =
        content.wellFormed && rootIsLogs &&
        (encoding.isEmpty() || encoding.compare(QLatin1String("UTF-8"), Qt::CaseInsensitive) == 0);
    if (xml.hasError())
        content.fault = QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
    return content;
}

} // namespace

SK_EventsLogFile::SK_EventsLogFile(const QString &path) : m_path(path) {}

void SK_EventsLogFile::setPath(const QString &path)
{
    m_path = path;
    m_known = {};
}

bool SK_EventsLogFile::fail(const QString &why) const
{
    m_error = why;
    return false;
}

// The file as this object last left or read it whole: appending to it then needs no
// second look at what it holds.
SK_EventsLogFile::Known SK_EventsLogFile::stateOf(const QFile &file)
{
    const QFileInfo info(file);
    return Known{info.size(), info.lastModified()};
}

// A damaged file is kept beside under a name of its own, never written into: what it
// holds can still be read by hand.
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
    m_asidePath.clear();
    QFile file(m_path);
    qint64 size = file.size();
    std::vector<SK_EventRecord> carried; // the whole entries of a damaged file
    if (size > 0) {
        if (!file.open(QIODevice::ReadWrite))
            return fail(file.errorString());
        // A file this object hasn't seen whole is read once before it is extended: only
        // a sound one of ours is, never one damaged anywhere.
        bool sound = m_known.valid() && m_known == stateOf(file);
        if (!sound) {
            FileContent content = readContent(file);
            sound = content.ours;
            carried = std::move(content.entries);
        }
        const qint64 closingAt = sound ? closingTagOffset(file) : -1;
        if (closingAt < 0) {
            file.close();
            if (!setDamagedFileAside())
                return false;
            size = 0;
        } else {
            carried.clear();
            if (!file.resize(closingAt) || !file.seek(closingAt))
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
    writeEntries(xml, carried);
    writeEntries(xml, records);
    if (size > 0) {
        file.write("\n");
        file.write(kClosingTag);
    } else {
        xml.writeEndElement();
        xml.writeEndDocument();
    }
    if (xml.hasError() || !file.flush()) {
        m_known = {};
        return fail(file.errorString());
    }
    file.close();
    m_known = stateOf(file);
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
    m_known = {};
    if (!file.resize(0) || !file.seek(0) || file.write(kept) != kept.size())
        return fail(file.errorString());
    return true;
}

bool SK_EventsLogFile::readTimes(std::vector<SK_EventTime> &entries, Reading reading)
{
    m_error.clear();
    entries.clear();
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return fail(file.errorString());
    FileContent content = readContent(file);
    m_known = content.ours ? stateOf(file) : Known{};
    if (!content.wellFormed) {
        m_error = m_path + QStringLiteral(", ") + content.fault;
        if (reading == Reading::WholeFile)
            return false;
    }
    entries.reserve(content.entries.size());
    for (const SK_EventRecord &entry : content.entries)
        entries.push_back(SK_EventTime{entry.number, entry.code, entry.time});
    return true;
}

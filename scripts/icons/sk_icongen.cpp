// Draws the console's tree and list icons and the dark theme's branch images, so that
// the committed PNGs under resources/images/icons can be regenerated and changed in one
// place. Built and run by scripts/make-icons.sh; not part of the product build.
//
// All icons share one flat style on a 48 by 48 canvas (the views scale them to 24): grey
// drive bodies, a stack of three drives for an array, and the array's state as the
// colour of the drive lights and of a badge naming the level.

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <QTextStream>

#include <cstdio>

namespace {

const QColor kNormal(0x3f, 0xc4, 0x33);
const QColor kCritical(0xff, 0x67, 0x00);
const QColor kOffline(0xe0, 0x22, 0x22);
const QColor kSelected(0x41, 0x74, 0xdb);
const QColor kBodyLight(0xb4, 0xb9, 0xbf);
const QColor kBodyDark(0x82, 0x88, 0x8f);
const QColor kFront(0x4e, 0x54, 0x5b);
const QColor kOutline(0x3a, 0x3e, 0x43);
// Branch lines must read on the dark tree background (#37383a).
const QColor kBranch(0xa8, 0xab, 0xb0);

constexpr int kSize = 48;

QImage canvas(int w = kSize, int h = kSize)
{
    QImage img(w, h, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    return img;
}

void begin(QPainter &p)
{
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setRenderHint(QPainter::TextAntialiasing, true);
}

// One drive seen from the front: a light top, a dark front panel with vent slits and a
// status light.
void drawDrive(QPainter &p, const QRectF &r, const QColor &bodyLight, const QColor &bodyDark,
               const QColor &light)
{
    const qreal radius = r.height() * 0.22;
    QLinearGradient body(r.topLeft(), r.bottomLeft());
    body.setColorAt(0.0, bodyLight);
    body.setColorAt(1.0, bodyDark);
    p.setPen(QPen(kOutline, 1.2));
    p.setBrush(body);
    p.drawRoundedRect(r, radius, radius);

    const QRectF front(r.left() + 1.5, r.top() + r.height() * 0.52, r.width() - 3.0,
                       r.height() * 0.48 - 1.5);
    p.setPen(Qt::NoPen);
    p.setBrush(kFront);
    p.drawRoundedRect(front, radius * 0.6, radius * 0.6);

    p.setPen(QPen(QColor(0x6c, 0x72, 0x79), 1.0));
    const qreal slitY = front.center().y();
    for (int i = 0; i < 4; ++i) {
        const qreal x = front.left() + 3.5 + i * 3.0;
        p.drawLine(QPointF(x, slitY - front.height() * 0.25),
                   QPointF(x, slitY + front.height() * 0.25));
    }

    if (light.isValid()) {
        const qreal d = qMax<qreal>(3.0, front.height() * 0.55);
        p.setPen(Qt::NoPen);
        p.setBrush(light);
        p.drawEllipse(QPointF(front.right() - d, slitY), d / 2, d / 2);
    }
}

void drawSingleDrive(QPainter &p, const QColor &light, const QColor &bodyLight = kBodyLight,
                     const QColor &bodyDark = kBodyDark)
{
    drawDrive(p, QRectF(3.5, 12.5, 41, 23), bodyLight, bodyDark, light);
}

void drawStack(QPainter &p, const QColor &light, const QColor &bodyLight = kBodyLight,
               const QColor &bodyDark = kBodyDark)
{
    for (int i = 0; i < 3; ++i)
        drawDrive(p, QRectF(2.5, 3.5 + i * 13.5, 40, 12.5), bodyLight, bodyDark, light);
}

// The level badge: a pill in the state colour with the level in white, in the lower
// right corner where it overlaps the stack.
void drawBadge(QPainter &p, const QString &text, const QColor &colour)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    font.setPixelSize(text.size() > 1 ? 14 : 16);
    font.setHintingPreference(QFont::PreferNoHinting);
    p.setFont(font);
    const qreal textWidth = QFontMetricsF(font).horizontalAdvance(text);
    const qreal h = 21;
    const qreal w = qMax(h, textWidth + 10);
    const QRectF pill(47 - w, 47 - h, w, h);
    p.setPen(QPen(Qt::white, 2.0));
    p.setBrush(colour);
    p.drawRoundedRect(pill, h / 2, h / 2);
    p.setPen(Qt::white);
    p.drawText(pill.adjusted(0, 0, 0, -0.5), Qt::AlignCenter, text);
}

// A round sign (plus, cross) in the lower right corner.
void drawSign(QPainter &p, const QColor &colour, bool cross)
{
    const QPointF c(36, 36);
    const qreal r = 10.5;
    p.setPen(QPen(Qt::white, 2.0));
    p.setBrush(colour);
    p.drawEllipse(c, r, r);
    p.setPen(QPen(Qt::white, 3.2, Qt::SolidLine, Qt::RoundCap));
    const qreal a = cross ? 4.3 : 5.5;
    if (cross) {
        p.drawLine(c + QPointF(-a, -a), c + QPointF(a, a));
        p.drawLine(c + QPointF(-a, a), c + QPointF(a, -a));
    } else {
        p.drawLine(c + QPointF(-a, 0), c + QPointF(a, 0));
        p.drawLine(c + QPointF(0, -a), c + QPointF(0, a));
    }
}

QImage systemIcon()
{
    QImage img = canvas();
    QPainter p(&img);
    begin(p);
    // Stand first, so the monitor's frame overlaps it.
    QPainterPath stand;
    stand.moveTo(20, 34);
    stand.lineTo(28, 34);
    stand.lineTo(30, 41);
    stand.lineTo(18, 41);
    stand.closeSubpath();
    p.setPen(QPen(kOutline, 1.2));
    p.setBrush(kBodyDark);
    p.drawPath(stand);
    p.setBrush(kBodyLight);
    p.drawRoundedRect(QRectF(11.5, 40.5, 25, 4), 2, 2);

    p.setBrush(QColor(0x4a, 0x4f, 0x55));
    p.drawRoundedRect(QRectF(2.5, 4.5, 43, 31), 3.5, 3.5);
    QLinearGradient screen(QPointF(0, 7), QPointF(0, 32));
    screen.setColorAt(0.0, QColor(0x5d, 0xb6, 0xf0));
    screen.setColorAt(1.0, QColor(0x1f, 0x6f, 0xb8));
    p.setPen(Qt::NoPen);
    p.setBrush(screen);
    p.drawRect(QRectF(5.5, 7.5, 37, 25));
    // A soft reflection across the upper left of the screen.
    QPainterPath shine;
    shine.moveTo(5.5, 7.5);
    shine.lineTo(26, 7.5);
    shine.lineTo(5.5, 24);
    shine.closeSubpath();
    p.setBrush(QColor(255, 255, 255, 45));
    p.drawPath(shine);
    return img;
}

QImage hddIcon()
{
    QImage img = canvas();
    QPainter p(&img);
    begin(p);
    drawSingleDrive(p, kNormal);
    return img;
}

QImage arrayIcon()
{
    QImage img = canvas();
    QPainter p(&img);
    begin(p);
    drawStack(p, kNormal);
    return img;
}

// The selected array: the array's stack, in the selection blue with a halo.
QImage selectedIcon()
{
    QImage img = canvas();
    QPainter p(&img);
    begin(p);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(kSelected.red(), kSelected.green(), kSelected.blue(), 70));
    p.drawRoundedRect(QRectF(0.5, 1, 47, 46), 6, 6);
    drawStack(p, QColor(0xd8, 0xe6, 0xff), QColor(0x8f, 0xb2, 0xf5), kSelected);
    return img;
}

QImage missingIcon()
{
    QImage img = canvas();
    QPainter p(&img);
    begin(p);
    const QRectF r(3.5, 12.5, 41, 23);
    QPen pen(kBodyLight, 2.2, Qt::CustomDashLine, Qt::RoundCap);
    pen.setDashPattern({2.2, 2.0});
    p.setPen(pen);
    p.setBrush(QColor(0x9a, 0x9f, 0xa6, 40));
    p.drawRoundedRect(r, 5, 5);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    font.setPixelSize(17);
    p.setFont(font);
    p.setPen(kBodyLight);
    p.drawText(r, Qt::AlignCenter, QStringLiteral("?"));
    return img;
}

QImage failedIcon()
{
    QImage img = canvas();
    QPainter p(&img);
    begin(p);
    drawDrive(p, QRectF(2.5, 6.5, 40, 22), kBodyLight, kBodyDark, kOffline);
    drawSign(p, kOffline, true);
    return img;
}

QImage spareIcon()
{
    QImage img = canvas();
    QPainter p(&img);
    begin(p);
    drawDrive(p, QRectF(2.5, 6.5, 40, 22), kBodyLight, kBodyDark, QColor());
    drawSign(p, kNormal, false);
    return img;
}

QImage checkmarkIcon()
{
    QImage img = canvas();
    QPainter p(&img);
    begin(p);
    QPainterPath tick;
    tick.moveTo(8, 25);
    tick.lineTo(19, 36);
    tick.lineTo(40, 12);
    p.setPen(QPen(QColor(0x00, 0x99, 0x66), 8.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(tick);
    return img;
}

QString badgeText(const QString &type)
{
    if (type.startsWith(QLatin1String("RAID")) && type.size() > 4 && type.at(4).isDigit())
        return type.mid(4);
    if (type == QLatin1String("LEGACY"))
        return QStringLiteral("L");
    if (type == QLatin1String("VOLUME"))
        return QStringLiteral("V");
    if (type == QLatin1String("RAIDABLE"))
        return QStringLiteral("R");
    if (type == QLatin1String("RAIDTIER"))
        return QStringLiteral("T");
    return QString();
}

QImage typeIcon(const QString &type, const QColor &colour)
{
    QImage img = canvas();
    QPainter p(&img);
    begin(p);
    if (type == QLatin1String("DISK")) {
        drawDrive(p, QRectF(2.5, 6.5, 40, 22), kBodyLight, kBodyDark, colour);
        // A lone disk in trouble carries an exclamation mark.
        p.setPen(QPen(Qt::white, 2.0));
        p.setBrush(colour);
        p.drawEllipse(QPointF(36, 36), 10.5, 10.5);
        p.setPen(QPen(Qt::white, 3.2, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(36, 30.5), QPointF(36, 36.5));
        p.drawPoint(QPointF(36, 41.5));
        return img;
    }
    drawStack(p, colour);
    drawBadge(p, badgeText(type), colour);
    return img;
}

// Branch images are stretched over the whole branch cell by the style sheet
// (border-image), so the lines sit in the middle of a small square.
constexpr int kBranchSize = 20;
constexpr qreal kMid = kBranchSize / 2.0;

QImage branchLines(bool up, bool down, bool right)
{
    QImage img = canvas(kBranchSize, kBranchSize);
    QPainter p(&img);
    p.setPen(QPen(kBranch, 1.0));
    const qreal x = kMid - 0.5;
    if (up)
        p.drawLine(QPointF(x, 0), QPointF(x, kMid - 0.5));
    if (down)
        p.drawLine(QPointF(x, kMid - 0.5), QPointF(x, kBranchSize));
    if (right)
        p.drawLine(QPointF(x, kMid - 0.5), QPointF(kBranchSize, kMid - 0.5));
    return img;
}

QImage branchArrow(bool open)
{
    const int size = 12;
    QImage img = canvas(size, size);
    QPainter p(&img);
    begin(p);
    QPainterPath arrow;
    if (open) {
        arrow.moveTo(1.5, 3.5);
        arrow.lineTo(10.5, 3.5);
        arrow.lineTo(6, 9);
    } else {
        arrow.moveTo(3.5, 1.5);
        arrow.lineTo(9, 6);
        arrow.lineTo(3.5, 10.5);
    }
    arrow.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(kBranch);
    p.drawPath(arrow);
    return img;
}

bool save(const QDir &dir, const QString &name, const QImage &img)
{
    const QString path = dir.filePath(name);
    if (!img.save(path, "PNG")) {
        std::fprintf(stderr, "sk_icongen: cannot write %s\n", qPrintable(path));
        return false;
    }
    std::printf("%s\n", qPrintable(name));
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: sk_icongen OUTPUT_DIR\n");
        return 2;
    }
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    if (!dir.exists()) {
        std::fprintf(stderr, "sk_icongen: %s does not exist\n", argv[1]);
        return 2;
    }

    bool ok = save(dir, QStringLiteral("small_system.png"), systemIcon());
    ok = save(dir, QStringLiteral("HDD.png"), hddIcon()) && ok;
    ok = save(dir, QStringLiteral("small_array.png"), arrayIcon()) && ok;
    ok = save(dir, QStringLiteral("small_selectedDISK.png"), selectedIcon()) && ok;
    ok = save(dir, QStringLiteral("small_missingDRIVE.png"), missingIcon()) && ok;
    ok = save(dir, QStringLiteral("small_failedDRIVE.png"), failedIcon()) && ok;
    ok = save(dir, QStringLiteral("Spare.png"), spareIcon()) && ok;
    ok = save(dir, QStringLiteral("green-checkmark.png"), checkmarkIcon()) && ok;

    struct StateSet
    {
        const char *word;
        QColor colour;
        QStringList types;
    };
    const StateSet sets[] = {
        {"critical", kCritical, {"DISK", "RAID0", "RAID1", "RAID10", "RAID5", "RAID50", "RAID6"}},
        {"normal",
         kNormal,
         {"LEGACY", "RAID0", "RAID1", "RAID10", "RAID5", "RAID6", "RAIDABLE", "RAIDTIER",
          "VOLUME"}},
        {"offline",
         kOffline,
         {"RAID0", "RAID1", "RAID10", "RAID5", "RAID50", "RAID6", "RAIDABLE", "VOLUME"}},
    };
    for (const StateSet &set : sets)
        for (const QString &type : set.types)
            ok = save(dir, QStringLiteral("small_%1%2.png").arg(QLatin1String(set.word), type),
                      typeIcon(type, set.colour)) &&
                 ok;

    ok = save(dir, QStringLiteral("vline.png"), branchLines(true, true, false)) && ok;
    ok = save(dir, QStringLiteral("branch-more.png"), branchLines(true, true, true)) && ok;
    ok = save(dir, QStringLiteral("branch-end.png"), branchLines(true, false, true)) && ok;
    ok = save(dir, QStringLiteral("branch-closed.png"), branchArrow(false)) && ok;
    ok = save(dir, QStringLiteral("branch-open.png"), branchArrow(true)) && ok;
    return ok ? 0 : 1;
}

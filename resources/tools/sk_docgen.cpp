// Build tool: renders one Markdown document of docs/ into the PDF that the Help menu
// opens. Qt's own Markdown reader and PDF writer do the work, so the build needs nothing
// beyond the Qt it already uses; it runs on the offscreen platform.
//
//   sk_docgen INPUT.md OUTPUT.pdf TITLE

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

#include <cstdio>

namespace {

// Printing puts a margin of 2 cm inside the page's own and lays the text out in units of
// 96 per inch; the width left for the text, in those units.
qreal textWidth(const QPdfWriter &writer)
{
    const qreal dpi = writer.logicalDpiX();
    const qreal body = writer.width() - 2 * (2 / 2.54) * dpi;
    return body * 96 / dpi;
}

// Screenshots are wider than a page: each image wider than the text is handed to the
// document with a pixel ratio that makes it as wide as the text, so it prints at its
// full resolution. Images that fit keep their own size.
void fitImages(QTextDocument &document, const QDir &base, qreal width)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (!format.isImageFormat())
                continue;
            const QString name = format.toImageFormat().name();
            QImage image(base.filePath(name));
            if (image.isNull() || image.width() <= width)
                continue;
            image.setDevicePixelRatio(image.width() / width);
            document.addResource(QTextDocument::ImageResource, QUrl(name), image);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: sk_docgen INPUT.md OUTPUT.pdf TITLE\n");
        return 2;
    }
    const QString input = QString::fromLocal8Bit(argv[1]);
    const QString output = QString::fromLocal8Bit(argv[2]);
    const QString title = QString::fromLocal8Bit(argv[3]);

    QFile source(input);
    if (!source.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "sk_docgen: cannot read %s: %s\n", argv[1],
                     qPrintable(source.errorString()));
        return 1;
    }
    const QString markdown = QString::fromUtf8(source.readAll());

    QTextDocument document;
    // Images named in the text are found beside the source.
    document.setBaseUrl(QUrl::fromLocalFile(QFileInfo(input).absolutePath() + QLatin1Char('/')));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(10.0);
    document.setDefaultFont(font);
    document.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
    document.setMetaInformation(QTextDocument::DocumentTitle, title);

    QPdfWriter writer(output);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("StrataKeep"));
    writer.setResolution(300);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(20, 18, 20, 18), QPageLayout::Millimeter));
    fitImages(document, QFileInfo(input).absoluteDir(), textWidth(writer));
    // Printing lays the document out on the writer's pages and numbers them.
    document.print(&writer);

    if (!QFileInfo(output).exists() || QFileInfo(output).size() == 0) {
        std::fprintf(stderr, "sk_docgen: nothing written to %s\n", argv[2]);
        return 1;
    }
    return 0;
}

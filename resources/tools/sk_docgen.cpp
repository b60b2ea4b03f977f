// Build tool: renders one Markdown document of docs/ into the PDF that the Help menu
// opens. Qt's own Markdown reader and PDF writer do the work, so the build needs nothing
// beyond the Qt it already uses; it runs on the offscreen platform.
//
//   sk_docgen INPUT.md OUTPUT.pdf TITLE

#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>

#include <cstdio>

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
    // Printing lays the document out on the writer's pages and numbers them.
    document.print(&writer);

    if (!QFileInfo(output).exists() || QFileInfo(output).size() == 0) {
        std::fprintf(stderr, "sk_docgen: nothing written to %s\n", argv[2]);
        return 1;
    }
    return 0;
}

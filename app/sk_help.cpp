// The Help menu's entries: the About box, the user guide, the support site and the
// licence agreement.

#include "app/sk_help.h"

#include "app/sk_mainwindow.h"
#include "app/sk_version.h"
#include "dialogs/dialogs.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QStandardPaths>
#include <QUrl>

// The documents are built into a resource file of their own; naming its initialiser here
// also keeps the linker from dropping it out of the static resource library.
static void initHelpDocuments()
{
    Q_INIT_RESOURCE(docs);
}

namespace {

const char kSupportAddress[] = "https://support.vor-storage.com/stratakeep";

// Opens an embedded document with the reader the user chose for PDF files: readers open
// files, not resources, so the document is copied to the temporary folder first.
void openHelpDocument(QWidget *parent, const QString &resource, const QString &file)
{
    initHelpDocuments();
    QString path = SK_CopyHelpDocument(resource, file);
    if (path.isEmpty())
        path = QDir(QStandardPaths::writableLocation(QStandardPaths::TempLocation))
                   .filePath(QCoreApplication::applicationName() + QLatin1Char('/') + file);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        QMessageBox::about(parent, QCoreApplication::applicationName(),
                           SK_MainWindow::tr("May have been unable to open file: ") + path +
                               SK_MainWindow::tr(" please make sure to have a proper document "
                                                 "reader selected as the default application for "
                                                 "the file extension type or try to open manually "
                                                 "if still unable to open."));
}

} // namespace

QString SK_CopyHelpDocument(const QString &resource, const QString &file)
{
    QDir dir(QStandardPaths::writableLocation(QStandardPaths::TempLocation));
    if (!dir.exists())
        dir.mkpath(QStringLiteral("."));
    const QString sub = QCoreApplication::applicationName();
    if (!dir.exists(sub))
        dir.mkdir(sub);
    if (!dir.cd(sub))
        return QString();

    const QString path = dir.filePath(file);
    // The copy of an earlier run keeps the resource's read-only permissions, and a
    // read-only file can't be removed everywhere.
    if (QFile::exists(path)) {
        QFile::setPermissions(path, QFile::ReadOther | QFile::WriteOther);
        QFile::remove(path);
    }
    if (!QFile::copy(resource, path))
        return QString();
    return path;
}

void SK_MainWindow::about()
{
    auto *dialog = new SK_AboutDialog(*raidApi, this, QString::fromLatin1(SK_VersionText));
    dialog->setModal(true);
    dialog->setWindowTitle(tr("About ") + QCoreApplication::applicationName());
    dialog->setWindowFlags(dialog->windowFlags() & ~Qt::WindowContextHelpButtonHint);
    dialog->exec();
    delete dialog;
    menu_refresh();
}

void SK_MainWindow::userGuide()
{
    openHelpDocument(this, QStringLiteral(":/UserGuide/UserGuide/vor-stratakeep_user_guide.pdf"),
                     QStringLiteral("vor-stratakeep_user_guide.pdf"));
}

void SK_MainWindow::supportSite()
{
    const QString address = QLatin1String(kSupportAddress);
    if (!QDesktopServices::openUrl(QUrl(address)))
        QMessageBox::about(this, QCoreApplication::applicationName(),
                           tr("May have been unable to open link: ") + address +
                               tr(". If so, please try to open manually."));
}

void SK_MainWindow::eula()
{
    openHelpDocument(this, QStringLiteral(":/EULA/EULA/EULA.pdf"), QStringLiteral("EULA.pdf"));
}

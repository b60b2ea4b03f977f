#include "dialogs/sk_deleteform.h"

#include "dialogs/sk_arraylistparts.h"
#include "dialogs/sk_diskdialogparts.h"
#include "dialogs/sk_questions.h"
#include "dialogs/sk_treeitems.h"
#include "dialogs/sk_windowstate.h"
#include "service/service.h"
#include "ui_sk_deleteform.h"

#include <QDebug>
#include <QMessageBox>
#include <QMetaType>
#include <QProgressDialog>
#include <QThread>
#include <QTreeWidgetItemIterator>

namespace {
constexpr char kContext[] = "SK_DeleteForm";
constexpr char kGeometryKey[] = "deleteFormWindowGeometry";
constexpr char kHeaderKey[] = "deleteFormListHeaderState";
constexpr int kColumnAir = 5;

QString latin(const char *field)
{
    return QString::fromLatin1(field);
}

} // namespace

SK_DeleteForm::SK_DeleteForm(SK_RaidApi &service, QWidget *parent)
    : QDialog(parent), api(&service), ui(std::make_unique<Ui::SK_DeleteForm>())
{
    // Opening a dialog reads the configuration afresh.
    api->RefreshConfig();
    ui->setupUi(this);
    setupDelArrayMenu();
    SK_WindowState::restore(this, kGeometryKey, {{ui->arrayList, kHeaderKey}});
}

SK_DeleteForm::~SK_DeleteForm()
{
    SK_WindowState::save(this, kGeometryKey, {{ui->arrayList, kHeaderKey}});
}

void SK_DeleteForm::setupDelArrayMenu()
{
    ui->arrayList->setHeaderLabels({tr("Device"), tr("OS Name"), tr("System"), tr("Partition"),
                                    tr("Array Name"), tr("Type"), tr("Total Capacity"), tr("State"),
                                    tr("Cache")});
    ui->cancelButton->setText(tr("Cancel"));
    ui->deleteButton->setText(tr("Delete"));
    ui->selectAllButton->setText(tr("Select All"));
    ui->deleteButton->setEnabled(false);

    const int count = api->GetArrayCount();
    ui->arrayList->setRootIsDecorated(false);
    for (int index = 0; index < count; ++index) {
        const SK_ConfigArray *array = api->GetArrayByIndex(index);
        if (!array)
            continue;
        const int id = array->Device;
        const QString type = latin(array->Type);
        // A tier shows the volumes and system role of the member that carries them.
        const int lookup = type == QLatin1String("RAIDTIER") ? api->TierMemberLookup(index) : id;
        const bool tierPart = api->ArrayIsTierPart(id);

        auto *row = new MyTreeWidgetItem(ui->arrayList);
        row->sortRole = SK_Role::SortKey;
        auto put = [row](int column, const QString &text, const QVariant &key) {
            row->setText(column, text);
            row->setData(column, SK_Role::SortKey, key);
        };
        put(0, tr("Array ") + QString::number(id), static_cast<uint>(id));
        row->setCheckState(0, Qt::Unchecked);
        row->setData(0, SK_Role::DeviceId, id);
        const QString osName =
            SK_ArrayListParts::osNameText(*api, kContext, api->ArrayIsHidden(id), lookup);
        put(1, osName, osName);
        if (api->ArrayIsSystem(lookup))
            put(2, tr("Yes"), tr("Yes"));
        else if (!tierPart)
            put(2, tr("No"), tr("No"));
        const QString letters = tierPart ? QString() : api->DriveLetters(lookup);
        put(3, letters, letters);
        const QString name = QString::fromLocal8Bit(array->DisplayName);
        put(4, name, name);
        put(5, type, type);
        put(6, SK_RaidApi::CapacityText(static_cast<qint64>(array->Capacity)),
            static_cast<qulonglong>(array->Capacity));
        QString state = latin(array->State);
        if (latin(array->TransformType) == QLatin1String("CREATE") &&
            state == QLatin1String("NORMAL"))
            state = QStringLiteral("READY");
        state = SK_ArrayListParts::stateText(kContext, state);
        put(7, state, state);
        const QString cache = latin(array->Cache);
        put(8, cache, cache);
        if (api->ArrayIsSystem(id) || tierPart)
            row->setDisabled(true);
    }
    // One round past the last column, as the list has always been sized.
    for (int column = 0; column < 10; ++column) {
        ui->arrayList->resizeColumnToContents(column);
        ui->arrayList->setColumnWidth(column, ui->arrayList->columnWidth(column) + kColumnAir);
    }
    ui->arrayList->setSortingEnabled(true);
    ui->arrayList->sortByColumn(0, Qt::AscendingOrder);
}

void SK_DeleteForm::toggleDeleteButton()
{
    bool anyTicked = false;
    for (QTreeWidgetItemIterator it(ui->arrayList); *it; ++it) {
        if ((*it)->checkState(0) != Qt::Unchecked)
            anyTicked = true;
    }
    ui->deleteButton->setEnabled(anyTicked);
}

// The arrays are named in the order the user sees them, which is also the order in
// which they will go.
QString SK_DeleteForm::generateDeleteConfirmationString()
{
    QString text = tr("Deleting an array may cause data loss. Are you sure you want to delete "
                      "the selected Array(s): ");
    bool first = true;
    for (QTreeWidgetItemIterator it(ui->arrayList); *it; ++it) {
        const QTreeWidgetItem *row = *it;
        if (row->checkState(0) == Qt::Unchecked)
            continue;
        QString fragment = first ? QString() : QStringLiteral(", ");
        first = false;
        fragment += tr("Array ") + QString::number(row->data(0, SK_Role::DeviceId).toUInt()) +
                    QStringLiteral(" - ");
        if (!row->text(3).isEmpty())
            fragment += row->text(3) + QLatin1Char(' ');
        fragment += row->text(4);
        text += fragment;
        qDebug() << fragment;
    }
    text += QLatin1Char('?');
    qDebug() << text;
    return text;
}

void SK_DeleteForm::on_cancelButton_clicked()
{
    reject();
}

void SK_DeleteForm::on_deleteButton_clicked()
{
    if (!SK_AskYesNo(this, tr("Confirm Action"), generateDeleteConfirmationString(), tr("Yes"),
                     tr("No")))
        return;

    // The worker and its thread clean up after themselves when the run ends; nobody
    // waits for the thread.
    auto *thread = new QThread;
    auto *worker = new ApiWorker;
    worker->moveToThread(thread);
    connect(thread, &QThread::started, this, &SK_DeleteForm::GenerateDeleteArrayList);
    connect(this, &SK_DeleteForm::AsyncDeleteMultiple, worker, &ApiWorker::AsyncDeleteArray);
    connect(this, &SK_DeleteForm::AsyncDeleteMultiple, this,
            &SK_DeleteForm::CreateDeleteProgressBar);
    qRegisterMetaType<QList<uint>>("QList<uint>");
    connect(worker, &ApiWorker::arrayDeleted, this, &SK_DeleteForm::UpdateDeleteProgress);
    connect(worker, &ApiWorker::arrayFinishedDeleting, thread, &QThread::quit);
    connect(worker, &ApiWorker::arrayFinishedDeleting, worker, &QObject::deleteLater);
    connect(worker, &ApiWorker::arrayFinishedDeleting, this, &QDialog::accept);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start(QThread::InheritPriority);
}

void SK_DeleteForm::on_selectAllButton_clicked()
{
    for (QTreeWidgetItemIterator it(ui->arrayList); *it; ++it) {
        if (!(*it)->isDisabled())
            (*it)->setCheckState(0, Qt::Checked);
    }
    toggleDeleteButton();
}

void SK_DeleteForm::on_arrayList_itemChanged(QTreeWidgetItem *, int)
{
    toggleDeleteButton();
}

// Runs in the GUI thread: the worker's run is queued first, then the progress dialog
// comes up at once through the direct connection.
void SK_DeleteForm::GenerateDeleteArrayList()
{
    QList<uint> arrays;
    for (QTreeWidgetItemIterator it(ui->arrayList); *it; ++it) {
        if ((*it)->checkState(0) != Qt::Unchecked)
            arrays << (*it)->data(0, SK_Role::DeviceId).toUInt();
    }
    emit AsyncDeleteMultiple(arrays);
}

// A started deletion can't be stopped from the screen: neither cancel nor close.
void SK_DeleteForm::CreateDeleteProgressBar(QList<uint> arrays)
{
    deleteProgress =
        new QProgressDialog(tr("Deleting arrays..."), tr("Abort"), 0, arrays.size() - 1, this);
    deleteProgress->setWindowFlags(deleteProgress->windowFlags() &
                                   ~Qt::WindowContextHelpButtonHint);
    deleteProgress->setWindowFlags(deleteProgress->windowFlags() & ~Qt::WindowCloseButtonHint);
    deleteProgress->setCancelButton(nullptr);
    deleteProgress->setWindowModality(Qt::WindowModal);
    deleteProgress->setAutoClose(true);
}

// A fresh progress dialog stands below its minimum, so the first step reads 0 and the
// last reaches the maximum, which closes it.
void SK_DeleteForm::UpdateDeleteProgress()
{
    if (deleteProgress)
        deleteProgress->setValue(deleteProgress->value() + 1);
}

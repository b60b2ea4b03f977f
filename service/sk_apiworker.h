#pragma once
// ApiWorker: the short-lived helper that runs one piece of service work on its own
// thread and reports by queued signal: the array list of a refresh, a batch delete,
// a prepare-to-remove.

#include "service/sk_raidapi.h"

#include <QList>
#include <QObject>

class ApiWorker : public QObject
{
    Q_OBJECT

public:
    // Makes its own SK_RaidApi, which reads the configuration.
    ApiWorker();
    ~ApiWorker() override;

signals:
    void arrayDataReady(QList<LogicalDrive *> arrays);
    void arrayFinishedDeleting(uint status);
    void arrayDeleted(uint arrayIdx);
    void error(QString err);
    void prepRemoveFinished(int returnCode);

public slots:
    void UpdateArrayData();
    void AsyncDeleteArray(QList<uint> arrayRouteList);
    void AsyncPrepRemove(int array);

private:
    SK_RaidApi *raidApi = nullptr;
};

Q_DECLARE_METATYPE(QList<LogicalDrive *>)

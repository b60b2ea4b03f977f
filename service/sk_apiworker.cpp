#include "service/sk_apiworker.h"

ApiWorker::ApiWorker() : raidApi(new SK_RaidApi) {}

ApiWorker::~ApiWorker()
{
    delete raidApi;
}

void ApiWorker::UpdateArrayData()
{
    emit arrayDataReady(raidApi->GetArrayList());
}

void ApiWorker::AsyncDeleteArray(QList<uint> arrayRouteList)
{
    for (uint array : arrayRouteList) {
        raidApi->DeleteArray(static_cast<int>(array));
        emit arrayDeleted(array);
    }
    emit arrayFinishedDeleting(1);
}

void ApiWorker::AsyncPrepRemove(int array)
{
    emit prepRemoveFinished(raidApi->PrepareArrayRemoval(array));
}

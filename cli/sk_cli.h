#pragma once
// skcli: the console's command-line twin. Every verb goes through SK_RaidApi with the
// same calls and the same rules as the window; main() only wires the process to it.

#include "service/service.h"

#include <QJsonObject>
#include <QStringList>
#include <QTextStream>

#include <functional>

// Exit statuses, as documented in --help.
enum SK_CliExit : int {
    SK_CLI_DONE = 0,
    SK_CLI_FAILED = 1, // refused or failed; the reason is on standard error
    SK_CLI_USAGE = 2,
};

// An aligned text table: the header row, then the rows, columns padded to the widest
// cell and separated by two blanks.
class SK_CliTable
{
public:
    explicit SK_CliTable(QStringList header) : header_(std::move(header)) {}
    void addRow(const QStringList &row) { rows_.append(row); }
    QString render() const;

private:
    QStringList header_;
    QList<QStringList> rows_;
};

// The JSON documents of the show verbs: numbers as numbers, sizes as bytes beside their
// display text. Each takes what it describes from the service's current picture.
namespace SK_CliModel {
QJsonObject controller(const SK_RaidApi &api, int index);
QJsonObject disk(const SK_RaidApi &api, int diskId);
QJsonObject array(const SK_RaidApi &api, int arrayId);
QJsonObject summary(const SK_RaidApi &api);
// A disk named "C:P" (controller and channel) or by its id; -1 when none matches.
int findDisk(const SK_RaidApi &api, const QString &name);
// "C:P" of a disk id.
QString diskPort(const SK_RaidApi &api, int diskId);
} // namespace SK_CliModel

// The Prometheus text exposition of the host's state; `api` is refreshed by the caller.
QString SK_CliMetrics(SK_RaidApi &api);

class SK_Cli
{
public:
    SK_Cli(SK_RaidApi &api, QTextStream &out, QTextStream &err);

    // Runs one command line (without the program's name) and returns its exit status.
    int run(const QStringList &arguments);

    // Asks a yes/no question on the terminal; without one (the default) the answer is
    // no, so a destructive verb needs --yes in scripts.
    std::function<bool(const QString &question)> ask;
    // Waits between two polls of `events --follow`; returns false to stop following.
    std::function<bool()> followWait;

    static QString helpText();

private:
    struct Verb;
    int dispatch(const QStringList &words);
    bool confirm(const QString &question);
    bool needAdmin();
    int usage(const QString &why);
    int fail(const QString &why);
    int arrayArg(const QStringList &args, int at, int &id);
    int diskArg(const QStringList &args, int at, int &id);

    int showVerb(const QStringList &args);
    int eventsVerb(const QStringList &args);
    int metricsVerb(const QStringList &args);
    int createVerb(const QStringList &args, bool transform);
    int arrayVerb(const QString &verb, const QStringList &args);
    int diskVerb(const QString &verb, const QStringList &args);
    int spareVerb(const QStringList &args);
    int initVerb(const QStringList &args, bool clearMetadata);
    int taskVerb(const QStringList &args);
    int blinkVerb(const QStringList &args);
    int removalVerb(const QStringList &args);

    SK_RaidApi &api_;
    QTextStream &out_;
    QTextStream &err_;
    // Options of the command line being run.
    bool json_ = false;
    bool yes_ = false;
    bool follow_ = false;
    QString since_, lang_, output_, size_, type_, name_, disks_, cache_, arrayOpt_;
    bool scan_ = false, zero_ = false, skipInit_ = false, leaveData_ = false;
};

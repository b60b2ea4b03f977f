#pragma once
// Runs skcli's command table in-process against a fresh emulated host and keeps what
// it printed and the exit status.

#include "cli/sk_cli.h"
#include "service/service_lab.h"

struct CliRun
{
    int status = -1;
    QString out, err;
};

class CliLab : public Lab
{
public:
    using Lab::Lab;

    CliRun run(const QStringList &args, std::function<bool(const QString &)> ask = nullptr,
               std::function<bool()> followWait = nullptr)
    {
        CliRun r;
        QTextStream out(&r.out), err(&r.err);
        api->RefreshConfig();
        SK_Cli cli(*api, out, err);
        cli.ask = std::move(ask);
        cli.followWait = std::move(followWait);
        r.status = cli.run(args);
        out.flush();
        err.flush();
        return r;
    }
};

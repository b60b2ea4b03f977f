// skcli's process: picks the backend as the console does, then hands the command line
// to SK_Cli. Questions are asked only when standard input is a terminal.

#include "app/sk_backend.h"
#include "cli/cli.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdio>
#include <unistd.h>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("StrataKeep"));
    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.contains(QStringLiteral("--help")) || arguments.contains(QStringLiteral("-h"))) {
        out << SK_Cli::helpText();
        return SK_CLI_DONE;
    }
    QString why;
    if (!SK_InstallBackend(why)) {
        err << "skcli: " << why << "\n";
        return SK_CLI_FAILED;
    }
    SK_RaidApi api;
    SK_Cli cli(api, out, err);
    if (isatty(STDIN_FILENO)) {
        cli.ask = [&out](const QString &question) {
            out << question << " [y/N] ";
            out.flush();
            char line[16] = {};
            if (!std::fgets(line, sizeof line, stdin))
                return false;
            return line[0] == 'y' || line[0] == 'Y';
        };
    }
    const int interval = qEnvironmentVariableIntValue("SKCLI_FOLLOW_INTERVAL_MS");
    cli.followWait = [interval, &api] {
        QThread::msleep(static_cast<unsigned long>(interval > 0 ? interval : 1000));
        api.RefreshConfig();
        return true;
    };
    return cli.run(arguments);
}

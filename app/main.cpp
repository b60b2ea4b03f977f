#include "app/sk_startup.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    Q_INIT_RESOURCE(resources);
    Q_INIT_RESOURCE(translations);

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication app(argc, argv);
    return SK_RunConsole(app);
}

// The Help menu's entries: the About box, the user guide, the support site and the
// licence agreement.

#include "app/sk_mainwindow.h"

void SK_MainWindow::about()
{
    menu_refresh();
}

void SK_MainWindow::userGuide() {}

void SK_MainWindow::supportSite() {}

void SK_MainWindow::eula() {}

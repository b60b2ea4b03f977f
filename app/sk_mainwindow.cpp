#include "app/sk_mainwindow.h"

#include "driver/driver.h"

#include <QIcon>
#include <QLabel>

SK_MainWindow::SK_MainWindow(QWidget *parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("SK_MainWindow"));
    setWindowTitle(QStringLiteral("StrataKeep"));
    setWindowIcon(QIcon(QStringLiteral(":/images/icons/Logo.ico")));

    m_linkLabel = new QLabel(this);
    m_linkLabel->setObjectName(QStringLiteral("driverLinkLabel"));
    m_linkLabel->setAlignment(Qt::AlignCenter);
    m_linkLabel->setMargin(24);
    setCentralWidget(m_linkLabel);
    showDriverLink();
    resize(640, 360);
}

SK_MainWindow::~SK_MainWindow() = default;

// Opens a channel to the first core and says what answered.
void SK_MainWindow::showDriverLink()
{
    SKTL_LockGuard lock;
    SK_Core core(".", "Core1", 0);
    if (core.Handle == 0) {
        m_linkLabel->setText(tr("No RAID driver was found on this computer (%1 platform).")
                                 .arg(QString::fromLatin1(SK_CurrentPlatform().name())));
        return;
    }
    m_linkLabel->setText(tr("Connected to %1 on channel %2.\n"
                            "Configuration generation %3: %4 disks, %5 arrays, "
                            "%6 controllers, %7 enclosures.")
                             .arg(QString::fromLatin1(core.ChannelPath))
                             .arg(core.ChannelId)
                             .arg(core.Generation)
                             .arg(core.DiskCount)
                             .arg(core.ArrayCount)
                             .arg(core.ControllerCount)
                             .arg(core.EnclosureCount));
}

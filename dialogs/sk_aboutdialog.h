#pragma once
// The About box: the application's version and those of the three driver files.

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class SK_AboutDialog;
}
class SK_RaidApi;

class SK_AboutDialog : public QDialog
{
    Q_OBJECT

public:
    // `buildString` is the program's major.minor.patch-build text; empty takes the
    // application's version.
    SK_AboutDialog(SK_RaidApi &service, QWidget *parent = nullptr,
                   const QString &buildString = QString());
    ~SK_AboutDialog() override;

    // The version as the box shows it for a program run from `appDir`: the build string
    // itself from the default installation folder, else the store package's four-number
    // form with " UWP".
    static QString displayedVersion(const QString &buildString, const QString &appDir);

private:
    SK_RaidApi *api = nullptr; // the window's service
    std::unique_ptr<Ui::SK_AboutDialog> ui;
};

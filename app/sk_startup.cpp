#include "app/sk_startup.h"

#include "app/sk_backend.h"
#include "app/sk_languages.h"
#include "app/sk_mainwindow.h"
#include "app/sk_settings.h"
#include "app/sk_singleinstance.h"
#include "app/sk_version.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPixmap>
#include <QSettings>
#include <QTranslator>

#include <memory>

namespace {

// The single-instance lock lives as long as the process, like the mutex it stands for.
std::unique_ptr<SK_SingleInstance> &instanceLock()
{
    static std::unique_ptr<SK_SingleInstance> lock;
    return lock;
}

} // namespace

void SK_SetApplicationIdentity()
{
    QCoreApplication::setApplicationName(QStringLiteral("StrataKeep"));
    QCoreApplication::setOrganizationName(QStringLiteral("VOR"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("vor-storage.com"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(SK_VersionText));
}

bool SK_RefuseSecondCopy()
{
    auto &lock = instanceLock();
    if (!lock)
        lock = std::make_unique<SK_SingleInstance>(QStringLiteral("StrataKeep"));
    if (!lock->alreadyRunning())
        return false;

    auto *box = new QMessageBox;
    box->setObjectName(QStringLiteral("alreadyRunningMessage"));
    box->setText(QCoreApplication::translate("main", "The Application is already running."));
    box->setIconPixmap(QPixmap(QStringLiteral(":/images/icons/Logo.ico")));
    box->exec();
    delete box;
    return true;
}

bool SK_ChooseTranslation(QTranslator &translator, QSettings &settings)
{
    const QString lang = settings.value(SK_SettingsKey::ApplicationLanguage).toString();
    QString languageWord = QLocale::languageToString(QLocale().language());

    if (!lang.isEmpty()) {
        // A failed load is silent and leaves the stored language as it is.
        languageWord = QLocale::languageToString(QLocale(lang).language());
        if (!translator.load(SK_TranslationPath(languageWord, lang)))
            return false;
        QCoreApplication::installTranslator(&translator);
        return true;
    }

    const QString code = QLocale().bcp47Name();
    if (translator.load(SK_TranslationPath(languageWord, code))) {
        QCoreApplication::installTranslator(&translator);
        settings.setValue(SK_SettingsKey::ApplicationLanguage, code);
        return true;
    }
    settings.setValue(SK_SettingsKey::ApplicationLanguage, QStringLiteral("en"));
    return false;
}

bool SK_InstallQtTranslation(QTranslator &translator, const QString &language)
{
    // Qt's catalogue is embedded only for the languages the console is translated into;
    // for the others Qt's own texts stay English like the console's.
    if (!translator.load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                         QStringLiteral(":/translations/qt")))
        return false;
    return QCoreApplication::installTranslator(&translator);
}

int SK_RunConsole(QApplication &app)
{
    SK_SetApplicationIdentity();
    if (SK_RefuseSecondCopy())
        return 0;

    QTranslator translator;
    QTranslator qtTranslator;
    QSettings settings;
    if (SK_ChooseTranslation(translator, settings))
        SK_InstallQtTranslation(qtTranslator,
                                settings.value(SK_SettingsKey::ApplicationLanguage).toString());

    QString backendError;
    if (!SK_InstallBackend(backendError)) {
        QMessageBox::critical(nullptr, QCoreApplication::applicationName(),
                              QCoreApplication::translate("main", "The emulated host could not be "
                                                                  "started:\n%1\n\nThe console "
                                                                  "runs without RAID drivers.")
                                  .arg(backendError));
    }

    int result = 0;
    {
        SK_MainWindow window;
        window.show();
        result = app.exec();
    }
    QCoreApplication::removeTranslator(&qtTranslator);
    QCoreApplication::removeTranslator(&translator);
    return result;
}

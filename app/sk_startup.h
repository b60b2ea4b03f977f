#pragma once
// Process start-up of the console, from the application identity to the end of the
// event loop. main() sets the high-DPI attribute, constructs the QApplication and
// hands it here.

#include <QString>

class QApplication;
class QSettings;
class QTranslator;

// Identity values under which settings are kept.
void SK_SetApplicationIdentity();

// Takes the single-instance lock. When another copy holds it, shows
// "The Application is already running." and returns true: the caller quits with 0.
bool SK_RefuseSecondCopy();

// Chooses and installs the translation for the stored ApplicationLanguage; on the first
// run takes the system locale and stores the code (or "en" when there's no resource).
// Returns true when a translation was installed.
bool SK_ChooseTranslation(QTranslator &translator, QSettings &settings);

// Installs Qt's own translation (standard buttons and dialogs) for the language code, when
// the console carries one. Returns true when it was installed.
bool SK_InstallQtTranslation(QTranslator &translator, const QString &language);

// Everything after the QApplication exists: identity, single instance, translation,
// main window, event loop. Returns exec()'s value, or 0 for a refused second copy.
int SK_RunConsole(QApplication &app);

#pragma once
// The languages the console offers: the translation resources and the event
// catalogue's language numbers, both keyed by the ApplicationLanguage code.

#include <QString>
#include <QVector>

struct SK_LanguageResource
{
    const char *code;     // locale code stored in ApplicationLanguage: "de", "da_DK"
    const char *fileWord; // language word of the resource's file name
};

// The 36 translation resources, exactly as embedded.
const QVector<SK_LanguageResource> &SK_LanguageResources();

// ":/translations/languages/StrataPanel2_<word>_<code>.qm"
QString SK_TranslationPath(const QString &languageWord, const QString &code);

// The event catalogue's language number for an ApplicationLanguage code; 0 (English)
// for a code the table doesn't hold.
int SK_EventLanguage(const QString &code);

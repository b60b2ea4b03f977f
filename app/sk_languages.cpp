#include "app/sk_languages.h"

#include <QHash>

const QVector<SK_LanguageResource> &SK_LanguageResources()
{
    // Two Chinese files carry the word "Chineese" in their names. A stored "zh_CN" or
    // "zh_TW" therefore never finds its file and runs in English; the names stay as
    // they are because installed settings and packaging depend on them.
    static const QVector<SK_LanguageResource> resources = {
        {"ar", "Arabic"},        {"bg_BG", "Bulgarian"},  {"cs_CZ", "Czech"},
        {"da_DK", "Danish"},     {"de", "German"},        {"el_GR", "Greek"},
        {"en", "English"},       {"es_ES", "Spanish"},    {"et_EE", "Estonian"},
        {"fi_FI", "Finnish"},    {"fr", "French"},        {"he", "Hebrew"},
        {"hr_HR", "Croatian"},   {"hu_HU", "Hungarian"},  {"it_IT", "Italian"},
        {"ja", "Japanese"},      {"uk_UA", "Ukrainian"},  {"zh_HK", "Chinese"},
        {"ko_KR", "Korean"},     {"lt_LT", "Lithuanian"}, {"lv_LV", "Latvian"},
        {"nl_NL", "Dutch"},      {"no", "Norwegian"},     {"pl", "Polish"},
        {"pt_BR", "Portuguese"}, {"pt_PT", "Portuguese"}, {"ro", "Romanian"},
        {"ru_RU", "Russian"},    {"sk", "Slovak"},        {"sl", "Slovenian"},
        {"sr", "Serbian"},       {"sv_SE", "Swedish"},    {"th", "Thai"},
        {"tr_TR", "Turkish"},    {"zh_CN", "Chineese"},   {"zh_TW", "Chineese"},
    };
    return resources;
}

QString SK_TranslationPath(const QString &languageWord, const QString &code)
{
    return QStringLiteral("%1%2%3_%4.qm")
        .arg(QStringLiteral(":/translations/languages/"), QStringLiteral("StrataPanel2_"),
             languageWord, code);
}

int SK_EventLanguage(const QString &code)
{
    static const QHash<QString, int> numbers = {
        {"en", 0},     {"zh_CN", 1},  {"zh_TW", 2},  {"nl_NL", 3},  {"fr", 4},     {"de", 5},
        {"pt_BR", 6},  {"it_IT", 7},  {"ja", 8},     {"ko_KR", 9},  {"ru_RU", 10}, {"es_ES", 11},
        {"sv_SE", 12}, {"ar", 13},    {"bg_BG", 14}, {"hr_HR", 15}, {"cs_CZ", 16}, {"da_DK", 17},
        {"et_EE", 18}, {"fi_FI", 19}, {"el_GR", 20}, {"he", 21},    {"zh_HK", 22}, {"hu_HU", 23},
        {"lv_LV", 24}, {"lt_LT", 25}, {"no", 26},    {"pl", 27},    {"pt_PT", 28}, {"ro", 29},
        {"sr", 30},    {"sk", 31},    {"sl", 32},    {"th", 33},    {"tr_TR", 34}, {"uk_UA", 35},
    };
    return numbers.value(code, 0);
}

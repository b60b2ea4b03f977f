#pragma once
// The per-language text tables of the message catalogue, one source file each.

#include "events/sk_message_catalogue.h"

extern const wchar_t *const SK_MessagesChineseSimplified[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesChineseTraditional[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesDutch[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesFrench[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesGerman[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesPortugueseBrazil[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesItalian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesJapanese[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesKorean[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesRussian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesSpanish[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesSwedish[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesArabic[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesBulgarian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesCroatian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesCzech[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesDanish[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesEstonian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesFinnish[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesGreek[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesHebrew[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesHungarian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesLatvian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesLithuanian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesNorwegian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesPolish[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesPortuguesePortugal[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesRomanian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesSerbian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesSlovak[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesSlovenian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesThai[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesTurkish[SK_MESSAGE_COUNT];

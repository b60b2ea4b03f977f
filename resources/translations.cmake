# The 36 translation sources, one per language the console offers.
set(SK_TRANSLATION_SOURCES
    translations/StrataPanel2_Arabic_ar.ts
    translations/StrataPanel2_Bulgarian_bg_BG.ts
    translations/StrataPanel2_Chineese_zh_CN.ts
    translations/StrataPanel2_Chineese_zh_TW.ts
    translations/StrataPanel2_Chinese_zh_HK.ts
    translations/StrataPanel2_Croatian_hr_HR.ts
    translations/StrataPanel2_Czech_cs_CZ.ts
    translations/StrataPanel2_Danish_da_DK.ts
    translations/StrataPanel2_Dutch_nl_NL.ts
    translations/StrataPanel2_English_en.ts
    translations/StrataPanel2_Estonian_et_EE.ts
    translations/StrataPanel2_Finnish_fi_FI.ts
    translations/StrataPanel2_French_fr.ts
    translations/StrataPanel2_German_de.ts
    translations/StrataPanel2_Greek_el_GR.ts
    translations/StrataPanel2_Hebrew_he.ts
    translations/StrataPanel2_Hungarian_hu_HU.ts
    translations/StrataPanel2_Italian_it_IT.ts
    translations/StrataPanel2_Japanese_ja.ts
    translations/StrataPanel2_Korean_ko_KR.ts
    translations/StrataPanel2_Latvian_lv_LV.ts
    translations/StrataPanel2_Lithuanian_lt_LT.ts
    translations/StrataPanel2_Norwegian_no.ts
    translations/StrataPanel2_Polish_pl.ts
    translations/StrataPanel2_Portuguese_pt_BR.ts
    translations/StrataPanel2_Portuguese_pt_PT.ts
    translations/StrataPanel2_Romanian_ro.ts
    translations/StrataPanel2_Russian_ru_RU.ts
    translations/StrataPanel2_Serbian_sr.ts
    translations/StrataPanel2_Slovak_sk.ts
    translations/StrataPanel2_Slovenian_sl.ts
    translations/StrataPanel2_Spanish_es_ES.ts
    translations/StrataPanel2_Swedish_sv_SE.ts
    translations/StrataPanel2_Thai_th.ts
    translations/StrataPanel2_Turkish_tr_TR.ts
    translations/StrataPanel2_Ukrainian_uk_UA.ts
)

# What lupdate reads: every source and form of the console's Qt layers. Headers resolve from
# the project root, so that each tr() lands in its class's context. Obsolete entries and
# source locations stay out of the files, which keeps their diffs to real text changes.
get_filename_component(_sk_source_root "${CMAKE_CURRENT_LIST_DIR}/.." ABSOLUTE)
set(SK_LUPDATE_ARGUMENTS
    -no-obsolete -locations none -I "${_sk_source_root}"
    "${_sk_source_root}/app" "${_sk_source_root}/dialogs" "${_sk_source_root}/service")

#pragma once
// Keys of the application-wide settings, kept under the application identity.

namespace SK_SettingsKey {
constexpr const char ApplicationLanguage[] = "ApplicationLanguage";
constexpr const char ApplicationTheme[] = "ApplicationTheme";
constexpr const char ApplicationIconSize[] = "ApplicationIconSize";
constexpr const char ApplicationFontSize[] = "ApplicationFontSize";
constexpr const char ApplicationRunOnStartup[] = "ApplicationRunOnStartup";
constexpr const char MainWindowGeometry[] = "mainWindowGeometry";
constexpr const char MainWindowState[] = "mainWindowState";
constexpr const char DiskListHeaderState[] = "diskListHeaderState";
constexpr const char ArrayListHeaderState[] = "arrayListHeaderState";
} // namespace SK_SettingsKey

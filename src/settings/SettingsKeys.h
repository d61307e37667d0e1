#pragma once
#include <string_view>

namespace nomra::settings {

// Written as a value instead of removing an entry; the compaction then drops
// every line whose trimmed text ends in it.
inline constexpr std::string_view kDeleteMarker = "<<DELETE>>";

// Files in the data folder and the application folder.
inline constexpr char kSettingsFileName[] = "settings.nrp";
inline constexpr char kStructuresFileName[] = "structures.nrp";
inline constexpr char kUpdateFileName[] = "update.nrp";
inline constexpr char kCompactionTempName[] = "format.tmp";
inline constexpr std::string_view kLanguageFileEnding = ".lng";

// The update instructions: a version in [Main], then numbered keys A1, A2, ...
// in [Add], C1, C2, ... in [Copy] and D1, D2, ... in [Del].
inline constexpr char kMainSection[] = "Main";
inline constexpr char kVersionKey[] = "Version";
inline constexpr char kAddSection[] = "Add";
inline constexpr char kAddKeyPrefix[] = "A";
inline constexpr char kCopySection[] = "Copy";
inline constexpr char kCopyKeyPrefix[] = "C";
inline constexpr char kDelSection[] = "Del";
inline constexpr char kDelKeyPrefix[] = "D";
inline constexpr char kInstructionSeparator = '|';

// The rename protocol in the data folder.
inline constexpr char kProtocolFileName[] = "renamed.nrp";

// Section "Settings" of the settings file.
inline constexpr char kSettingsSection[] = "Settings";
inline constexpr char kLettersKey[] = "letters";
inline constexpr char kSecurityQuestion1Key[] = "secquest1";
inline constexpr char kSecurityQuestion2Key[] = "secquest2";
inline constexpr char kSecurityQuestion3Key[] = "secquest3";
inline constexpr char kExpertModeKey[] = "ExpertMode";
inline constexpr char kCheckExistenceKey[] = "CheckExistence";
inline constexpr char kLoadExifDatesKey[] = "LoadEXIFDates";
inline constexpr char kProtocolRenamesKey[] = "protren";

}  // namespace nomra::settings

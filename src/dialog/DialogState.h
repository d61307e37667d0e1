#pragma once
#include <string_view>

#include "core/FrontEnd.h"
#include "dialog/DialogModel.h"
#include "dialog/ScriptSession.h"
#include "platform/FileSystem.h"

namespace nomra::dialog {

// Where a dialog's state goes: mode 1 remembers the last inputs in the
// settings file under a section, mode 2 appends a step to the recording.
inline constexpr int kSettingsMode = 1;
inline constexpr int kScriptMode = 2;

// Replaces every blank by the stand-in (U+0090), because INI values lose
// their outer blanks when read; and back.
std::string EncodeStoredValue(std::string_view value);
std::string DecodeStoredText(std::string_view value);

// The value an input stores, by its kind; "" for an input that stores none.
std::string StoredValueOf(const DialogInput& input);

// Writes every input of the dialog to the section `name` of the settings
// file (mode 1), or as a new step of type `name` to the recording (mode 2:
// the step counter Main/Steps goes up first). An empty value is written as
// the delete marker and the file compacted, so the key of an input that has
// become empty goes away. Throws nomra::RuntimeFault when the step counter
// would pass 32767 or Main/Steps is no number.
void StoreDialogState(const DialogModel& dialog, std::string_view name, int mode, const ScriptSession& session,
                      platform::FileSystem& fileSystem);

// Sets the inputs from the section of the settings file (mode 1) or from
// step `section` of the script being played (mode 2). A missing key leaves
// its input as it is; a value the input refuses is passed over. Restoring a
// multi-selection list shows plain message boxes through `frontEnd`, as the
// program always has.
void RestoreDialogState(DialogModel& dialog, std::string_view section, int mode, const ScriptSession& session,
                        platform::FileSystem& fileSystem, core::FrontEnd& frontEnd);

}  // namespace nomra::dialog

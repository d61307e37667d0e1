#include "dialog/DialogState.h"

#include <limits>

#include "base/Fault.h"
#include "formats/IniFile.h"
#include "formats/IniNumber.h"
#include "settings/CompactIniFile.h"
#include "settings/SettingsKeys.h"

namespace nomra::dialog {

namespace {

// U+0090 in UTF-8: the one character that stands for a stored blank.
constexpr std::string_view kBlankStandIn = "\xC2\x90";

constexpr char kScriptMainSection[] = "Main";
constexpr char kStepsKey[] = "Steps";
constexpr char kTypeKey[] = "Type";

std::string JoinSelectedRows(const DialogInput& input) {
  std::string joined;
  for (std::size_t row = 0; row < input.rowSelected.size(); ++row) {
    if (!input.rowSelected[row]) continue;
    if (!joined.empty()) joined += ',';
    joined += std::to_string(row);
  }
  return joined;
}

// Counts the new step in before any of its values are written.
std::string OpenScriptStep(std::string_view type, const formats::IniFile& file) {
  const long steps = file.ReadInt(kScriptMainSection, kStepsKey);
  if (steps < std::numeric_limits<std::int16_t>::min() || steps >= std::numeric_limits<std::int16_t>::max()) {
    throw base::RuntimeFault("Overflow: a script holds at most 32767 steps");
  }
  const std::string section = std::to_string(steps + 1);
  file.Write(section, kTypeKey, type);
  file.Write(kScriptMainSection, kStepsKey, steps + 1);
  return section;
}

std::optional<int> NumberOf(std::string_view value) {
  const std::optional<long> number = formats::ParseIniNumber(value);
  if (!number || *number < std::numeric_limits<int>::min() || *number > std::numeric_limits<int>::max()) {
    return std::nullopt;
  }
  return static_cast<int>(*number);
}

// Each part is announced, then selected; then every selected row is
// announced. The message boxes are the program's own habit and stay.
void RestoreMultiSelection(DialogInput& input, std::string_view value, core::FrontEnd& frontEnd) {
  std::size_t start = 0;
  int part = 0;
  while (start <= value.size()) {
    const std::size_t comma = value.find(',', start);
    const std::string_view text =
        value.substr(start, comma == std::string_view::npos ? std::string_view::npos : comma - start);
    frontEnd.ShowPlainMessage(std::to_string(part++));
    if (const std::optional<int> row = NumberOf(text)) DialogModel::SetRowSelected(input, *row, true);
    if (comma == std::string_view::npos) break;
    start = comma + 1;
  }
  for (std::size_t row = 0; row < input.rowSelected.size(); ++row) {
    if (input.rowSelected[row]) frontEnd.ShowPlainMessage(std::to_string(row));
  }
}

void RestoreInput(DialogModel& dialog, DialogInput& input, std::string_view value, core::FrontEnd& frontEnd) {
  switch (input.kind) {
    case InputKind::Text: input.text = DecodeStoredText(value); return;
    case InputKind::OptionButton:
      if (const std::optional<int> number = NumberOf(value)) dialog.SetOption(input, *number != 0);
      return;
    case InputKind::CheckBox:
    case InputKind::VerticalScrollBar:
    case InputKind::ComboBox:
    case InputKind::SingleSelectionList:
      if (const std::optional<int> number = NumberOf(value)) dialog.SetNumber(input, *number);
      return;
    case InputKind::MultiSelectionList: RestoreMultiSelection(input, value, frontEnd); return;
    case InputKind::NoValue: return;
  }
}

}  // namespace

std::string EncodeStoredValue(std::string_view value) {
  std::string encoded;
  encoded.reserve(value.size());
  for (char c : value) {
    if (c == ' ') {
      encoded += kBlankStandIn;
    } else {
      encoded += c;
    }
  }
  return encoded;
}

std::string DecodeStoredText(std::string_view value) {
  std::string decoded;
  decoded.reserve(value.size());
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value.substr(i, kBlankStandIn.size()) == kBlankStandIn) {
      decoded += ' ';
      i += kBlankStandIn.size() - 1;
    } else {
      decoded += value[i];
    }
  }
  return decoded;
}

std::string StoredValueOf(const DialogInput& input) {
  switch (input.kind) {
    case InputKind::Text: return input.text;
    case InputKind::OptionButton: return input.selected ? "-1" : "";
    case InputKind::CheckBox:
    case InputKind::VerticalScrollBar:
    case InputKind::ComboBox:
    case InputKind::SingleSelectionList: return std::to_string(input.number);
    case InputKind::MultiSelectionList: return JoinSelectedRows(input);
    case InputKind::NoValue: return "";
  }
  return "";
}

void StoreDialogState(const DialogModel& dialog, std::string_view name, int mode, const ScriptSession& session,
                      platform::FileSystem& fileSystem) {
  const formats::IniFile file(fileSystem, mode == kScriptMode ? session.tempPath : session.settingsPath);
  std::string section(name);
  if (mode == kScriptMode) section = OpenScriptStep(name, file);
  for (const DialogInput& input : dialog.Inputs()) {
    const std::string value = StoredValueOf(input);
    file.Write(section, input.Key(), value.empty() ? settings::kDeleteMarker : EncodeStoredValue(value));
  }
  settings::CompactIniFile(fileSystem, file.Path(), session.dataFolder);
}

void RestoreDialogState(DialogModel& dialog, std::string_view section, int mode, const ScriptSession& session,
                        platform::FileSystem& fileSystem, core::FrontEnd& frontEnd) {
  const formats::IniFile file(fileSystem, mode == kScriptMode ? session.runPath : session.settingsPath);
  for (DialogInput& input : dialog.Inputs()) {
    const std::string value = file.ReadString(section, input.Key());
    if (value.empty()) continue;
    RestoreInput(dialog, input, value, frontEnd);
  }
}

}  // namespace nomra::dialog

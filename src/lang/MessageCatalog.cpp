#include "lang/MessageCatalog.h"

#include <utility>

#include "base/Cp1252.h"
#include "base/Helpers.h"
#include "base/Utf8.h"
#include "lang/LanguageKeys.h"
#include "settings/FileBytes.h"
#include "settings/IniLines.h"
#include "settings/IniNumber.h"

namespace nomra::lang {

namespace {

// Texts are read as the settings store reads its values: a profile buffer of
// this many characters.
constexpr std::size_t kLongestValue = 999;

std::string CutToCharacters(std::string value, std::size_t limit) {
  std::size_t count = 0;
  std::size_t cutAt = std::string::npos;
  text::ForEachChar(value, [&](char32_t, std::size_t offset, std::size_t) {
    if (count++ == limit && cutAt == std::string::npos) cutAt = offset;
  });
  if (cutAt != std::string::npos) value.resize(cutAt);
  return value;
}

}  // namespace

MessageCatalog::MessageCatalog(const std::string& languageFile) : path_(languageFile) {
  if (const auto bytes = settings::ReadFileBytes(languageFile)) {
    lines_ = settings::SplitLines(text::DecodeTextFile(*bytes));
  }
}

std::string MessageCatalog::GetText(std::string_view section, std::string_view key,
                                    const std::vector<std::string>& arguments) const {
  auto value = settings::FindValue(lines_, section, key);
  if (!value) return {};
  return FormatMessage(CutToCharacters(std::move(*value), kLongestValue), arguments);
}

const std::string& MessageCatalog::FilePath() const { return path_; }

std::string MessageCatalog::LanguageName() const { return GetText(kMainSection, kLanguageNameKey); }

int MessageCatalog::Charset() const {
  // Nothing uses the value yet, so a broken entry must not stop the start.
  const auto number = settings::ParseIniNumber(GetText(kMainSection, kCharsetKey));
  if (!number || *number == -1) return 0;
  return static_cast<int>(*number);
}

}  // namespace nomra::lang

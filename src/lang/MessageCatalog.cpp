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

MessageCatalog::MessageCatalog(const std::string& languageFile) : path_(languageFile) {
  if (const auto bytes = settings::ReadFileBytes(languageFile)) {
    lines_ = settings::SplitLines(text::DecodeTextFile(*bytes));
  }
}

std::string MessageCatalog::GetText(std::string_view section, std::string_view key,
                                    const std::vector<std::string>& arguments) const {
  auto value = settings::FindValue(lines_, section, key);
  if (!value) return {};
  return FormatMessage(settings::CutToLongestValue(std::move(*value)), arguments);
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

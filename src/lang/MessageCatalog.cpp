#include "lang/MessageCatalog.h"

#include <utility>

#include "base/Cp1252.h"
#include "base/MessageText.h"
#include "base/Utf8.h"
#include "formats/IniLines.h"
#include "formats/IniNumber.h"
#include "lang/LanguageKeys.h"

namespace nomra::lang {

MessageCatalog::MessageCatalog(platform::FileSystem& fileSystem, const std::string& languageFile)
    : path_(languageFile) {
  if (const auto bytes = fileSystem.ReadFile(languageFile)) {
    lines_ = formats::SplitLines(base::DecodeTextFile(*bytes));
  }
}

std::string MessageCatalog::GetText(std::string_view section, std::string_view key,
                                    const std::vector<std::string>& arguments) const {
  auto value = formats::FindValue(lines_, section, key);
  if (!value) return {};
  return base::FormatMessage(formats::CutToLongestValue(std::move(*value)), arguments);
}

const std::string& MessageCatalog::FilePath() const { return path_; }

std::string MessageCatalog::LanguageName() const { return GetText(kMainSection, kLanguageNameKey); }

int MessageCatalog::Charset() const {
  // Nothing uses the value yet, so a broken entry must not stop the start.
  const auto number = formats::ParseIniNumber(GetText(kMainSection, kCharsetKey));
  if (!number || *number == -1) return 0;
  return static_cast<int>(*number);
}

}  // namespace nomra::lang

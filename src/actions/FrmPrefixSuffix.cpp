#include "actions/FrmPrefixSuffix.h"

#include "base/NameSplit.h"
#include "rename/ActionScope.h"

namespace nomra::actions {

namespace {

constexpr char kPrefixInput[] = "txtPr";
constexpr char kSuffixInput[] = "txtSu";

}  // namespace

FrmPrefixSuffix::FrmPrefixSuffix() : rename::ActionDialog("frmPrefixSuffix") {
  dialog::DialogModel& model = Model();
  model.AddText(kPrefixInput);
  model.AddText(kSuffixInput);
  model.AddNoValue("lblPrefix");
  model.AddNoValue("lblSuffix");
  rename::AddFrameButtons(model);
}

const rename::ActionTraits& FrmPrefixSuffix::Traits() const {
  static const rename::ActionTraits traits{
      "frmPrefixSuffix", "FrmPS", "FrmPS", 5, false, rename::RestoreMoment::OnLoad};
  return traits;
}

void FrmPrefixSuffix::Run(const rename::ActionContext& context) {
  const std::string prefix = Model().Text(kPrefixInput);
  const std::string suffix = Model().Text(kSuffixInput);
  rename::RewritePendingNames(context, [&](int, const core::FileEntry& entry) {
    return AddPrefixAndSuffix(entry[core::kColNewName], prefix, suffix);
  });
}

std::string AddPrefixAndSuffix(std::string_view name, std::string_view prefix, std::string_view suffix) {
  std::string stem;
  std::string extension;
  base::SplitNameExtension(name, stem, extension);
  std::string result;
  result.reserve(prefix.size() + name.size() + suffix.size());
  result.append(prefix).append(stem).append(suffix).append(extension);
  return result;
}

std::optional<std::pair<std::string, std::string>> PrefixSuffixLabels(std::string_view caption) {
  const std::size_t slash = caption.find('/');
  if (slash == std::string_view::npos) return std::nullopt;
  const std::size_t blank = caption.find(' ', slash + 1);
  const std::string_view suffix =
      caption.substr(slash + 1, blank == std::string_view::npos ? std::string_view::npos : blank - slash - 1);
  return std::make_pair(std::string(caption.substr(0, slash)) + ":", std::string(suffix) + ":");
}

}  // namespace nomra::actions

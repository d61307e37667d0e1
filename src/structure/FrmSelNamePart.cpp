#include "structure/FrmSelNamePart.h"

#include "base/NameSplit.h"
#include "structure/LanguageNumber.h"
#include "structure/PreviewRow.h"
#include "structure/TagArguments.h"
#include "structure/TextSearch.h"

namespace nomra::structure {

namespace {

constexpr char kSeparatorInput[] = "txtSeparator";
constexpr char kPartInput[] = "cmbPartCount";
constexpr char kBlanksInput[] = "chkRemoveBlanks";
constexpr char kFileNameInput[] = "txtFileName";
constexpr char kResultInput[] = "txtResult";
constexpr char kTag[] = "<NamePart(";
constexpr int kParts = 9;

std::vector<std::string> PartNumbers() {
  std::vector<std::string> numbers;
  for (int n = 1; n <= kParts; ++n) numbers.push_back(std::to_string(n));
  return numbers;
}

}  // namespace

FrmSelNamePart::FrmSelNamePart(const core::FileList& list) : list_(list), dialog_("frmSelNamePart") {
  dialog_.AddNoValue("lblSeparator");
  dialog_.AddText(kSeparatorInput);
  dialog_.AddNoValue("lblPartCount");
  dialog_.AddCombo(kPartInput, PartNumbers());
  dialog_.AddNoValue("lblRemoveBlanks");
  dialog_.AddCheck(kBlanksInput);
  dialog_.AddNoValue("lblExample");
  dialog_.AddText(kFileNameInput);
  AddPreviewScrollBar(dialog_);
  dialog_.AddNoValue("lblPreview");
  dialog_.AddText(kResultInput);
  for (const char* name : {"cmdOK", "cmdCancel"}) dialog_.AddNoValue(name);
  // The language's own defaults: the first part, blanks trimmed.
  dialog_.SetNumber(kPartInput, 0);
  dialog_.SetNumber(kBlanksInput, 1);
}

void FrmSelNamePart::Load(std::string_view target) {
  FitPreviewScrollBar(dialog_, list_);
  if (HoldsTagNoCase(target, kTag)) {
    const TagArguments args = ParseTagArguments(target, kTag);
    if (!args.empty()) dialog_.SetText(kSeparatorInput, StripQuotes(args[0]));
    if (args.size() > 1) {
      const long part = WholeNumberOr(args[1], 0);
      if (part >= 1 && part <= kParts) dialog_.SetNumber(kPartInput, static_cast<int>(part) - 1);
    }
    if (args.size() > 2) {
      const long blanks = WholeNumberOr(args[2], -1);
      if (blanks == 0 || blanks == 1) dialog_.SetNumber(kBlanksInput, static_cast<int>(blanks));
    }
  }
  RefreshPreview();
}

void FrmSelNamePart::SetSeparator(std::string separator) {
  dialog_.SetText(kSeparatorInput, std::move(separator));
  RefreshPreview();
}

void FrmSelNamePart::SetPartIndex(int index) {
  if (index >= 0 && dialog_.SetNumber(kPartInput, index)) RefreshPreview();
}

void FrmSelNamePart::SetRemoveBlanks(bool remove) {
  dialog_.SetNumber(kBlanksInput, remove ? 1 : 0);
  RefreshPreview();
}

void FrmSelNamePart::SetPreviewRow(int row) {
  if (dialog_.SetNumber(kPreviewScrollBar, row)) RefreshPreview();
}

bool FrmSelNamePart::OkEnabled() const { return !dialog_.Text(kSeparatorInput).empty(); }

std::string FrmSelNamePart::TagText() const {
  return std::string(kTag) + '"' + dialog_.Text(kSeparatorInput) + "\"," +
         std::to_string(dialog_.Number(kPartInput) + 1) + "," + std::to_string(dialog_.Number(kBlanksInput)) + ")>";
}

void FrmSelNamePart::RefreshPreview() {
  const core::FileEntry* entry = PreviewEntry(dialog_, list_);
  dialog_.SetText(kFileNameInput, entry == nullptr ? std::string() : (*entry)[core::kColNewName]);
  if (entry == nullptr || !OkEnabled()) {
    dialog_.SetText(kResultInput, {});
    return;
  }
  dialog_.SetText(kResultInput, NamePart(base::NameOnly((*entry)[core::kColNewName]), dialog_.Text(kSeparatorInput),
                                         dialog_.Number(kPartInput) + 1, dialog_.Number(kBlanksInput)));
}

}  // namespace nomra::structure

#include "structure/FrmNameStructure.h"

#include <algorithm>

#include "base/Fault.h"
#include "base/Trim.h"
#include "formats/IniLines.h"
#include "lang/LanguageKeys.h"
#include "lang/MessageKeys.h"
#include "rename/ActionDialog.h"
#include "structure/ApplyStructure.h"
#include "structure/FileTagSteps.h"
#include "structure/PreviewRow.h"
#include "structure/StructureEngine.h"

namespace nomra::structure {

namespace {

constexpr char kNameInput[] = "txtName";
constexpr char kStructureInput[] = "txtStructure";
constexpr char kFileNameInput[] = "txtFileName";
constexpr char kResultInput[] = "txtResult";
constexpr char kNewStructureName[] = "Structure ";

bool HoldsText(const std::string& text) { return !base::TrimBlanks(text).empty(); }

}  // namespace

FrmNameStructure::FrmNameStructure(const rename::ActionContext& context, const lang::MessageCatalog& catalog)
    : context_(context), catalog_(catalog), dialog_("frmNameStructure") {
  for (const char* name : {"frameMain", "lstStructures", "cmdStructureAdd", "cmdStructureEdit", "cmdStructureDel",
                           "frameEdit", "lblName"}) {
    dialog_.AddNoValue(name);
  }
  dialog_.AddText(kNameInput);
  dialog_.AddNoValue("lblStructure");
  dialog_.AddText(kStructureInput);
  for (const char* name : {"lblAvailableElements", "lstElements", "lblAvailableFunctions", "lstFunctions",
                           "cmdStructureOK", "cmdStructureCancel", "lblExample"}) {
    dialog_.AddNoValue(name);
  }
  dialog_.AddText(kFileNameInput);
  AddPreviewScrollBar(dialog_);
  dialog_.AddNoValue("lblPreview");
  dialog_.AddText(kResultInput);
  rename::AddFrameButtons(dialog_);
}

std::string FrmNameStructure::StructuresFile() const { return StructuresFilePath(context_.script.dataFolder); }

void FrmNameStructure::Load() {
  loading_ = true;
  structures_ = LoadStoredStructures(context_.fileSystem, StructuresFile());
  elements_ = ElementChoices(catalog_);
  functions_ = FunctionChoices(catalog_);
  FitPreviewScrollBar(dialog_, context_.State().list);
  mode_ = StructureEditMode::None;
  Choose(structures_.empty() ? -1 : 0);
  loading_ = false;
  RefreshPreview();
}

void FrmNameStructure::Choose(int row) {
  chosen_ = row >= 0 && row < static_cast<int>(structures_.size()) ? row : -1;
  ShowChosen();
}

void FrmNameStructure::ShowChosen() {
  const bool any = chosen_ >= 0;
  dialog_.SetText(kNameInput, any ? structures_[chosen_].name : std::string());
  SetStructure(any ? structures_[chosen_].structure : std::string());
}

bool FrmNameStructure::StructureOkEnabled() const {
  return HoldsText(dialog_.Text(kNameInput)) && HoldsText(dialog_.Text(kStructureInput));
}

void FrmNameStructure::SetName(std::string name) { dialog_.SetText(kNameInput, std::move(name)); }

void FrmNameStructure::SetStructure(std::string structure) {
  dialog_.SetText(kStructureInput, std::move(structure));
  RefreshPreview();
}

void FrmNameStructure::SetPreviewRow(int row) {
  if (dialog_.SetNumber(kPreviewScrollBar, row)) RefreshPreview();
}

void FrmNameStructure::RefreshPreview() {
  if (loading_) return;
  const core::FileEntry* entry = PreviewEntry(dialog_, context_.State().list);
  if (entry == nullptr) {
    dialog_.SetText(kFileNameInput, {});
    dialog_.SetText(kResultInput, {});
    return;
  }
  dialog_.SetText(kFileNameInput, (*entry)[core::kColNewName]);
  // A structure that faults shows why in the result: a message box on each
  // key typed would be in the way of mending it.
  std::string result;
  try {
    result = EvaluateStructure(context_.State().list.Item(dialog_.Number(kPreviewScrollBar)),
                               dialog_.Text(kStructureInput), FileTagSteps(context_.fileSystem));
  } catch (const base::RuntimeFault& fault) {
    result = fault.what();
  }
  dialog_.SetText(kResultInput, std::move(result));
}

void FrmNameStructure::Add() {
  SetName(kNewStructureName + std::to_string(structures_.size() + 1));
  mode_ = StructureEditMode::Add;
  SetStructure({});
}

void FrmNameStructure::Edit() {
  if (chosen_ < 0) return;
  mode_ = StructureEditMode::Edit;
}

void FrmNameStructure::Delete() {
  if (chosen_ < 0) return;
  const core::Answer answer = context_.User().Ask({lang::kRemoveStructureQuestion,
                                                   lang::kRemoveStructureCaption,
                                                   core::MessageStyle::YesNoDefaultNo,
                                                   {structures_[chosen_].name}});
  if (answer != core::Answer::Yes) return;
  structures_.erase(structures_.begin() + chosen_);
  Choose(std::min(chosen_, static_cast<int>(structures_.size()) - 1));
}

bool FrmNameStructure::AcceptEdit() {
  if (!Editing() || !StructureOkEnabled() || !CheckStructure()) return false;
  StoredStructure edited{dialog_.Text(kNameInput), dialog_.Text(kStructureInput)};
  if (mode_ == StructureEditMode::Edit && chosen_ >= 0) {
    structures_[chosen_] = std::move(edited);
  } else {
    structures_.push_back(std::move(edited));
    chosen_ = static_cast<int>(structures_.size()) - 1;
  }
  mode_ = StructureEditMode::None;
  RefreshPreview();
  return true;
}

void FrmNameStructure::CancelEdit() {
  mode_ = StructureEditMode::None;
  ShowChosen();
}

bool FrmNameStructure::Apply() {
  SaveStoredStructures(context_.fileSystem, StructuresFile(), structures_);
  if (!CheckStructure()) {
    if (!Editing()) mode_ = chosen_ >= 0 ? StructureEditMode::Edit : StructureEditMode::Add;
    return false;
  }
  if (chosen_ >= 0) ApplyStructure(context_, structures_[chosen_].structure);
  return true;
}

bool FrmNameStructure::Ok() { return Apply() && !Editing(); }

bool FrmNameStructure::CheckStructure() {
  const SyntaxTexts texts{catalog_.GetText(lang::kMessagesSection, lang::kCheckInputQuestion),
                          catalog_.GetText(lang::kMessagesSection, lang::kCorrectSyntaxText)};
  try {
    lastFailure_ = CheckStructureSyntax(context_.State().list, dialog_.Text(kStructureInput), texts,
                                        FileTagSteps(context_.fileSystem));
  } catch (const base::RuntimeFault& fault) {
    // The test evaluation met one of the language's faults: the structure
    // can't be used as it stands.
    lastFailure_ = SyntaxFailure{};
    context_.User().ShowFault(fault.what());
    return false;
  }
  if (!lastFailure_) return true;
  context_.User().Ask(lastFailure_->message);
  return false;
}

}  // namespace nomra::structure

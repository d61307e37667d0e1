#include "actions/FrmFileExtension.h"

#include "base/Trim.h"
#include "structure/ApplyStructure.h"

namespace nomra::actions {

namespace {

constexpr char kChange[] = "optFE(1)";
constexpr char kAddOld[] = "chkAddOldFE";
constexpr char kNewExtension[] = "txtFE";

}  // namespace

FrmFileExtension::FrmFileExtension() : rename::ActionDialog("frmFileExtension") {
  dialog::DialogModel& model = Model();
  model.AddOption("optFE", "optFE", 1);
  model.AddOption("optFE", "optFE", 2);
  model.AddCheck(kAddOld);
  model.AddText(kNewExtension);
  rename::AddFrameButtons(model);
  model.SetOption(kChange, true);
}

const rename::ActionTraits& FrmFileExtension::Traits() const {
  static const rename::ActionTraits traits{"frmFileExtension",           "FrmFE", "FrmFE", 3, true,
                                           rename::RestoreMoment::OnLoad};
  return traits;
}

std::string CleanExtensionInput(std::string_view text) {
  text = base::TrimSpaces(text);
  const std::size_t afterDots = text.find_first_not_of('.');
  return afterDots == std::string_view::npos ? std::string() : std::string(text.substr(afterDots));
}

std::string FrmFileExtension::Structure() const {
  std::string structure = "<Name>";
  if (!Model().IsSelected(kChange)) return structure;
  if (Model().Number(kAddOld) == 1) structure += ".<Ext>";
  const std::string& extension = Model().Text(kNewExtension);
  if (!extension.empty()) structure += "." + extension;
  return structure;
}

bool FrmFileExtension::ChangeInputsEnabled() const { return Model().IsSelected(kChange); }

void FrmFileExtension::Run(const rename::ActionContext& context) {
  Model().SetText(kNewExtension, CleanExtensionInput(Model().Text(kNewExtension)));
  structure::ApplyStructure(context, Structure());
}

}  // namespace nomra::actions

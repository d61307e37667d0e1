#include "actions/FrmTrim.h"

#include <algorithm>

#include "actions/ActionNumbers.h"
#include "base/NameSplit.h"
#include "base/Utf8.h"
#include "rename/ActionScope.h"
#include "structure/ApplyStructure.h"

namespace nomra::actions {

namespace {

constexpr int kChoices = 5;
constexpr int kPathLimit = 5;
constexpr char kMaxPath[] = "txtMaxPath";

}  // namespace

FrmTrim::FrmTrim() : rename::ActionDialog("frmTrim") {
  dialog::DialogModel& model = Model();
  for (int index = 1; index <= kChoices; ++index) model.AddOption("opt1", "opt1", index);
  model.AddText("txtPos", 0).text = "1";
  model.AddScrollBar("VScrollPos", 1, 200, 0).number = 200;
  model.AddText("txtPos", 1).text = "1";
  model.AddScrollBar("VScrollPos", 1, 200, 1).number = 200;
  model.AddText("txtFrom").text = "1";
  model.AddScrollBar("VScrollFrom", 1, 200).number = 200;
  model.AddText("txtTo").text = "1";
  model.AddScrollBar("VScrollTo", 1, 200).number = 200;
  model.AddText(kMaxPath).text = "256";
  model.AddScrollBar("VScrollMaxPath", 1, 237).number = 1;
  model.AddNoValue("cmdGetPos");
  rename::AddFrameButtons(model);
  // With nothing stored: the short name.
  model.SetOption("opt1(4)", true);
}

const rename::ActionTraits& FrmTrim::Traits() const {
  static const rename::ActionTraits traits{"frmTrim", "frmTrim", "frmTrim", 10, true, rename::RestoreMoment::OnLoad};
  return traits;
}

std::string FrmTrim::Structure() const {
  const dialog::DialogModel& model = Model();
  switch (ChosenIndex(model, "opt1", kChoices)) {
    case 1: return "<Name_L(" + model.Text("txtPos(0)") + ")>.<Ext>";
    case 2: return "<Name_R(" + model.Text("txtPos(1)") + ")>.<Ext>";
    case 3: return "<Name_M(" + model.Text("txtFrom") + "," + model.Text("txtTo") + ")>.<Ext>";
    case 4: return "<DosName>";
    default: return {};
  }
}

bool FrmTrim::IsEnabled(std::string_view key) const {
  const int chosen = ChosenIndex(Model(), "opt1", kChoices);
  if (key == "txtPos(0)" || key == "VScrollPos(0)") return chosen == 1;
  if (key == "txtPos(1)" || key == "VScrollPos(1)") return chosen == 2;
  if (key == "txtFrom" || key == "VScrollFrom" || key == "txtTo" || key == "VScrollTo") return chosen == 3;
  if (key == kMaxPath || key == "VScrollMaxPath") return chosen == kPathLimit;
  if (key == "cmdGetPos") return chosen <= 3;
  return true;
}

void FrmTrim::Run(const rename::ActionContext& context) {
  if (ChosenIndex(Model(), "opt1", kChoices) != kPathLimit) {
    structure::ApplyStructure(context, Structure());
    return;
  }
  const long limit = ShortNumberOf(Model(), kMaxPath);
  rename::RewritePendingNames(context, [&](int, core::FileEntry& row) {
    return TrimToPathLimit(row[core::kColPath], row[core::kColNewName], limit);
  });
}

std::string TrimToPathLimit(const std::string& folder, const std::string& name, long limit) {
  const long folderLength = static_cast<long>(base::CharCount(folder));
  if (folderLength + static_cast<long>(base::CharCount(name)) <= limit) return name;
  std::string stem;
  std::string extension;
  base::SplitNameExtension(name, stem, extension);
  const long letters = extension.empty() ? 0 : static_cast<long>(base::CharCount(extension)) - 1;
  const long keep = std::max(0L, limit - folderLength - letters);
  const std::u32string chars = base::ToChars(stem);
  return base::FromChars(std::u32string_view(chars).substr(0, std::min<std::size_t>(chars.size(), keep))) + extension;
}

}  // namespace nomra::actions

#include "actions/FrmULCase.h"

#include <array>

#include "actions/ActionNumbers.h"
#include "structure/ApplyStructure.h"

namespace nomra::actions {

namespace {

constexpr std::array<const char*, 5> kCodes = {"1C", "WC", "UC", "LC", "SC"};
constexpr int kApplyChoices = 3;

}  // namespace

FrmULCase::FrmULCase() : rename::ActionDialog("frmULCase") {
  dialog::DialogModel& model = Model();
  model.AddNoValue("frameOpt");
  for (int index = 1; index <= static_cast<int>(kCodes.size()); ++index) model.AddOption("opt1", "opt1", index);
  model.AddNoValue("frameapply");
  for (int index = 1; index <= kApplyChoices; ++index) model.AddOption("opt2", "opt2", index);
  rename::AddFrameButtons(model);
  // With nothing stored: the first conversion, on the name.
  model.SetOption("opt1(1)", true);
  model.SetOption("opt2(1)", true);
}

const rename::ActionTraits& FrmULCase::Traits() const {
  static const rename::ActionTraits traits{"frmULCase", "frmULCase", "frmULCase",
                                           4,           true,        rename::RestoreMoment::OnLoad};
  return traits;
}

std::string FrmULCase::Structure() const {
  const std::string code = kCodes[ChosenIndex(Model(), "opt1", static_cast<int>(kCodes.size())) - 1];
  const std::string open = "<" + code + ">";
  const std::string close = "</" + code + ">";
  switch (ChosenIndex(Model(), "opt2", kApplyChoices)) {
    case 2: return "<NAME>" + open + "<.EXT>" + close;
    case 3: return open + "<NAME>" + close + open + "<.EXT>" + close;
    default: return open + "<NAME>" + close + "<.EXT>";
  }
}

void FrmULCase::Run(const rename::ActionContext& context) { structure::ApplyStructure(context, Structure()); }

}  // namespace nomra::actions

#include "actions/BuiltInActions.h"

#include <functional>
#include <map>

#include "actions/FrmFileExtension.h"
#include "actions/FrmMove.h"
#include "actions/FrmNumber.h"
#include "actions/FrmPrefixSuffix.h"
#include "actions/FrmRenumber.h"
#include "actions/FrmReplace.h"
#include "actions/FrmTrim.h"
#include "actions/FrmULCase.h"

namespace nomra::actions {

namespace {

// Adding an action dialog is one line here.
const std::map<int, std::function<std::unique_ptr<rename::ActionDialog>()>>& Factories() {
  // clang-format off
  static const std::map<int, std::function<std::unique_ptr<rename::ActionDialog>()>> factories{
      {1, [] { return std::make_unique<FrmNumber>(); }},
      {2, [] { return std::make_unique<FrmRenumber>(); }},
      {3, [] { return std::make_unique<FrmFileExtension>(); }},
      {4, [] { return std::make_unique<FrmULCase>(); }},
      {5, [] { return std::make_unique<FrmPrefixSuffix>(); }},
      {6, [] { return std::make_unique<FrmReplace>(); }},
      {8, [] { return std::make_unique<FrmMove>(); }},
      {10, [] { return std::make_unique<FrmTrim>(); }},
  };
  // clang-format on
  return factories;
}

}  // namespace

std::unique_ptr<rename::ActionDialog> CreateActionDialog(int stepType) {
  const auto found = Factories().find(stepType);
  if (found == Factories().end()) return nullptr;
  return found->second();
}

std::vector<int> KnownStepTypes() {
  std::vector<int> types;
  for (const auto& [type, factory] : Factories()) types.push_back(type);
  return types;
}

}  // namespace nomra::actions

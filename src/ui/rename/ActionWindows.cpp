#include "ui/rename/ActionWindows.h"

#include <functional>
#include <map>

#include "ui/rename/FrmFileExtensionWindow.h"
#include "ui/rename/FrmMoveWindow.h"
#include "ui/rename/FrmNumberWindow.h"
#include "ui/rename/FrmPrefixSuffixWindow.h"
#include "ui/rename/FrmRenumberWindow.h"
#include "ui/rename/FrmReplaceWindow.h"
#include "ui/rename/FrmTrimWindow.h"
#include "ui/rename/FrmULCaseWindow.h"

namespace nomra::ui {

namespace {

using WindowFactory = std::function<std::unique_ptr<ActionDialogWindow>(ActionWindowServices)>;

// Adding an action's window is one line here.
const std::map<int, WindowFactory>& Factories() {
  // clang-format off
  static const std::map<int, WindowFactory> factories{
      {1, [](ActionWindowServices services) { return std::make_unique<FrmNumberWindow>(std::move(services)); }},
      {2, [](ActionWindowServices services) { return std::make_unique<FrmRenumberWindow>(std::move(services)); }},
      {3, [](ActionWindowServices services) { return std::make_unique<FrmFileExtensionWindow>(std::move(services)); }},
      {4, [](ActionWindowServices services) { return std::make_unique<FrmULCaseWindow>(std::move(services)); }},
      {5, [](ActionWindowServices services) { return std::make_unique<FrmPrefixSuffixWindow>(std::move(services)); }},
      {6, [](ActionWindowServices services) { return std::make_unique<FrmReplaceWindow>(std::move(services)); }},
      {8, [](ActionWindowServices services) { return std::make_unique<FrmMoveWindow>(std::move(services)); }},
      {10, [](ActionWindowServices services) { return std::make_unique<FrmTrimWindow>(std::move(services)); }},
  };
  // clang-format on
  return factories;
}

}  // namespace

std::unique_ptr<ActionDialogWindow> CreateActionWindow(int stepType, ActionWindowServices services) {
  const auto found = Factories().find(stepType);
  if (found == Factories().end()) return nullptr;
  return found->second(std::move(services));
}

bool HasActionWindow(int stepType) { return Factories().contains(stepType); }

void OpenActionWindow(int stepType, const ActionWindowServices& services) {
  std::unique_ptr<ActionDialogWindow> window = CreateActionWindow(stepType, services);
  if (window) window->exec();
}

}  // namespace nomra::ui

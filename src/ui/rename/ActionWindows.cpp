#include "ui/rename/ActionWindows.h"

#include <functional>
#include <map>

#include "ui/rename/FrmFileExtensionWindow.h"
#include "ui/rename/FrmPrefixSuffixWindow.h"
#include "ui/rename/FrmULCaseWindow.h"

namespace nomra::ui {

namespace {

using WindowFactory = std::function<std::unique_ptr<ActionDialogWindow>(ActionWindowServices)>;

// Adding an action's window is one line here.
const std::map<int, WindowFactory>& Factories() {
  static const std::map<int, WindowFactory> factories{
      {3, [](ActionWindowServices services) { return std::make_unique<FrmFileExtensionWindow>(std::move(services)); }},
      {4, [](ActionWindowServices services) { return std::make_unique<FrmULCaseWindow>(std::move(services)); }},
      {5, [](ActionWindowServices services) { return std::make_unique<FrmPrefixSuffixWindow>(std::move(services)); }},
  };
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

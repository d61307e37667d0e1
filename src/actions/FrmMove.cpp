#include "actions/FrmMove.h"

#include <algorithm>

#include "actions/ActionNumbers.h"
#include "base/Fault.h"
#include "base/NameSplit.h"
#include "base/Utf8.h"
#include "core/BusyPointer.h"
#include "rename/ActionScope.h"

namespace nomra::actions {

namespace {

constexpr char kRowShown[] = "VScroll1";
constexpr char kAllRows[] = "chkAdd2All";

// VB's Mid: from a 1-based start, `count` characters or all that are left.
std::u32string Mid(const std::u32string& chars, long start, long count = -1) {
  if (start < 1) throw base::RuntimeFault("Invalid procedure call: position " + std::to_string(start));
  if (start > static_cast<long>(chars.size())) return {};
  return chars.substr(static_cast<std::size_t>(start - 1),
                      count < 0 ? std::u32string::npos : static_cast<std::size_t>(count));
}

std::u32string Left(const std::u32string& chars, long count) {
  if (count < 0) throw base::RuntimeFault("Invalid procedure call: length " + std::to_string(count));
  return chars.substr(0, static_cast<std::size_t>(count));
}

}  // namespace

FrmMove::FrmMove() : rename::ActionDialog("frmMove") {
  dialog::DialogModel& model = Model();
  model.AddScrollBar(kRowShown, 1, 32767).number = 1;
  model.AddText("txtFileName");
  model.AddText("txtFrom").text = "1";
  model.AddText("txtTo").text = "1";
  model.AddNoValue("HScroll1");
  model.AddText("txtPos").text = "1";
  model.AddText("txtPreview");
  model.AddCheck(kAllRows).number = 1;
  rename::AddFrameButtons(model);
}

const rename::ActionTraits& FrmMove::Traits() const {
  static const rename::ActionTraits traits{"frmMove", "FrmPS", "frmMove", 8, true, rename::RestoreMoment::OnLoad};
  return traits;
}

void FrmMove::Run(const rename::ActionContext& context) {
  const long from = LongNumberOf(Model(), "txtFrom");
  const long to = LongNumberOf(Model(), "txtTo");
  const long position = LongNumberOf(Model(), "txtPos");
  if (Model().Number(kAllRows) == 1) {
    rename::RewritePendingNames(
        context, [&](int, core::FileEntry& row) { return MoveInName(row[core::kColNewName], from, to, position); });
    return;
  }
  // Only the row shown, in scope or not.
  core::ListState& state = context.State();
  const int shown = Model().Number(kRowShown);
  if (shown >= 1 && shown <= state.list.Count()) {
    core::BusyPointer busy(context.User());
    core::FileEntry& row = state.list.Item(shown);
    row[core::kColNewName] = MoveInName(row[core::kColNewName], from, to, position);
  }
  context.list.preview.Refresh();
}

std::string MoveInName(const std::string& name, long from, long to, long position) {
  std::string stem;
  std::string extension;
  base::SplitNameExtension(name, stem, extension);
  return MoveInStem(stem, from, to, position) + extension;
}

std::string MoveInStem(const std::string& stemText, long from, long to, long position) {
  const std::u32string stem = base::ToChars(stemText);
  if (to < 1) throw base::RuntimeFault("Invalid procedure call: to " + std::to_string(to));
  const std::u32string moved = Mid(stem, from, std::max(0L, to - from + 1));
  const std::u32string rest = Left(stem, from - 1) + Mid(stem, to + 1);
  const std::u32string newStem = Left(rest, position - 1) + moved + Mid(rest, position);
  return base::FromChars(newStem);
}

}  // namespace nomra::actions

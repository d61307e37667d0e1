#include "actions/FrmRenumber.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "actions/ActionNumbers.h"
#include "base/NameSplit.h"
#include "core/BusyPointer.h"
#include "core/ListState.h"
#include "lang/MessageKeys.h"
#include "structure/LanguageNumber.h"

namespace nomra::actions {

namespace {

constexpr char kEnds[] = "erkNum";
constexpr char kSorted[] = "lstFilesSorted";
constexpr char kUnsorted[] = "lstFilesUnsorted";
constexpr char kStart[] = "txtInit";
constexpr char kStep[] = "txtInc";
constexpr char kWidth[] = "cmbAnzahl";
constexpr char kReplace[] = "chkReplace";
constexpr char kReplaceName[] = "txtRepName";
constexpr int kAutoWidth = 0;
constexpr char kNoCommonRest[] = ">>>leer<<<";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The digits as a 20-digit text, for sorting; longer numbers stay whole.
std::string SortKey(const std::string& digits) {
  std::size_t first = digits.find_first_not_of('0');
  const std::string value = first == std::string::npos ? "0" : digits.substr(first);
  return value.size() >= 20 ? value : std::string(20 - value.size(), '0') + value;
}

double ValueOf(const std::string& digits) { return digits.empty() ? 0.0 : std::strtod(digits.c_str(), nullptr); }

// x / 2 rounded, a half to the even neighbour.
long HalfRounded(std::size_t count) { return static_cast<long>(std::nearbyint(static_cast<double>(count) / 2.0)); }

// A whole number printed with at least `width` digits, as a mask of zeros prints it.
std::string Masked(double value, std::size_t width) {
  char buffer[400];
  std::snprintf(buffer, sizeof buffer, "%.0f", std::fabs(value));
  std::string digits = buffer;
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return (value < 0 ? "-" : "") + digits;
}

std::vector<std::string> WidthItems() {
  std::vector<std::string> items{"auto"};
  for (int width = 1; width <= 15; ++width) items.push_back(std::to_string(width));
  return items;
}

}  // namespace

FrmRenumber::FrmRenumber() : rename::ActionDialog("frmRenumber") {
  dialog::DialogModel& model = Model();
  model.AddCombo(kEnds, {});
  model.AddList("vorListe", {}, false);
  model.AddList("anListe", {}, false);
  model.AddNoValue("FrameFiles");
  model.AddList(kSorted, {}, false);
  model.AddList(kUnsorted, {}, false);
  model.AddNoValue("cmdUp");
  model.AddNoValue("cmdDown");
  model.AddNoValue("cmdL2R");
  model.AddNoValue("cmdR2L");
  model.AddNoValue("FrameNumbering");
  model.AddText(kStart).text = "1";
  model.AddText(kStep).text = "1";
  model.AddCombo(kWidth, WidthItems()).number = 2;
  model.AddOption("optPrefix", "place");
  model.AddOption("optSuffix", "place");
  model.AddCheck(kReplace);
  model.AddText(kReplaceName);
  for (const char* name : {"cmdOK", "cmdCancel", "cmdHelp"}) model.AddNoValue(name);
  model.SetOption("optPrefix", true);
}

const rename::ActionTraits& FrmRenumber::Traits() const {
  // Nothing is remembered in the settings; only a recording keeps the inputs.
  static const rename::ActionTraits traits{"frmRenumber", "", "", 2, false, rename::RestoreMoment::OnLoad};
  return traits;
}

void FrmRenumber::Open(const rename::ActionContext& context) {
  dialog::DialogModel& model = Model();
  core::BusyPointer busy(context.User());
  rows_.clear();
  foundAtStart_.clear();
  foundAtEnd_.clear();
  model.At(kWidth).number = 2;
  const core::ListState& state = context.State();
  for (int index = 1; index <= state.list.Count(); ++index) {
    if (!core::InScope(state, index)) continue;
    const std::string& name = state.list.Item(index)[core::kColNewName];
    Row row;
    row.stem = base::NameOnly(name);
    row.extension = base::ExtensionOnly(name, true);
    std::string left = row.stem;
    std::size_t digits = 0;
    while (digits < left.size() && IsDigit(left[digits])) ++digits;
    row.atStart = left.substr(0, digits);
    left.erase(0, digits);
    if (!row.atStart.empty()) {
      foundAtStart_.push_back(row.atStart);
      row.startKey = SortKey(row.atStart);
    }
    if (left.empty()) {
      // A stem of digits only counts at both ends.
      row.atEnd = row.atStart;
    } else {
      std::size_t end = left.size();
      while (end > 0 && IsDigit(left[end - 1])) --end;
      row.atEnd = left.substr(end);
      left.erase(end);
    }
    if (!row.atEnd.empty()) {
      foundAtEnd_.push_back(row.atEnd);
      row.endKey = SortKey(row.atEnd);
    }
    row.rest = left;
    rows_.push_back(std::move(row));
  }
  model.At("vorListe").rows = foundAtStart_;
  model.At("anListe").rows = foundAtEnd_;

  std::vector<std::string> ends;
  const long half = HalfRounded(rows_.size());
  if (foundAtStart_.size() >= 2 && static_cast<long>(foundAtStart_.size()) >= half) ends.push_back(kPrefixChoice);
  if (foundAtEnd_.size() >= 2 && static_cast<long>(foundAtEnd_.size()) >= half) ends.push_back(kSuffixChoice);
  if (ends.empty()) {
    context.User().Ask(
        core::Message{lang::kNoNumbersToRenumber, lang::kAttentionCaption, core::MessageStyle::OkWarning, {}});
    ends.push_back(kNoChoice);
  }
  ends_ = ends;
  model.At(kEnds).rows = ends;
  ChooseEnd(0);
}

std::string FrmRenumber::ChosenEnd() const {
  const int chosen = Model().Number(kEnds);
  return chosen >= 0 && chosen < static_cast<int>(ends_.size()) ? ends_[static_cast<std::size_t>(chosen)] : "";
}

bool FrmRenumber::ClosesAtOnce() const { return ChosenEnd() == kNoChoice; }

bool FrmRenumber::PrefixChosen() const { return ChosenEnd() == kPrefixChoice; }

void FrmRenumber::ChooseEnd(int row) {
  Model().SetNumber(kEnds, row);
  if (ClosesAtOnce()) return;
  const bool prefix = PrefixChosen();
  FillLists(prefix);
  Suggest(prefix);
}

void FrmRenumber::FillLists(bool prefix) {
  std::vector<int> order(rows_.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = static_cast<int>(i);
  const auto key = [&](int i) -> const std::string& { return prefix ? rows_[i].startKey : rows_[i].endKey; };
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return key(a) < key(b); });
  sorted_.clear();
  unsorted_.clear();
  for (const int i : order) (key(i).empty() ? unsorted_ : sorted_).push_back(i);
  listsChoice_ = Model().Number(kEnds);
  ShowLists();
  if (!sorted_.empty()) Model().SetNumber(kSorted, 0);
  if (!unsorted_.empty()) Model().SetNumber(kUnsorted, 0);
}

void FrmRenumber::ShowLists() {
  for (const auto& [key, indexes] : {std::pair{kSorted, &sorted_}, std::pair{kUnsorted, &unsorted_}}) {
    dialog::DialogInput& list = Model().At(key);
    list.rows.clear();
    for (const int i : *indexes) list.rows.push_back(rows_[static_cast<std::size_t>(i)].stem);
    if (list.number >= static_cast<int>(list.rows.size())) list.number = static_cast<int>(list.rows.size()) - 1;
  }
}

void FrmRenumber::Suggest(bool prefix) {
  dialog::DialogModel& model = Model();
  model.SetOption(prefix ? "optPrefix" : "optSuffix", true);
  const std::vector<std::string>& found = prefix ? foundAtStart_ : foundAtEnd_;
  std::string start = found.empty() ? std::string("1") : found.front();
  if (start.starts_with('0')) {
    model.SetNumber(kWidth, kAutoWidth);
    start.erase(0, start.find_first_not_of('0'));
    if (start.empty()) start = "0";
  }
  model.SetText(kStart, start);
  if (sorted_.size() >= 2) {
    const auto number = [&](int i) { return ValueOf(prefix ? rows_[i].atStart : rows_[i].atEnd); };
    char buffer[400];
    std::snprintf(buffer, sizeof buffer, "%.0f", number(sorted_.back()) - number(sorted_[sorted_.size() - 2]));
    model.SetText(kStep, buffer);
  }
  std::string common = kNoCommonRest;
  bool same = true;
  for (const int i : sorted_) {
    if (common == kNoCommonRest) {
      common = rows_[static_cast<std::size_t>(i)].rest;
    } else if (rows_[static_cast<std::size_t>(i)].rest != common) {
      same = false;
      break;
    }
  }
  model.SetNumber(kReplace, same ? 1 : 0);
  model.SetText(kReplaceName, same && common != kNoCommonRest ? common : "");
}

void FrmRenumber::MoveUp() {
  const int at = Model().Number(kSorted);
  if (at < 1 || at >= static_cast<int>(sorted_.size())) return;
  std::swap(sorted_[static_cast<std::size_t>(at)], sorted_[static_cast<std::size_t>(at - 1)]);
  ShowLists();
  Model().SetNumber(kSorted, at - 1);
}

void FrmRenumber::MoveDown() {
  const int at = Model().Number(kSorted);
  if (at < 0 || at + 1 >= static_cast<int>(sorted_.size())) return;
  std::swap(sorted_[static_cast<std::size_t>(at)], sorted_[static_cast<std::size_t>(at + 1)]);
  ShowLists();
  Model().SetNumber(kSorted, at + 1);
}

void FrmRenumber::LeaveOutOfSeries() {
  const int at = Model().Number(kSorted);
  if (at < 0 || at >= static_cast<int>(sorted_.size())) return;
  unsorted_.push_back(sorted_[static_cast<std::size_t>(at)]);
  sorted_.erase(sorted_.begin() + at);
  ShowLists();
  Model().SetNumber(kUnsorted, static_cast<int>(unsorted_.size()) - 1);
}

void FrmRenumber::TakeIntoSeries() {
  const int at = Model().Number(kUnsorted);
  if (at < 0 || at >= static_cast<int>(unsorted_.size())) return;
  sorted_.push_back(unsorted_[static_cast<std::size_t>(at)]);
  unsorted_.erase(unsorted_.begin() + at);
  ShowLists();
  Model().SetNumber(kSorted, static_cast<int>(sorted_.size()) - 1);
}

bool FrmRenumber::IsEnabled(std::string_view key) const {
  const int at = Model().Number(kSorted);
  if (key == "cmdUp") return at >= 1 && at < static_cast<int>(sorted_.size());
  if (key == "cmdDown") return at >= 0 && at + 1 < static_cast<int>(sorted_.size());
  if (key == "cmdL2R") return at >= 0 && at < static_cast<int>(sorted_.size());
  if (key == "cmdR2L") return Model().Number(kUnsorted) >= 0 && !unsorted_.empty();
  if (key == kReplaceName) return Model().Number(kReplace) == 1;
  return true;
}

void FrmRenumber::Run(const rename::ActionContext& context) {
  if (ClosesAtOnce()) return;
  dialog::DialogModel& model = Model();
  // A played step may choose the other end: its lists are made for it, and
  // its own settings stay.
  if (listsChoice_ != model.Number(kEnds)) FillLists(PrefixChosen());
  core::BusyPointer busy(context.User());
  const double start = structure::ParseLanguageNumber(model.Text(kStart)).value_or(0.0);
  const double step = structure::ParseLanguageNumber(model.Text(kStep)).value_or(0.0);
  const std::size_t count = sorted_.size();
  const int widthChoice = model.Number(kWidth);
  char buffer[400];
  std::snprintf(buffer, sizeof buffer, "%.0f", start + (static_cast<double>(count) - 1) * step);
  const std::size_t width =
      widthChoice <= kAutoWidth ? std::string(buffer).size() : static_cast<std::size_t>(widthChoice);
  const bool prefix = model.IsSelected("optPrefix");
  const bool replace = model.Number(kReplace) == 1;

  std::vector<std::string> stems(rows_.size());
  for (std::size_t i = 0; i < rows_.size(); ++i) stems[i] = rows_[i].rest;
  for (std::size_t k = 0; k < count; ++k) {
    const auto r = static_cast<std::size_t>(sorted_[k]);
    const std::string number = Masked(start + static_cast<double>(k) * step, width);
    if (replace) stems[r] = model.Text(kReplaceName);
    // The digits of the other end are not put back: they are gone, on purpose.
    stems[r] = prefix ? number + stems[r] : stems[r] + number;
  }
  for (const int i : unsorted_) {
    const auto r = static_cast<std::size_t>(i);
    stems[r] = prefix ? stems[r] + rows_[r].atEnd : rows_[r].atStart + stems[r];
  }
  // By position, not by origin: with a narrower scope the names land on the
  // first rows of the list.
  core::ListState& state = context.State();
  for (std::size_t i = 0; i < rows_.size() && static_cast<int>(i) < state.list.Count(); ++i) {
    state.list.Item(static_cast<int>(i) + 1)[core::kColNewName] = stems[i] + rows_[i].extension;
  }
  context.list.preview.Refresh();
}

}  // namespace nomra::actions

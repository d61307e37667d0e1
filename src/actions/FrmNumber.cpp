#include "actions/FrmNumber.h"

#include <cmath>
#include <cstdint>
#include <random>

#include "actions/ActionNumbers.h"
#include "base/Fault.h"
#include "base/NameSplit.h"
#include "base/Utf8.h"
#include "core/ListState.h"
#include "rename/ActionScope.h"
#include "structure/LanguageNumber.h"

namespace nomra::actions {

namespace {

constexpr char kStart[] = "txtInit";
constexpr char kStep[] = "txtInc";
constexpr char kSystem[] = "cmbNumberWith";
constexpr char kShownStart[] = "txtInitFormat";
constexpr char kWidth[] = "cmbAnz";
constexpr char kRandom[] = "chkRandom";
constexpr char kPosition[] = "txtPos";
constexpr char kPositionBar[] = "VScroll1";
constexpr char kSide[] = "cmbAlign";
constexpr char kReplace[] = "chkReplace";
constexpr char kReplaceName[] = "txtRepName";
constexpr char kBetweenOn[] = "chkIntChr";
constexpr char kBetween[] = "cmbIChr";

// Item 0 shows "<blank>" and stands for one blank.
const std::vector<std::string> kBetweenItems = {"<blank>", " - ", "-", " _ ", "_", " # ", "#", " + ", "+", " . ", "."};

std::vector<std::string> WidthItems() {
  std::vector<std::string> items{"auto"};
  for (int width = 1; width <= 15; ++width) items.push_back(std::to_string(width));
  return items;
}

std::int32_t Checked32(std::int64_t value) {
  if (value < INT32_MIN || value > INT32_MAX) throw base::RuntimeFault("Overflow: " + std::to_string(value));
  return static_cast<std::int32_t>(value);
}

NumberSystem SystemOf(const dialog::DialogModel& model) {
  const int index = model.Number(kSystem);
  return index >= 1 && index <= 3 ? static_cast<NumberSystem>(index) : NumberSystem::Decimal;
}

}  // namespace

FrmNumber::FrmNumber() : rename::ActionDialog("frmNumber") {
  dialog::DialogModel& model = Model();
  model.AddNoValue("fraNumberOptions");
  model.AddText(kStart).text = "1";
  model.AddText(kStep).text = "1";
  model.AddCombo(kSystem, {"cmbNumberWith-1", "cmbNumberWith-2", "cmbNumberWith-3", "cmbNumberWith-4"}).number = 0;
  model.AddText(kShownStart).text = "1";
  model.AddNoValue("lbl1");
  model.AddCombo(kWidth, WidthItems()).number = 1;
  model.AddCheck(kRandom);
  model.AddNoValue("fraPosition");
  model.AddOption("optPrefix", "place");
  model.AddOption("optSuffix", "place");
  model.AddOption("optInsertAt", "place");
  model.AddText(kPosition).text = "0";
  model.AddScrollBar(kPositionBar, 0, 200).number = 200;
  model.AddNoValue("cmdGetPos");
  model.AddCombo(kSide, {"cmbAlign-1", "cmbAlign-2"}).number = 0;
  model.AddNoValue("fraReplace");
  model.AddCheck(kReplace);
  model.AddText(kReplaceName);
  model.AddCheck(kBetweenOn);
  model.AddCombo(kBetween, kBetweenItems).number = 1;
  rename::AddFrameButtons(model);
  // With nothing stored: a prefix, the three check boxes off.
  model.SetOption("optPrefix", true);
}

const rename::ActionTraits& FrmNumber::Traits() const {
  // Restored when it first comes to the front: its lists are filled by then.
  static const rename::ActionTraits traits{"frmNumber", "frmNumber", "frmNumber",
                                           1,           true,        rename::RestoreMoment::OnFirstActivation};
  return traits;
}

void FrmNumber::StartValueEdited() {
  dialog::DialogModel& model = Model();
  const std::string& start = model.Text(kStart);
  const auto value = structure::WholeNumberOr(start, INT64_MIN);
  std::string shown;
  if (value != INT64_MIN && value >= INT32_MIN && value <= INT32_MAX) {
    shown = NumberToText(static_cast<std::int32_t>(value), SystemOf(model));
  }
  if (shown != model.Text(kShownStart)) model.SetText(kShownStart, shown);
}

void FrmNumber::ShownStartEdited() {
  dialog::DialogModel& model = Model();
  const std::string start = TextToNumber(model.Text(kShownStart), SystemOf(model));
  if (start != model.Text(kStart)) model.SetText(kStart, start);
}

void FrmNumber::SystemChosen() {
  dialog::DialogModel& model = Model();
  std::string start = model.Text(kStart);
  if (SystemOf(model) == NumberSystem::Hexadecimal) std::erase(start, '-');
  if (start.empty() || start == "-") start = "1";
  model.SetText(kStart, start);
  StartValueEdited();
}

bool FrmNumber::IsEnabled(std::string_view key) const {
  const dialog::DialogModel& model = Model();
  const bool insertAt = model.IsSelected("optInsertAt");
  if (key == kPosition || key == kPositionBar || key == "cmdGetPos" || key == kSide) return insertAt;
  if (key == kReplace) return !insertAt;
  if (key == kReplaceName) return model.Number(kReplace) == 1;
  if (key == kShownStart || key == "lbl1") return SystemOf(model) != NumberSystem::Decimal;
  if (key == kBetween) return model.Number(kBetweenOn) == 1;
  return true;
}

std::vector<std::string> NumberTable(std::int32_t start, std::int32_t step, int count, NumberSystem system,
                                     int widthChoice) {
  // The last number decides the width, even for an empty scope.
  const std::string last = NumberToText(Checked32(start + (static_cast<std::int64_t>(count) - 1) * step), system);
  const std::size_t width = widthChoice <= 0 ? last.size() : static_cast<std::size_t>(widthChoice);
  const char fill = system == NumberSystem::Decimal || system == NumberSystem::Hexadecimal ? '0' : ' ';
  std::vector<std::string> table;
  table.reserve(static_cast<std::size_t>(count));
  for (int k = 0; k < count; ++k) {
    std::string text = NumberToText(Checked32(start + static_cast<std::int64_t>(k) * step), system);
    if (text.size() < width) text.insert(0, width - text.size(), fill);
    table.push_back(std::move(text));
  }
  return table;
}

std::string InsertNumber(const std::string& stem, const std::string& number, long position, bool fromRight,
                         const std::string& between) {
  if (stem.empty()) return number;
  const std::u32string chars = base::ToChars(stem);
  const long length = static_cast<long>(chars.size());
  long split = 0;
  if (fromRight) {
    split = std::max(0L, length - position);
  } else {
    // "At the end" from the left lands before the last character, as it always has.
    split = position >= length ? length - 1 : std::max(0L, position);
  }
  const std::string left = base::FromChars(std::u32string_view(chars).substr(0, static_cast<std::size_t>(split)));
  const std::string right = base::FromChars(std::u32string_view(chars).substr(static_cast<std::size_t>(split)));
  return left + (left.empty() ? "" : between) + number + (right.empty() ? "" : between) + right;
}

void FrmNumber::Run(const rename::ActionContext& context) {
  dialog::DialogModel& model = Model();
  // A prefix is position 0 from the left, a suffix position 0 from the right.
  if (model.IsSelected("optPrefix") || model.IsSelected("optSuffix")) {
    model.SetNumber(kPositionBar, 200);
    model.SetText(kPosition, "0");
    model.SetNumber(kSide, model.IsSelected("optPrefix") ? 0 : 1);
  }
  std::string between;
  if (model.Number(kBetweenOn) == 1) {
    const int item = model.Number(kBetween);
    between = item <= 0 ? " " : kBetweenItems.at(static_cast<std::size_t>(item));
  }
  const std::int32_t start = LongNumberOf(model, kStart);
  const std::int32_t step = LongNumberOf(model, kStep);
  const long position = ShortNumberOf(model, kPosition);
  const bool fromRight = model.Number(kSide) == 1;
  const bool replace = model.Number(kReplace) == 1;
  const std::string replaceName = model.Text(kReplaceName);

  core::ListState& state = context.State();
  int count = 0;
  for (int row = 1; row <= state.list.Count(); ++row) {
    if (core::InScope(state, row)) ++count;
  }
  std::vector<std::string> table = NumberTable(start, step, count, SystemOf(model), model.Number(kWidth));
  if (model.Number(kRandom) == 1 && count > 1) {
    std::mt19937_64 random(seed_ ? *seed_ : std::random_device{}());
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    // Each index as round(r * (n - 1) + 1): the ends come half as often, as they always have.
    const auto draw = [&] { return static_cast<std::size_t>(std::nearbyint(uniform(random) * (count - 1) + 1)) - 1; };
    for (int swap = 0; swap < 3 * count; ++swap) std::swap(table[draw()], table[draw()]);
  }

  std::size_t next = 0;
  rename::RewritePendingNames(context, [&](int, core::FileEntry& row) {
    std::string stem;
    std::string extension;
    base::SplitNameExtension(row[core::kColNewName], stem, extension);
    if (replace) stem = replaceName;
    return InsertNumber(stem, table.at(next++), position, fromRight, between) + extension;
  });
}

}  // namespace nomra::actions

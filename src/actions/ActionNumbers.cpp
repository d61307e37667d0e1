#include "actions/ActionNumbers.h"

#include <limits>
#include <string>

#include "base/Fault.h"
#include "structure/LanguageNumber.h"

namespace nomra::actions {

namespace {

long WholeNumberIn(const dialog::DialogModel& model, std::string_view key, long lowest, long highest) {
  const std::string& text = model.Text(key);
  const auto number = structure::ParseLanguageNumber(text);
  if (!number) throw base::RuntimeFault("Type mismatch: " + std::string(key) + " holds \"" + text + "\"");
  const auto whole = structure::ToWholeNumber(*number);
  if (!whole || *whole < lowest || *whole > highest) {
    throw base::RuntimeFault("Overflow: " + std::string(key) + " holds " + text);
  }
  return *whole;
}

}  // namespace

std::int16_t ShortNumberOf(const dialog::DialogModel& model, std::string_view key) {
  return static_cast<std::int16_t>(
      WholeNumberIn(model, key, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()));
}

std::int32_t LongNumberOf(const dialog::DialogModel& model, std::string_view key) {
  return static_cast<std::int32_t>(
      WholeNumberIn(model, key, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

int ChosenIndex(const dialog::DialogModel& model, std::string_view group, int count) {
  for (int index = 1; index <= count; ++index) {
    if (model.IsSelected(std::string(group) + "(" + std::to_string(index) + ")")) return index;
  }
  return 1;
}

}  // namespace nomra::actions

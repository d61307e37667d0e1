#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "actions/NumberSystems.h"
#include "rename/ActionDialog.h"

namespace nomra::actions {

// Numbering: every row of the scope gets a running number, in one of four
// systems, as prefix, suffix or at a position of the stem, optionally in
// place of the stem and in random order. The numbers are made first, for
// all rows at once, so the width can follow the last of them.
class FrmNumber final : public rename::ActionDialog {
 public:
  FrmNumber();
  const rename::ActionTraits& Traits() const override;
  void Run(const rename::ActionContext& context) override;

  // The boxes kept in line as the window edits them: the start value shown
  // in the chosen system, and back; a change of system.
  void StartValueEdited();
  void ShownStartEdited();
  void SystemChosen();
  bool IsEnabled(std::string_view key) const;

  // The random order follows this seed; without one it follows the clock.
  void SeedRandomOrder(std::uint64_t seed) { seed_ = seed; }

 private:
  std::optional<std::uint64_t> seed_;
};

// The numbers of `count` rows from `start` by `step`, each filled at the
// left to the width (index 0 of cmbAnz: the width of the last number) with
// "0" in the digit systems and blanks in the letter systems. Throws
// RuntimeFault when a number leaves 32 bits.
std::vector<std::string> NumberTable(std::int32_t start, std::int32_t step, int count, NumberSystem system,
                                     int widthChoice);

// The stem with the number put in: at `position` from the left (beyond the
// end: before the last character) or from the right, with the intermediate
// text only where number and stem meet; an empty stem becomes the number.
std::string InsertNumber(const std::string& stem, const std::string& number, long position, bool fromRight,
                         const std::string& between);

}  // namespace nomra::actions

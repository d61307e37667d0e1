#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "rename/ActionDialog.h"

namespace nomra::actions {

// Renumbering: as it opens, the dialog finds the numbers the names of the
// scope already have at their start and at their end; the user picks one
// end, fixes the order and the names that take part, and OK replaces those
// numbers by a new series. There is no Apply. The new names are written to
// the first rows of the list, by position, whatever the scope: scripts
// depend on this, odd as it is.
class FrmRenumber final : public rename::ActionDialog {
 public:
  // The rows of erkNum: which end to renumber, or that none qualifies.
  static constexpr char kPrefixChoice[] = "cmbPrefix";
  static constexpr char kSuffixChoice[] = "cmbSuffix";
  static constexpr char kNoChoice[] = "keine";

  FrmRenumber();
  const rename::ActionTraits& Traits() const override;
  void Open(const rename::ActionContext& context) override;
  bool ClosesAtOnce() const override;
  void Run(const rename::ActionContext& context) override;

  // Picking a row of erkNum: the file lists in numeric order and the
  // suggested settings. Manual moves are dropped.
  void ChooseEnd(int row);
  // The selected name of lstFilesSorted one place up or down; a selected
  // name from one list to the other.
  void MoveUp();
  void MoveDown();
  void TakeIntoSeries();    // cmdR2L: from lstFilesUnsorted
  void LeaveOutOfSeries();  // cmdL2R: from lstFilesSorted
  bool IsEnabled(std::string_view key) const;
  // The chosen row of erkNum: kPrefixChoice, kSuffixChoice or kNoChoice.
  std::string ChosenEnd() const;

 private:
  // A row of the work table: one per row of the scope, in list order.
  struct Row {
    std::string stem;
    std::string extension;  // with its dot
    std::string atStart;    // the digits found at the start
    std::string atEnd;      // the digits found at the end
    std::string rest;       // the stem without them
    std::string startKey;   // atStart as 20 digits, for sorting; "" without
    std::string endKey;
  };

  bool PrefixChosen() const;
  void FillLists(bool prefix);
  void Suggest(bool prefix);
  void ShowLists();

  std::vector<Row> rows_;
  // The choices of erkNum, kept apart from its rows, which a window shows
  // in the language's words.
  std::vector<std::string> ends_;
  std::vector<std::string> foundAtStart_;  // vorListe
  std::vector<std::string> foundAtEnd_;    // anListe
  std::vector<int> sorted_;                // indexes into rows_, in numbering order
  std::vector<int> unsorted_;
  int listsChoice_ = -1;  // the erkNum row the lists were made for
};

}  // namespace nomra::actions

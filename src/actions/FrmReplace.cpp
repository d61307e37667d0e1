#include "actions/FrmReplace.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "actions/ActionNumbers.h"
#include "base/CaseMap.h"
#include "base/Cp1252.h"
#include "base/Fault.h"
#include "base/NameSplit.h"
#include "base/RegexReplace.h"
#include "base/ReplaceText.h"
#include "base/Utf8.h"
#include "lang/MessageKeys.h"
#include "rename/ActionScope.h"
#include "structure/FileTagSteps.h"
#include "structure/LanguageNumber.h"
#include "structure/StructureEngine.h"

namespace nomra::actions {

namespace {

// What is replaced, where, and how: the three groups of option buttons.
enum class What { Text = 1, Position = 2, Following = 3, AllExcept = 4 };
enum class Where { First = 1, Last = 2, FromTo = 3 };

constexpr char kFind[] = "txtToRep";
constexpr char kWith[] = "txtRepBy";
constexpr char kClass[] = "cmbRemove";
constexpr char kExceptionsOn[] = "chkExceptions";
constexpr char kExceptions[] = "txtExceptions";
constexpr char kRegex[] = "chkRegExp";
constexpr char kFirstCount[] = "txtPos(0)";
constexpr char kLastCount[] = "txtPos(1)";
constexpr char kFrom[] = "txtFrom";
constexpr char kTo[] = "txtTo";

constexpr char kLetters[] =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz\xC3\x84\xC3\x96\xC3\x9C\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F";
constexpr char kDigits[] = "0123456789";

What WhatOf(const dialog::DialogModel& model) {
  if (model.IsSelected("optChr2Repl")) return What::Position;
  if (model.IsSelected("optFollowingChr")) return What::Following;
  if (model.IsSelected("optAllChrExcept")) return What::AllExcept;
  return What::Text;
}

Where WhereOf(const dialog::DialogModel& model) {
  if (model.IsSelected("optChrLast")) return Where::Last;
  if (model.IsSelected("optChrFromTo")) return Where::FromTo;
  return Where::First;
}

bool Removes(const dialog::DialogModel& model) { return model.IsSelected("optRemove"); }

bool Holds(std::u32string_view set, char32_t c) { return set.find(c) != std::u32string_view::npos; }

// A set of characters asked once for every character of every name: a bit
// per character of the first plane, a sorted list beyond it.
class CharacterSet {
 public:
  explicit CharacterSet(std::u32string_view chars) : plane_(0x10000, false) {
    for (const char32_t c : chars) {
      if (c < 0x10000) {
        plane_[c] = true;
      } else {
        beyond_.push_back(c);
      }
    }
    std::sort(beyond_.begin(), beyond_.end());
  }
  bool Holds(char32_t c) const {
    return c < 0x10000 ? static_cast<bool>(plane_[c]) : std::binary_search(beyond_.begin(), beyond_.end(), c);
  }

 private:
  std::vector<bool> plane_;
  std::u32string beyond_;
};

// The characters of `chars` from the 1-based position `from` on; none
// beyond the end.
std::u32string From(const std::u32string& chars, long from) {
  if (from < 1) throw base::RuntimeFault("Invalid procedure call: position " + std::to_string(from));
  return from > static_cast<long>(chars.size()) ? std::u32string() : chars.substr(static_cast<std::size_t>(from - 1));
}

std::u32string Left(const std::u32string& chars, long count) {
  if (count < 0) throw base::RuntimeFault("Invalid procedure call: length " + std::to_string(count));
  return chars.substr(0, static_cast<std::size_t>(count));
}

// The positions of the row's numbers, read once for the whole run.
struct Positions {
  long first = 0;
  long last = 0;
  long from = 0;
  long to = 0;
};

std::u32string ByPosition(const std::u32string& stem, Where where, const Positions& at, const std::u32string& with) {
  const long length = static_cast<long>(stem.size());
  switch (where) {
    case Where::First:
      if (at.first > length) return {};
      return with + From(stem, at.first + 1);
    case Where::Last:
      if (at.last > length) return {};
      return Left(stem, length - at.last) + with;
    case Where::FromTo: {
      const auto [a, b] = at.from > at.to ? std::pair{at.to, at.from} : std::pair{at.from, at.to};
      if (a < 1) throw base::RuntimeFault("Invalid procedure call: from " + std::to_string(a));
      return Left(stem, std::min(a - 1, length)) + with + From(stem, b + 1);
    }
  }
  return {};
}

std::u32string EachCharacter(const std::u32string& stem, const CharacterSet& set, bool inSet,
                             const std::u32string& with) {
  std::u32string out;
  out.reserve(stem.size());
  for (const char32_t c : stem) {
    if (set.Holds(c) == inSet) {
      out += with;
    } else {
      out += c;
    }
  }
  return out;
}

}  // namespace

std::string CharacterClass(int item) {
  switch (item) {
    case 1: return kLetters;
    case 2: return kDigits;
    case 3: {
      // Codes 33 to 255 of Windows-1252 without the letters and digits,
      // compared without regard to case.
      const std::u32string kept = base::ToChars(std::string(kLetters) + kDigits);
      std::string special;
      for (int code = 33; code <= 255; ++code) {
        const std::string character = base::DecodeCp1252(std::string(1, static_cast<char>(code)));
        const std::u32string chars = base::ToChars(character);
        if (chars.size() != 1) continue;
        bool inKept = false;
        for (const char32_t k : kept) inKept = inKept || base::ToLowerChar(k) == base::ToLowerChar(chars[0]);
        if (!inKept) special += character;
      }
      return special;
    }
    default: return {};
  }
}

FrmReplace::FrmReplace() : rename::ActionDialog("frmReplace") {
  dialog::DialogModel& model = Model();
  model.AddNoValue("FrameWhat");
  model.AddOption("opttxt2Repl", "what");
  model.AddOption("optChr2Repl", "what");
  model.AddOption("optFollowingChr", "what");
  model.AddOption("optAllChrExcept", "what");
  model.AddText(kFind);
  model.AddCheck(kRegex);
  model.AddCombo(kClass, {"cmbremove1", "cmbremove2", "cmbremove3"}).number = -1;
  model.AddCheck(kExceptionsOn);
  model.AddText(kExceptions);
  model.AddNoValue("FramePos");
  model.AddOption("optChrFirst", "where");
  model.AddOption("optChrLast", "where");
  model.AddOption("optChrFromTo", "where");
  model.AddText("txtPos", 0).text = "1";
  model.AddScrollBar("VScroll1", 1, 200, 0).number = 200;
  model.AddText("txtPos", 1).text = "1";
  model.AddScrollBar("VScroll1", 1, 200, 1).number = 200;
  model.AddText(kFrom).text = "1";
  model.AddScrollBar("VScrollVon", 1, 200).number = 200;
  model.AddText(kTo).text = "1";
  model.AddScrollBar("VScrollBis", 1, 200).number = 200;
  model.AddNoValue("cmdGetPos");
  model.AddNoValue("frameReplaceBy");
  model.AddOption("optReplace", "how");
  model.AddOption("optRemove", "how");
  model.AddText(kWith);
  model.AddNoValue("cmdSelectEntry");
  model.AddNoValue("mnuContextBlank");
  rename::AddFrameButtons(model);
  // With nothing stored: a text, the first characters, replaced.
  model.SetOption("opttxt2Repl", true);
  model.SetOption("optChrFirst", true);
  model.SetOption("optReplace", true);
}

const rename::ActionTraits& FrmReplace::Traits() const {
  static const rename::ActionTraits traits{
      "frmReplace", "frmReplace", "frmReplace", 6, true, rename::RestoreMoment::OnLoad};
  return traits;
}

bool FrmReplace::IsEnabled(std::string_view key) const {
  const dialog::DialogModel& model = Model();
  const What what = WhatOf(model);
  const Where where = WhereOf(model);
  if (key == kWith || key == "cmdSelectEntry") return !Removes(model);
  if (key == kFind || key == kRegex) return what == What::Text;
  if (key == "optChrFirst" || key == "optChrLast" || key == "optChrFromTo" || key == "cmdGetPos") {
    return what == What::Position;
  }
  if (key == kFirstCount || key == "VScroll1(0)") return what == What::Position && where == Where::First;
  if (key == kLastCount || key == "VScroll1(1)") return what == What::Position && where == Where::Last;
  if (key == kFrom || key == kTo || key == "VScrollVon" || key == "VScrollBis") {
    return what == What::Position && where == Where::FromTo;
  }
  if (key == kClass || key == kExceptionsOn) return what == What::Following || what == What::AllExcept;
  if (key == kExceptions) {
    return (what == What::Following || what == What::AllExcept) && model.Number(kExceptionsOn) == 1;
  }
  return true;
}

bool FrmReplace::CheckInputs(const rename::ActionContext& context) {
  dialog::DialogModel& model = Model();
  // A range given backwards is turned round, where the user sees it.
  const auto from = structure::WholeNumberOr(model.Text(kFrom), 0);
  const auto to = structure::WholeNumberOr(model.Text(kTo), 0);
  if (from > to) {
    std::string turned = model.Text(kTo);
    model.SetText(kTo, model.Text(kFrom));
    model.SetText(kFrom, std::move(turned));
  }
  const auto tell = [&](const char* key, std::vector<std::string> arguments = {}, const char* caption = nullptr) {
    context.User().Ask(core::Message{key, caption ? caption : lang::kInputMissingCaption,
                                     core::MessageStyle::OkInformation, std::move(arguments)});
    return false;
  };
  if (WhatOf(model) == What::Text && model.Text(kFind).empty()) return tell(lang::kFindTextMissing);
  if (!Removes(model) && model.Text(kWith).empty()) return tell(lang::kReplacementMissing);
  if (WhatOf(model) == What::Text && model.Number(kRegex) == 1) {
    base::RegexProblem problem;
    if (!base::RegexReplace::Compile(model.Text(kFind), Removes(model) ? "" : model.Text(kWith), problem)) {
      return tell(problem.inReplacement ? lang::kPatternReplacementFault : lang::kPatternFault,
                  {problem.reason, std::to_string(problem.position)}, lang::kPatternCaption);
    }
  }
  return true;
}

void FrmReplace::Run(const rename::ActionContext& context) {
  dialog::DialogModel& model = Model();
  const What what = WhatOf(model);
  if (what == What::Following || what == What::AllExcept) {
    std::string set = CharacterClass(model.Number(kClass) + 1);
    if (set.empty()) set = model.Text(kFind);
    if (model.Number(kExceptionsOn) == 1) {
      const std::u32string exceptions = base::ToChars(model.Text(kExceptions));
      std::u32string kept;
      for (const char32_t c : base::ToChars(set)) {
        if (!Holds(exceptions, c)) kept += c;
      }
      set = base::FromChars(kept);
    }
    model.SetText(kFind, set);
  }
  if (Removes(model)) model.SetText(kWith, "");

  Positions at;
  at.from = ShortNumberOf(model, kFrom);
  at.to = ShortNumberOf(model, kTo);
  at.first = ShortNumberOf(model, kFirstCount);
  at.last = ShortNumberOf(model, kLastCount);
  const Where where = WhereOf(model);
  const std::string& find = model.Text(kFind);
  const std::string& with = model.Text(kWith);
  const CharacterSet findSet(base::ToChars(find));
  const std::u32string withChars = base::ToChars(with);
  std::optional<base::RegexReplace> regex;
  if (what == What::Text && model.Number(kRegex) == 1) {
    base::RegexProblem problem;
    regex = base::RegexReplace::Compile(find, with, problem);
    if (!regex) throw base::RuntimeFault("Regular expression: " + problem.reason);
  }

  rename::RewritePendingNames(context, [&](int, core::FileEntry& row) {
    std::string stem;
    std::string extension;
    base::SplitNameExtension(row[core::kColNewName], stem, extension);
    std::string out;
    switch (what) {
      case What::Text: out = regex ? regex->ReplaceAll(stem) : base::ReplaceText(stem, find, with); break;
      case What::Position: out = base::FromChars(ByPosition(base::ToChars(stem), where, at, withChars)); break;
      case What::Following: out = base::FromChars(EachCharacter(base::ToChars(stem), findSet, true, withChars)); break;
      case What::AllExcept: out = base::FromChars(EachCharacter(base::ToChars(stem), findSet, false, withChars)); break;
    }
    // A stem is never removed whole: nothing left keeps the name as it was.
    std::string name = out.empty() ? row[core::kColNewName] : out + extension;
    if (name.find('<') != std::string::npos) {
      row[core::kColNewName] = name;
      name = structure::EvaluateStructure(row, "", structure::FileTagSteps(context.fileSystem));
    }
    return name;
  });
}

}  // namespace nomra::actions

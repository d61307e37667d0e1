#include "cli/ActionSteps.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "actions/FrmNumber.h"
#include "actions/FrmReplace.h"
#include "actions/FrmTrim.h"
#include "base/Fault.h"
#include "base/FileNames.h"
#include "base/RegexReplace.h"
#include "cli/UsageError.h"
#include "structure/LanguageNumber.h"

namespace nomra::cli {

namespace {

using Fill = std::function<void(dialog::DialogModel&)>;
using MakeDialog = std::function<std::unique_ptr<rename::ActionDialog>()>;

// The step: the dialog at its defaults, the option's inputs, its checks and
// its action, as a played script step passes through it.
void AddActionStep(Invocation& invocation, std::string option, MakeDialog make, Fill fill) {
  invocation.steps.push_back(Step{option, [option, make, fill](CliSession& session, std::ostream&) {
                                    const std::unique_ptr<rename::ActionDialog> dialog = make();
                                    const rename::ActionContext context = session.Actions();
                                    dialog->Open(context);
                                    fill(dialog->Model());
                                    if (!dialog->CheckInputs(context)) {
                                      throw base::RuntimeFault(option + ": the inputs were refused");
                                    }
                                    dialog->Run(context);
                                  }});
}

void RefuseForbiddenCharacters(const std::string& option, const std::string& text) {
  for (const char c : text) {
    if (base::IsForbiddenNameCharacter(static_cast<unsigned char>(c))) {
      throw UsageError(option + ": '" + text + "' holds '" + std::string(1, c) +
                       "', which no file name may hold (\\ / : ? * < > | \")");
    }
  }
}

std::optional<long> WholeNumber(std::string_view text, long lowest, long highest) {
  const auto number = structure::ParseLanguageNumber(text);
  if (!number) return std::nullopt;
  const auto whole = structure::ToWholeNumber(*number);
  if (!whole || *whole < lowest || *whole > highest) return std::nullopt;
  return whole;
}

long NumberOrUsage(const std::string& option, std::string_view key, std::string_view text, long lowest, long highest) {
  const auto number = WholeNumber(text, lowest, highest);
  if (!number) {
    throw UsageError(option + ": " + std::string(key) + " takes a whole number from " + std::to_string(lowest) +
                     " to " + std::to_string(highest) + ", not '" + std::string(text) + "'");
  }
  return *number;
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  while (true) {
    const std::size_t end = text.find(separator, start);
    parts.push_back(text.substr(start, end == std::string::npos ? std::string::npos : end - start));
    if (end == std::string::npos) return parts;
    start = end + 1;
  }
}

}  // namespace

void AddReplace(Invocation& invocation, const std::string& find, const std::string& with) {
  if (find.empty()) throw UsageError("--replace needs a text to find");
  RefuseForbiddenCharacters("--replace", with);
  AddActionStep(
      invocation, "--replace", [] { return std::make_unique<actions::FrmReplace>(); },
      [find, with](dialog::DialogModel& model) {
        model.SetText("txtToRep", find);
        model.SetText("txtRepBy", with);
        model.SetOption(with.empty() ? "optRemove" : "optReplace", true);
      });
}

void AddReplaceRegex(Invocation& invocation, const std::string& pattern, const std::string& with) {
  if (pattern.empty()) throw UsageError("--replace-regex needs a pattern");
  base::RegexProblem problem;
  if (!base::RegexReplace::Compile(pattern, with, problem)) {
    throw UsageError(std::string("--replace-regex: the ") + (problem.inReplacement ? "replacement" : "pattern") +
                     " can't be used: " + problem.reason + " (at character " + std::to_string(problem.position) + ")");
  }
  AddActionStep(
      invocation, "--replace-regex", [] { return std::make_unique<actions::FrmReplace>(); },
      [pattern, with](dialog::DialogModel& model) {
        model.SetText("txtToRep", pattern);
        model.SetText("txtRepBy", with);
        model.SetNumber("chkRegExp", 1);
        model.SetOption(with.empty() ? "optRemove" : "optReplace", true);
      });
}

void AddNumber(Invocation& invocation, const std::string& spec) {
  const std::string option = "--number";
  std::vector<std::function<void(dialog::DialogModel&)>> settings;
  for (const std::string& part : Split(spec, ',')) {
    if (part.empty()) continue;
    const std::size_t equals = part.find('=');
    const std::string key = part.substr(0, equals);
    const std::string value = equals == std::string::npos ? std::string() : part.substr(equals + 1);
    if (key == "start" || key == "step") {
      const long number = NumberOrUsage(option, key, value, INT32_MIN, INT32_MAX);
      settings.push_back([key, number](dialog::DialogModel& model) {
        model.SetText(key == "start" ? "txtInit" : "txtInc", std::to_string(number));
      });
    } else if (key == "width") {
      const long width = value == "auto" ? 0 : NumberOrUsage(option, "width (or auto)", value, 1, 15);
      settings.push_back([width](dialog::DialogModel& model) { model.SetNumber("cmbAnz", static_cast<int>(width)); });
    } else if (key == "system") {
      const std::vector<std::string> systems{"decimal", "hex", "upper", "lower"};
      int index = -1;
      for (std::size_t i = 0; i < systems.size(); ++i) {
        if (value == systems[i]) index = static_cast<int>(i);
      }
      if (index < 0) throw UsageError("--number: system is decimal, hex, upper or lower, not '" + value + "'");
      settings.push_back([index](dialog::DialogModel& model) { model.SetNumber("cmbNumberWith", index); });
    } else if (key == "place") {
      if (value == "prefix" || value == "suffix") {
        settings.push_back([value](dialog::DialogModel& model) {
          model.SetOption(value == "prefix" ? "optPrefix" : "optSuffix", true);
        });
      } else if (value.starts_with("left:") || value.starts_with("right:")) {
        const bool right = value.starts_with("right:");
        const long position = NumberOrUsage(option, "the position", value.substr(right ? 6 : 5), 0, 200);
        settings.push_back([right, position](dialog::DialogModel& model) {
          model.SetOption("optInsertAt", true);
          model.SetText("txtPos", std::to_string(position));
          model.SetNumber("VScroll1", static_cast<int>(200 - position));
          model.SetNumber("cmbAlign", right ? 1 : 0);
        });
      } else {
        throw UsageError("--number: place is prefix, suffix, left:N or right:N, not '" + value + "'");
      }
    } else if (key == "sep") {
      const std::vector<std::string> items{"blank", " - ", "-", " _ ", "_", " # ", "#", " + ", "+", " . ", "."};
      int index = -1;
      for (std::size_t i = 0; i < items.size(); ++i) {
        if (value == items[i]) index = static_cast<int>(i);
      }
      if (index < 0) {
        throw UsageError("--number: sep is blank or one of ' - ', -, ' _ ', _, ' # ', #, ' + ', +, ' . ', ., not '" +
                         value + "'");
      }
      settings.push_back([index](dialog::DialogModel& model) {
        model.SetNumber("chkIntChr", 1);
        model.SetNumber("cmbIChr", index);
      });
    } else if (key == "random" && equals == std::string::npos) {
      settings.push_back([](dialog::DialogModel& model) { model.SetNumber("chkRandom", 1); });
    } else if (key == "name") {
      RefuseForbiddenCharacters(option, value);
      settings.push_back([value](dialog::DialogModel& model) {
        model.SetNumber("chkReplace", 1);
        model.SetText("txtRepName", value);
      });
    } else {
      throw UsageError("--number: unknown setting '" + part +
                       "' (start, step, width, system, place, sep, name or random)");
    }
  }
  AddActionStep(
      invocation, option, [] { return std::make_unique<actions::FrmNumber>(); },
      [settings](dialog::DialogModel& model) {
        for (const auto& set : settings) set(model);
      });
}

void AddTrim(Invocation& invocation, const std::string& spec) {
  const std::string option = "--trim";
  const std::vector<std::string> parts = Split(spec, ':');
  const std::string& kind = parts.front();
  Fill fill;
  const auto count = [&](std::size_t index, const char* what) {
    if (parts.size() <= index) throw UsageError("--trim " + kind + " needs " + what);
    return NumberOrUsage(option, what, parts[index], 1, 200);
  };
  if (kind == "first" || kind == "last") {
    const long n = count(1, "a count");
    const std::string box = kind == "first" ? "txtPos(0)" : "txtPos(1)";
    const std::string button = kind == "first" ? "opt1(1)" : "opt1(2)";
    fill = [n, box, button](dialog::DialogModel& model) {
      model.SetOption(button, true);
      model.SetText(box, std::to_string(n));
    };
  } else if (kind == "range") {
    const long from = count(1, "a start");
    const long to = count(2, "an end");
    fill = [from, to](dialog::DialogModel& model) {
      model.SetOption("opt1(3)", true);
      model.SetText("txtFrom", std::to_string(from));
      model.SetText("txtTo", std::to_string(to));
    };
  } else if (kind == "short") {
    fill = [](dialog::DialogModel& model) { model.SetOption("opt1(4)", true); };
  } else if (kind == "path") {
    if (parts.size() < 2) throw UsageError("--trim path needs a length");
    const long limit = NumberOrUsage(option, "the path length", parts[1], 20, 256);
    fill = [limit](dialog::DialogModel& model) {
      model.SetOption("opt1(5)", true);
      model.SetText("txtMaxPath", std::to_string(limit));
    };
  } else {
    throw UsageError("--trim takes first:N, last:N, range:A:B, short or path:N, not '" + spec + "'");
  }
  AddActionStep(
      invocation, option, [] { return std::make_unique<actions::FrmTrim>(); }, fill);
}

}  // namespace nomra::cli

#include "rename/EvaluateStructure.h"

#include "rename/ActionScope.h"

namespace nomra {

// The structure language with its tags comes with its own evaluator; a
// structure without tags gives its text as it stands, and that is all this
// gives for now.
std::string EvaluateStructure(MainModel&, int, std::string_view structure) { return std::string(structure); }

void ApplyStructure(MainModel& model, std::string_view structure) {
  RewritePendingNames(model, [&](int row, const FileEntry&) { return EvaluateStructure(model, row, structure); });
}

}  // namespace nomra

#include "structure/ApplyStructure.h"

#include "rename/ActionScope.h"
#include "structure/StructureEngine.h"

namespace nomra {

void ApplyStructure(MainModel& model, std::string_view structure) {
  RewritePendingNames(model, [&](int row, const FileEntry&) { return EvaluateStructure(model, row, structure); });
}

}  // namespace nomra

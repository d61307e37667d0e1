#include "structure/ApplyStructure.h"

#include "rename/ActionScope.h"
#include "structure/StructureEngine.h"

namespace nomra {

void ApplyStructure(const ActionContext& context, std::string_view structure) {
  RewritePendingNames(context, [&](int, FileEntry& row) { return EvaluateStructure(row, structure); });
}

}  // namespace nomra

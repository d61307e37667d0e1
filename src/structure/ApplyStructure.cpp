#include "structure/ApplyStructure.h"

#include "rename/ActionScope.h"
#include "structure/StructureEngine.h"

namespace nomra::structure {

void ApplyStructure(const rename::ActionContext& context, std::string_view structure) {
  rename::RewritePendingNames(context, [&](int, core::FileEntry& row) { return EvaluateStructure(row, structure); });
}

}  // namespace nomra::structure

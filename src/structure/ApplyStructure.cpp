#include "structure/ApplyStructure.h"

#include "rename/ActionScope.h"
#include "structure/FileTagSteps.h"
#include "structure/StructureEngine.h"

namespace nomra::structure {

void ApplyStructure(const rename::ActionContext& context, std::string_view structure) {
  const FileTagSteps files(context.fileSystem);
  rename::RewritePendingNames(context,
                              [&](int, core::FileEntry& row) { return EvaluateStructure(row, structure, files); });
}

}  // namespace nomra::structure

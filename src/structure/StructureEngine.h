#pragma once
#include <string>
#include <string_view>

#include "core/FileEntry.h"
#include "structure/MetadataSteps.h"

namespace nomra::structure {

// The new name (stem and extension) that a name structure gives for a row,
// by the language's fixed series of substitutions. An empty structure takes
// the row's pending name as the structure. Nothing is written to the row
// but, at most, its EXIF date. Throws RuntimeFault at the language's
// run-time faults.
std::string EvaluateStructure(core::FileEntry& row, std::string_view structure,
                              const MetadataSteps& metadata = NoMetadataReaders());

}  // namespace nomra::structure

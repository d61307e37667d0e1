#include "structure/StructureEngine.h"

#include "structure/CaseBrackets.h"
#include "structure/PathAndNameTags.h"
#include "structure/TextSearch.h"

namespace nomra::structure {

namespace {

void RemoveControlCharacters(std::string& s) {
  std::erase_if(s, [](char c) { return c >= 1 && c <= 31; });
}

}  // namespace

const MetadataSteps& NoMetadataReaders() {
  static const MetadataSteps none;
  return none;
}

// One fixed series of textual steps, each open to what the ones before it
// put in; the order and what each leaves behind are the language.
std::string EvaluateStructure(core::FileEntry& entry, std::string_view structure, const MetadataSteps& metadata) {
  const std::string pending = entry[core::kColNewName];
  std::string s(structure.empty() ? std::string_view(pending) : structure);

  if (HoldsTagNoCase(s, "<PATH")) ReplacePathTags(s, entry[core::kColPath]);
  ReplaceNameTags(s, pending);
  ReplaceExtensionTags(s, pending);

  metadata.ExifTags(entry, pending, s);
  if (HoldsTagNoCase(s, "<SMS")) metadata.SmsTags(entry, s);
  metadata.DateTags(entry, s);
  metadata.ShortNameAndChecksumTags(entry, s);
  // Reading an MP3 for every row is what these tags cost; without them no file is opened.
  if (s.find("<ID3_") != std::string::npos || s.find("<MP3_") != std::string::npos) {
    metadata.Id3AndMpegTags(entry, s);
  }

  ResolveIntCharPair(s);
  ResolveCaseBrackets(s);
  RemoveControlCharacters(s);
  return s;
}

}  // namespace nomra::structure

#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "lang/MessageCatalog.h"

namespace nomra::structure {

// A tag the structure editor offers: the label a person reads and the tag
// it puts into the structure.
struct TagChoice {
  std::string label;
  std::string tag;

  bool operator==(const TagChoice&) const = default;
};

// The rows of one list of the language's section ComboBoxes: "list-1",
// "list-2", ... up to the first number without a text, each "label|tag". A
// text without "|" is label and tag at once.
std::vector<TagChoice> ReadTagChoices(const lang::MessageCatalog& catalog, std::string_view list);

// What lstElements offers: the lists cmbElements, cmbExif, cmbMP3Tag and
// cmbDOSTag, in this order.
std::vector<TagChoice> ElementChoices(const lang::MessageCatalog& catalog);

// What lstFunctions offers: the list cmbFunctions.
std::vector<TagChoice> FunctionChoices(const lang::MessageCatalog& catalog);

}  // namespace nomra::structure

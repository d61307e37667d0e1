#pragma once
#include <string>
#include <string_view>

namespace nomra::structure {

// The path family: <PATH>, then every <PATH_L(, <PATH_R( and <PATH_M(. They
// share one value, the name of the folder that holds the file, which each
// tag narrows for the ones behind it.
void ReplacePathTags(std::string& s, std::string_view folderColumn);

// The name family over the pending name: <NAME>, then every <NAME_L(,
// <NAME_R(, <NAME_M( and <NAMEPART(.
void ReplaceNameTags(std::string& s, std::string_view pending);

// <EXT>, <.EXT> and <BLANK>.
void ReplaceExtensionTags(std::string& s, std::string_view pending);

}  // namespace nomra::structure

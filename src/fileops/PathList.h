#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace nomra::fileops {

// A path list is one text in which each path is ended by a NUL, and the
// whole by one more NUL, the form the callers of the file operations pass.
std::string JoinPathList(const std::vector<std::string>& paths);

// Makes a text end in two NULs: with two it stays, with one it gets one
// more, with none two.
std::string EndPathList(std::string text);

// The paths of a list, in order, up to the NUL that ends it; a text
// without a final NUL ends where the text does.
std::vector<std::string> SplitPathList(std::string_view list);

}  // namespace nomra::fileops

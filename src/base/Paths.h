#pragma once
#include <string>
#include <string_view>

namespace nomra::base {

// The platform's path separator; folder texts end with it.
inline constexpr char kPathSeparator = '/';

// Appends the separator when the last character isn't one.
std::string AddBackslash(std::string_view path);

// The folder of a path, ending with the separator; "" for a bare name.
std::string FolderOf(std::string_view path);

// The last part of a path: all of it for a bare name, "" for a folder text
// that ends with the separator.
std::string NameOf(std::string_view path);

// The path without separators at its end; the root stays the root.
std::string WithoutTrailingSeparators(std::string path);

}  // namespace nomra::base

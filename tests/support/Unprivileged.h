#pragma once
#include <functional>
#include <optional>
#include <string>

namespace nomra::testing {

// Runs `work` as a user whom permission bits stop and returns its answer
// (0 to 255). A user without privileges runs it here. Root hands `tree` to
// the "nobody" user and runs `work` in a child process that has become that
// user, so real permissions are tried even where the tests run as root.
// nullopt when no such user can be become here (no right to change user).
std::optional<int> AsUserWithoutPrivileges(const std::string& tree, const std::function<int()>& work);

}  // namespace nomra::testing

#pragma once
#include <stdexcept>
#include <string>

namespace nomra::base {

// A failure that ends the command that met it, at the row where it met it.
// Nothing already done is rolled back; the front end shows the text and the
// program keeps running.
class RuntimeFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace nomra::base

#pragma once
#include <string_view>

namespace nomra::platform {

// A file held open by the engine: the commit journal, the rename protocol.
// Closed, and its lock released, when the handle goes.
class OpenFile {
 public:
  virtual ~OpenFile() = default;

  // Writes all the bytes; 0 or the errno that stopped it.
  virtual int Write(std::string_view bytes) = 0;

  // Puts the content on the disk before returning: all of it with its
  // size and times, or (dataOnly) what a reader needs, which is cheaper.
  virtual int Sync(bool dataOnly) = 0;
};

}  // namespace nomra::platform

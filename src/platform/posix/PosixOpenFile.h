#pragma once
#include "platform/OpenFile.h"
#include "platform/posix/Descriptor.h"

namespace nomra::platform {

class PosixOpenFile final : public OpenFile {
 public:
  explicit PosixOpenFile(Descriptor fd) : fd_(std::move(fd)) {}
  int Write(std::string_view bytes) override { return WriteAll(fd_.Get(), bytes); }
  int Sync(bool dataOnly) override;

 private:
  Descriptor fd_;
};

}  // namespace nomra::platform

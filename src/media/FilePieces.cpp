#include "media/FilePieces.h"

#include <algorithm>

namespace nomra::media {

bool FilePieces::Fill(std::uint64_t offset, std::size_t wanted) {
  if (offset >= blockStart_ && offset < blockStart_ + blockSize_) return true;
  const std::size_t size = std::max(wanted, kBlock);
  if (size > capacity_) {
    block_ = std::make_unique_for_overwrite<char[]>(size);
    capacity_ = size;
  }
  const std::int64_t got = file_.ReadAt(offset, block_.get(), size);
  blockStart_ = offset;
  blockSize_ = got > 0 ? static_cast<std::size_t>(got) : 0;
  return blockSize_ > 0;
}

std::string FilePieces::Padded(std::uint64_t offset, std::size_t count) {
  std::string out(count, '\0');
  std::size_t done = 0;
  while (done < count && offset + done < file_.Size()) {
    if (!Fill(offset + done, count - done)) break;
    const std::size_t from = static_cast<std::size_t>(offset + done - blockStart_);
    const std::size_t take = std::min(count - done, blockSize_ - from);
    std::copy_n(block_.get() + from, take, out.data() + done);
    done += take;
  }
  return out;
}

std::optional<std::string> FilePieces::Exact(std::uint64_t offset, std::size_t count) {
  if (offset > file_.Size() || count > file_.Size() - offset) return std::nullopt;
  std::string out(count, '\0');
  std::size_t done = 0;
  while (done < count) {
    if (!Fill(offset + done, count - done)) return std::nullopt;
    const std::size_t from = static_cast<std::size_t>(offset + done - blockStart_);
    const std::size_t take = std::min(count - done, blockSize_ - from);
    std::copy_n(block_.get() + from, take, out.data() + done);
    done += take;
  }
  return out;
}

}  // namespace nomra::media

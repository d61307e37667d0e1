#include "media/FilePieces.h"

#include <algorithm>

namespace nomra::media {

bool FilePieces::Fill(std::uint64_t offset, std::size_t wanted) {
  if (blockValid_ && offset >= blockStart_ && offset < blockStart_ + block_.size()) return true;
  const std::size_t size = std::max(wanted, kBlock);
  block_.resize(size);
  const std::int64_t got = file_.ReadAt(offset, block_.data(), size);
  if (got <= 0) {
    blockValid_ = false;
    block_.clear();
    return false;
  }
  block_.resize(static_cast<std::size_t>(got));
  blockStart_ = offset;
  blockValid_ = true;
  return true;
}

std::string FilePieces::Padded(std::uint64_t offset, std::size_t count) {
  std::string out(count, '\0');
  std::size_t done = 0;
  while (done < count && offset + done < file_.Size()) {
    if (!Fill(offset + done, count - done)) break;
    const std::size_t from = static_cast<std::size_t>(offset + done - blockStart_);
    const std::size_t take = std::min(count - done, block_.size() - from);
    std::copy_n(block_.data() + from, take, out.data() + done);
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
    const std::size_t take = std::min(count - done, block_.size() - from);
    std::copy_n(block_.data() + from, take, out.data() + done);
    done += take;
  }
  return out;
}

}  // namespace nomra::media

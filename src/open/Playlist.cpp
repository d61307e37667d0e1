#include "open/Playlist.h"

#include <optional>

#include "base/CaseMap.h"
#include "base/Cp1252.h"
#include "base/Fault.h"
#include "base/Paths.h"
#include "base/Utf8.h"
#include "core/AddFile.h"
#include "formats/IniLines.h"

namespace nomra::open {

namespace {

enum class PlaylistKind { M3u, Pls, Plain };

PlaylistKind KindOf(const std::string& playlistPath) {
  const std::size_t nameStart = playlistPath.rfind(base::kPathSeparator) + 1;  // 0 when there is no separator
  const std::size_t dot = playlistPath.rfind('.');
  if (dot == std::string::npos || dot < nameStart) return PlaylistKind::Plain;
  const std::string extension = base::ToLower(std::string_view(playlistPath).substr(dot));
  if (extension == ".m3u") return PlaylistKind::M3u;
  if (extension == ".pls") return PlaylistKind::Pls;
  return PlaylistKind::Plain;
}

// The first four characters in upper case; a line's marker ("#EXT",
// "FILE") is told by them whatever their case.
std::string MarkerOf(std::string_view line) {
  std::size_t end = 0;
  for (int count = 0; count < 4 && end < line.size(); ++count) {
    char32_t ignored;
    end += base::DecodeAt(line, end, ignored);
  }
  return base::ToUpper(line.substr(0, end));
}

// What a line gives as an entry; empty when it gives none.
std::string EntryOf(const std::string& line, PlaylistKind kind) {
  switch (kind) {
    case PlaylistKind::M3u: return MarkerOf(line) == "#EXT" ? std::string() : line;
    case PlaylistKind::Pls: {
      if (MarkerOf(line) != "FILE") return {};
      // A "File" line without "=" has nothing after it to take.
      const std::size_t equals = line.find('=');
      return equals == std::string::npos ? std::string() : line.substr(equals + 1);
    }
    case PlaylistKind::Plain: break;
  }
  return line;
}

std::optional<std::vector<std::string>> ReadEntries(const std::string& playlistPath, platform::FileSystem& fileSystem) {
  if (fileSystem.Status(playlistPath).kind != platform::EntryKind::File) return std::nullopt;
  const auto bytes = fileSystem.ReadFile(playlistPath);
  if (!bytes) return std::nullopt;

  const PlaylistKind kind = KindOf(playlistPath);
  const std::string absolute = fileSystem.AbsolutePath(playlistPath);
  const std::string folder = absolute.substr(0, absolute.rfind(base::kPathSeparator) + 1);

  std::vector<std::string> entries;
  for (const std::string& line : formats::SplitLines(base::DecodeTextFile(*bytes))) {
    std::string entry = EntryOf(line, kind);
    // No file name holds a NUL, and the system calls would read the path
    // only up to it: "\0x" in the playlist's folder would be the folder
    // itself, walked again under every name it holds, without end.
    if (entry.empty() || entry.find('\0') != std::string::npos) continue;
    // Every entry that is no file as it stands is tried in the playlist's
    // folder, whatever it holds; one that still names nothing is dropped
    // later by AddFile. A leading separator already makes a path absolute.
    if (fileSystem.Status(entry).kind != platform::EntryKind::File && entry.front() != base::kPathSeparator) {
      entry = folder + entry;
    }
    entries.push_back(std::move(entry));
  }
  return entries;
}

}  // namespace

std::vector<std::string> ReadPlaylistEntries(const std::string& playlistPath, platform::FileSystem& fileSystem) {
  return ReadEntries(playlistPath, fileSystem).value_or(std::vector<std::string>());
}

LoadOutcome LoadPlaylist(core::ListLoad& load, core::Preview& preview, const std::string& playlistPath) {
  const auto entries = ReadEntries(playlistPath, load.fileSystem);
  if (!entries) return LoadOutcome::Finished;  // a missing playlist changes nothing, not even the view

  for (std::string entry : *entries) {
    try {
      core::AddFile(load, entry);
    } catch (const base::RuntimeFault&) {
      // An entry that names nothing is passed over.
    }
    // The caller spends the stop: it may have more to stop.
    if (load.stopAsked) return LoadOutcome::Cancelled;
  }
  preview.Refresh();
  return LoadOutcome::Finished;
}

}  // namespace nomra::open

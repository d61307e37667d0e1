#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fileops/OperationServices.h"
#include "fileops/TransferFiles.h"

namespace nomra::fileops {

// The functions of a file operation.
inline constexpr std::uint32_t FO_MOVE = 1;
inline constexpr std::uint32_t FO_COPY = 2;
inline constexpr std::uint32_t FO_DELETE = 3;

// The flags, by the names callers know them under.
inline constexpr std::uint16_t FOF_MULTIDESTFILES = 1;      // one target per source
inline constexpr std::uint16_t FOF_RENAMEONCOLLISION = 8;   // a taken name: keep both, unasked
inline constexpr std::uint16_t FOF_NOCONFIRMATION = 16;     // delete without asking
inline constexpr std::uint16_t FOF_WANTMAPPINGHANDLE = 32;  // report the names given on collision
inline constexpr std::uint16_t FOF_ALLOWUNDO = 64;          // delete to the trash
inline constexpr std::uint16_t FOF_FILESONLY = 128;         // a wildcard picks files, never folders

// One file operation, field by field as callers fill it.
struct ShellOperation {
  std::uint32_t wFunc = 0;
  std::string pFrom;  // path list of the sources
  std::string pTo;    // path list of the targets, empty for delete
  std::uint16_t fFlags = 0;
  bool fAnyOperationsAborted = false;
  // With FOF_WANTMAPPINGHANDLE: the old and the new paths of the files that
  // landed under another name, each side joined by "\r\n".
  std::string mappedOldNames;
  std::string mappedNewNames;
  // After a copy or move, for each source in order: where its file stands
  // now, "" when it wasn't put anywhere.
  std::vector<std::string> placed;
};

// Flags of a copy or move: several targets, rename on collision with its
// mappings, files only for a wildcard source.
std::uint16_t TransferFlags(std::string_view sources, std::string_view targets, bool renameOnCollision);
// Flags of a deletion: the trash, and no question unless `confirm`.
std::uint16_t DeleteFlags(bool toRecycleBin, bool confirm);

// The sources of a list, each wildcard ("*", "?" in the last part) replaced
// by the files of its folder that it matches, in name order.
std::vector<std::string> ExpandSources(std::string_view list, platform::FileSystem& fileSystem);

// Pairs each source with its target: with FOF_MULTIDESTFILES the targets in
// order; otherwise the one target is a folder that takes all sources under
// their names, unless it isn't an existing folder and there is one source,
// which then takes it as its new path.
std::vector<TransferPair> PairTargets(const std::vector<std::string>& sources, std::string_view targets,
                                      bool multipleTargets, platform::FileSystem& fileSystem);

// The record of a copy (FO_COPY) or move (FO_MOVE) between two path lists.
ShellOperation TransferRecord(std::uint32_t function, std::string sources, std::string targets, bool renameOnCollision);

// Carries out the operation. 0 when every file went through (or was
// skipped at the user's word), else the errno of the first failure.
int RunShellOperation(ShellOperation& record, OperationServices& services);

}  // namespace nomra::fileops

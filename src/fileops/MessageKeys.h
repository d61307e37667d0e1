#pragma once

namespace nomra::fileops {

// Keys of the language files' Messages section that the file operations
// show. Each names its placeholders.

// A target name is taken: %1 name, %2 target folder, %3 source folder,
// %4 and %5 size and date of the file there, %6 and %7 of the one coming,
// %8 a line break.
inline constexpr char kFileExists[] = "msgFileExists";
// %1 the name the file would get, %2 a line break.
inline constexpr char kKeepBoth[] = "msgKeepBoth";
inline constexpr char kSameForAll[] = "msgSameForAll";
inline constexpr char kReplaceCaption[] = "msgCapReplace";

// Failures: %1 source, %2 target, %3 the system's text.
inline constexpr char kCopyFailed[] = "msgCopyFailed";
inline constexpr char kMoveFailed[] = "msgMoveFailed";
// %1 source, %2 target folder.
inline constexpr char kDiskFull[] = "msgDiskFull";
inline constexpr char kAccessDenied[] = "msgAccessDenied";
// %1 the path that is a file where a folder should be.
inline constexpr char kNotAFolder[] = "msgNotAFolder";
// %1 source.
inline constexpr char kSourceMissing[] = "msgSourceMissing";
// %1 source, %2 target, %3 the system's text.
inline constexpr char kOriginalKept[] = "msgOriginalKept";
// %1 how many files are left.
inline constexpr char kGoOn[] = "msgGoOn";
inline constexpr char kAttentionCaption[] = "msgCapAttention";

// Deleting: %1 the file, or the number of files.
inline constexpr char kTrashOne[] = "msgTrashOne";
inline constexpr char kTrashMany[] = "msgTrashMany";
inline constexpr char kDeleteOne[] = "msgDeleteOne";
inline constexpr char kDeleteMany[] = "msgDeleteMany";
inline constexpr char kDeleteCaption[] = "msgCapDelete";
// %1 the file, %2 the system's text, %3 a line break.
inline constexpr char kTrashFailed[] = "msgTrashFailed";
inline constexpr char kDeleteFailed[] = "msgDeleteFailed";

// Progress: %1 the file at work, %2 how many there are.
inline constexpr char kCopying[] = "msgCopying";
inline constexpr char kMoving[] = "msgMoving";
inline constexpr char kTrashing[] = "msgTrashing";
inline constexpr char kDeleting[] = "msgDeleting";

}  // namespace nomra::fileops

#pragma once

// The keys of the language files' Messages section that the program shows,
// each named once. They are file formats: spelled exactly as the language
// files spell them. "%1", "%2", ... are the arguments a message is given.
namespace nomra::lang {

// --- The status panel and the selected-script label --------------------------
inline constexpr char kListSummaryStatus[] = "MsgStat01";  // %1 files, %2 folders, %3 changed
inline constexpr char kAddingStatus[] = "MsgStat02";       // followed by the running number
inline constexpr char kRenamedStatus[] = "MsgStat03";      // followed by the running number
inline constexpr char kNoScriptStatus[] = "MsgStat05";
inline constexpr char kRowOfCountStatus[] = "MsgStat06";  // %1 the row, %2 how many

// --- Captions --------------------------------------------------------------
inline constexpr char kPendingChangesCaption[] = "MsgCap03";
inline constexpr char kRejectChangesCaption[] = "MsgCap04";
inline constexpr char kDeleteFilterCaption[] = "MsgCap07";
inline constexpr char kScriptRecordingCaption[] = "MsgCap11";
inline constexpr char kSaveScriptCaption[] = "MsgCap12";
inline constexpr char kAttentionCaption[] = "msgCapAttention";
inline constexpr char kReplaceCaption[] = "msgCapReplace";
inline constexpr char kDeleteCaption[] = "msgCapDelete";
inline constexpr char kStructureErrorCaption[] = "msgCapErrorStructure";
inline constexpr char kRemoveStructureCaption[] = "msgCapRemoveStructure";

// --- The list and its pending names ------------------------------------------
inline constexpr char kTakeChangesQuestion[] = "MsgText03";
inline constexpr char kRejectChangesQuestion[] = "MsgText04";
inline constexpr char kUndoQuestion[] = "MsgText07";
inline constexpr char kRemoveRowWithChangeQuestion[] = "MsgText15";
inline constexpr char kDeleteFilterQuestion[] = "MsgText16";
inline constexpr char kRemoveRowsWithChangesQuestion[] = "MsgText21";
inline constexpr char kExpertModeWarning[] = "MsgText33";
inline constexpr char kExpertModeQuestion[] = "MsgText34";

// --- The not-renamed report: %1 old path, %2 new path ------------------------
inline constexpr char kTargetExistsText[] = "MsgText05";
inline constexpr char kOtherFailureText[] = "MsgText06";  // followed by "   System text: " and the system's text
inline constexpr char kPathNotUsableText[] = "MsgText11";

// --- The rename history --------------------------------------------------------
// What "%1" stands for in both questions: the text breaks into paragraphs.
inline constexpr char kHistoryUndoQuestion[] = "MsgText18";
inline constexpr char kHistoryDeleteQuestion[] = "MsgText19";

// --- Scripts -----------------------------------------------------------------
inline constexpr char kStopRecordingQuestion[] = "MsgText30";
inline constexpr char kScriptNamePrompt[] = "MsgText31";
inline constexpr char kDiscardRecordingQuestion[] = "MsgText32";
// %1 the script as the list shows it.
inline constexpr char kDeleteScriptQuestion[] = "msgDeleteScript";

// --- Name structures -----------------------------------------------------------
inline constexpr char kCheckInputQuestion[] = "msgCheckInput";
inline constexpr char kCorrectSyntaxText[] = "msgCorrectSyntax";
inline constexpr char kRemoveStructureQuestion[] = "msgRemoveStructure";
inline constexpr char kStructureError1[] = "msgErrorStructure1";
inline constexpr char kStructureError2[] = "msgErrorStructure2";
inline constexpr char kStructureError3[] = "msgErrorStructure3";
inline constexpr char kStructureError4[] = "msgErrorStructure4";

// --- Copying, moving and deleting ----------------------------------------------
inline constexpr char kChooseFolderPrompt[] = "MsgText22";
inline constexpr char kCopiesCollideText[] = "MsgText26";
// A target name is taken: %1 name, %2 target folder, %3 source folder,
// %4 and %5 size and date of the file there, %6 and %7 of the one coming,
// %8 a line break.
inline constexpr char kFileExists[] = "msgFileExists";
// %1 the name the file would get, %2 a line break.
inline constexpr char kKeepBoth[] = "msgKeepBoth";
inline constexpr char kSameForAll[] = "msgSameForAll";
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
// Deleting: %1 the file, or the number of files.
inline constexpr char kTrashOne[] = "msgTrashOne";
inline constexpr char kTrashMany[] = "msgTrashMany";
inline constexpr char kDeleteOne[] = "msgDeleteOne";
inline constexpr char kDeleteMany[] = "msgDeleteMany";
// %1 the file, %2 the system's text, %3 a line break.
inline constexpr char kTrashFailed[] = "msgTrashFailed";
inline constexpr char kDeleteFailed[] = "msgDeleteFailed";
// Progress: %1 the file at work, %2 how many there are.
inline constexpr char kCopying[] = "msgCopying";
inline constexpr char kMoving[] = "msgMoving";
inline constexpr char kTrashing[] = "msgTrashing";
inline constexpr char kDeleting[] = "msgDeleting";

// Replacing: a text to find, the replacement, a pattern that can't be used
// (%1 PCRE2's words, %2 the character at fault).
inline constexpr char kInputMissingCaption[] = "MsgCap05";
inline constexpr char kFindTextMissing[] = "MsgText09";
inline constexpr char kReplacementMissing[] = "MsgText10";
inline constexpr char kPatternFault[] = "msgPatternFault";
inline constexpr char kPatternReplacementFault[] = "msgPatternReplacementFault";
inline constexpr char kPatternCaption[] = "msgCapPattern";
// Renumbering found too few numbers at either end of the names.
inline constexpr char kNoNumbersToRenumber[] = "MsgText14";

}  // namespace nomra::lang

#pragma once
#include <array>
#include <string_view>

namespace nomra::lang {

// Dialogs without a "Caption" text of their own take the caption of the main
// menu entry that opens them.
struct MenuCaptionOf {
  std::string_view dialog;
  std::string_view menu;
};

// These act on the rows of the apply scope, so their title shows it.
inline constexpr std::array<MenuCaptionOf, 16> kScopedMenuCaptions{{
    {"frmCopyFiles", "mnuCopyFiles"},
    {"frmDateTime", "mnuRename09"},
    {"frmEXIFList", "mnuEXIFList"},
    {"frmFileAttributes", "mnuFileAttributes"},
    {"frmFileList", "mnuFileList"},
    {"frmFileExtension", "mnuRename03"},
    {"frmFindDuplications", "mnuFindDuplications"},
    {"frmInsert", "mnuRename07"},
    {"frmMoveFiles", "mnuMoveFiles"},
    {"frmMP3List", "mnuMP3List"},
    {"frmNameStructure", "mnuRenameStructure"},
    {"frmNumber", "mnuRename01"},
    {"frmPrefixSuffix", "mnuRename05"},
    {"frmReplace", "mnuRename06"},
    {"frmTrim", "mnuRename10"},
    {"frmULCASE", "mnuRename04"},
}};

inline constexpr std::array<MenuCaptionOf, 7> kPlainMenuCaptions{{
    {"frmInfo", "mnuInfo"},
    {"frmMove", "mnuRename08"},
    {"frmNewNamesFromFile", "mnuNewNamesFromFile"},
    {"frmOpen", "mnuOpenFile"},
    {"frmRenumber", "mnuRename02"},
    {"frmScript", "mnuStartRunScript"},
    {"frmSynchronize", "mnuSyncFolders"},
}};

// Dialogs whose title is a text of another section.
struct BorrowedCaption {
  std::string_view dialog;
  std::string_view section;
  std::string_view key;
  std::string_view dropped;  // characters removed from the text
};

inline constexpr std::array<BorrowedCaption, 4> kBorrowedCaptions{{
    {"frmEditMan", "frmMain", "BtnBarLeftEditMan", "&"},
    {"frmOptions", "frmMain", "MnuOptions", "&"},
    {"frmPos", "frmInsert", "frmPosCap", "&"},
    {"frmOffset", "frmFileAttributes", "chkOffset", ":"},
}};

// The extras of single dialogs.
inline constexpr std::string_view kHistoryDialog = "frmHistory";
inline constexpr std::string_view kHistoryMenu = "mnuHistory";
inline constexpr std::string_view kHistoryJoin = " - ";
inline constexpr std::string_view kHistoryArrow = " -> ";

inline constexpr std::string_view kNotRenamedDialog = "frmNotRenamed";
inline constexpr std::string_view kSelActionLabel = "lblSelAction";
inline constexpr std::string_view kSelActionSection = "frmSelAction";
inline constexpr std::string_view kLabelEnd = ":";

inline constexpr std::string_view kID3DataDialog = "frmID3Data";
inline constexpr std::string_view kCopyDataButton = "cmdCopyData";
inline constexpr std::string_view kCopyDataToolTipKey = "cmdCopyID3Data";
inline constexpr std::string_view kID3v1 = "ID3v1";
inline constexpr std::string_view kID3v2 = "ID3v2";

}  // namespace nomra::lang

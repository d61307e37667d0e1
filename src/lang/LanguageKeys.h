#pragma once

namespace nomra::lang {

// Sections and keys of a language file that the resource layer itself reads.
inline constexpr char kMainSection[] = "Main";
inline constexpr char kLanguageNameKey[] = "lngname";
inline constexpr char kCharsetKey[] = "charset";

// Command buttons without a tag share one section across all dialogs.
inline constexpr char kButtonsSection[] = "Buttons";
// Menu entries fall back to this section when their own has no text.
inline constexpr char kMenusSection[] = "Menus";
inline constexpr char kCaptionKey[] = "Caption";
// Questions, messages and status texts.
inline constexpr char kMessagesSection[] = "Messages";

// The prefix of the menu entry that stands behind a tool button's key.
inline constexpr char kMenuPrefix[] = "mnu";
// A tag that names a section by itself starts with this, in any case.
inline constexpr char kDialogPrefix[] = "frm";
inline constexpr char kTagSeparator = '|';
// Rows of a choice list are the list's key followed by "-1", "-2", ...
inline constexpr char kRowKeySeparator[] = "-";

}  // namespace nomra::lang

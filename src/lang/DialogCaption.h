#pragma once
#include <string_view>

#include "lang/LocaliseForm.h"
#include "lang/MessageCatalog.h"

namespace nomra::lang {

// The dialog's title: its own "Caption" text, else what the dialog's use
// borrows from the main menu or from another section. Also the few texts
// that single dialogs take from outside their own section. `section` names
// the use of the dialog ("frmMP3List" for the file list dialog shown for MP3
// files), so it is what the table is looked up by.
void LocaliseDialogCaption(LocalisableForm& form, std::string_view section, const MessageCatalog& catalog,
                           const CaptionSources& sources);

}  // namespace nomra::lang

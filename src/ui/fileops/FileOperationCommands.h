#pragma once
#include <QString>

#include <string>

#include "core/ListContext.h"
#include "core/RowCommitter.h"
#include "lang/MessageCatalog.h"
#include "platform/Platform.h"
#include "rename/ActionContext.h"

class QWidget;

namespace nomra::ui {

// The main window's file commands, each a modal run over the engine. The
// window refreshes its views afterwards.

// mnuCopyFiles ("frmCopyFiles"), mnuMoveFiles ("frmMoveFiles") and the
// copy of "TakeChanges2" ("frmSelAction"): frmSelAction with that Tag.
// True when its OK ran to the end.
bool RunSelAction(QWidget* parent, platform::Platform& system, const rename::ActionContext& context,
                  core::RowCommitter* committer, const lang::MessageCatalog& catalog, const QString& tag);

// mnuDeleteFiles1 (to the trash) and mnuDeleteFiles2 (at once), with their
// progress. False when expert mode is off.
bool DeleteListFiles(QWidget* parent, platform::Platform& system, const core::ListContext& context, bool expertMode,
                     const lang::MessageCatalog& catalog, bool toTrash);

// The properties window of a file (btnBarLeft "Properties" and the pop-up
// menu); a path that can't be read is told through the front end.
void ShowProperties(QWidget* parent, platform::FileSystem& fileSystem, core::FrontEnd& frontEnd,
                    const lang::MessageCatalog& catalog, const std::string& path);

}  // namespace nomra::ui

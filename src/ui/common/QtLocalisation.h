#pragma once
#include <QString>

#include "lang/LocaliseForm.h"

class QWidget;
class QObject;

namespace nomra::ui {

// Dynamic properties through which widgets tell the localisation what the
// engine's rules need: the control's tag, a tool button's key and style, the
// keys of tabs, the tags of list view heads.
inline constexpr char kTagProperty[] = "tag";
inline constexpr char kKeyProperty[] = "key";
inline constexpr char kStyleProperty[] = "buttonStyle";
inline constexpr char kTabKeysProperty[] = "tabKeys";
inline constexpr char kHeaderTagsProperty[] = "headerTags";

// Menu entries are the actions whose names begin with this.
inline constexpr char kMenuEntryPrefix[] = "mnu";

// A control array's member is named "opt1(2)"; its name for the language
// file is "opt1".
QString ControlName(const QObject& object);
// The name of member `index` of a control array: "opt1(2)".
QString ControlArrayMember(const QString& array, int index);

// Puts the language's texts on a dialog or window: every widget and every
// menu entry with an object name takes part, by the engine's rules.
void LocaliseWidget(QWidget& form, const QString& section, const lang::MessageCatalog& catalog,
                    const lang::CaptionSources& sources);

}  // namespace nomra::ui

#pragma once
#include <QStringList>

#include "dialog/DialogModel.h"

class QWidget;

namespace nomra::ui {

// Binds a dialog model to the widgets of a window by object name: each
// input is the widget named by its key ("txtPr", "opt2(1)"). Line edits hold
// texts, radio buttons options, check boxes check values, vertical scroll
// bars positions, combo boxes and list widgets their rows and selection.

// The model's values into the widgets, e.g. after restoring.
void ShowModelInWidgets(const dialog::DialogModel& model, QWidget& window);

// The widgets' values into the model, before storing or running.
void ReadWidgetsIntoModel(dialog::DialogModel& model, const QWidget& window);

// Keys of inputs that have no widget of their name: a
// renamed control would otherwise break the settings, the scripts and the
// language files without a sound.
QStringList InputsWithoutWidget(const dialog::DialogModel& model, const QWidget& window);

}  // namespace nomra::ui

#pragma once

class QBoxLayout;
class QDialog;
class QPushButton;

namespace nomra::ui {

// The row of cmdOK and cmdCancel at the foot of a dialog, right-aligned;
// cmdCancel rejects the dialog. The caller connects cmdOK.
QPushButton* AddOkCancelRow(QDialog& dialog, QBoxLayout& layout);

}  // namespace nomra::ui

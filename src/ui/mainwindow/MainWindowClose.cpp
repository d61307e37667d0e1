// The close of the main window: layout and settings are written, the user
// is asked about a running recording and about pending names.
#include <QCloseEvent>
#include <QHeaderView>
#include <QTableView>
#include <QToolBar>

#include "shell/CloseQuestions.h"
#include "shell/WindowPlacement.h"
#include "ui/common/TextConversion.h"
#include "ui/mainwindow/MainWindow.h"

namespace nomra::ui {

void MainWindow::CollectLayout() {
  const double dpi = logicalDpiX();
  for (int head = 1; head <= shell::kColumnHeadCount; ++head) {
    const int column = head - 1;
    settings_.columnWidths[column] =
        details_->isColumnHidden(column) ? 0 : shell::PixelsToTwips(details_->columnWidth(column), dpi);
  }
  settings_.previewStyle = view_ == ListView::Details        ? kDetailsStyle
                           : view_ == ListView::DetailsIcons ? kDetailsIconsStyle
                                                             : kIconsStyle;
  settings_.previewGridLines = MenuAction(kGridLinesEntry)->isChecked();
  settings_.ws = isMaximized() ? 2 : isMinimized() ? 1 : 0;
  if (settings_.ws == 0) {
    settings_.x = shell::PixelsToTwips(x(), dpi);
    settings_.y = shell::PixelsToTwips(y(), dpi);
    settings_.w = shell::PixelsToTwips(width(), dpi);
    settings_.h = shell::PixelsToTwips(height(), dpi);
  }
  settings_.splash = MenuAction(kShowSplashEntry)->isChecked() ? 1 : 0;
  settings_.btnbarMain = MenuAction(kShowMainBarEntry)->isChecked() ? 1 : 0;
  settings_.btnbarScript = MenuAction(kShowScriptBarEntry)->isChecked() ? 1 : 0;
  settings_.previewSortKey = state_.list.sortKey;
  settings_.previewSortOrder = state_.list.sortOrder;
  settings_.openFileTag = ToEngineText(variants_.value(kOpenFileKey));
  settings_.takeChangesTag = ToEngineText(variants_.value(kTakeChangesKey));
}

void MainWindow::closeEvent(QCloseEvent* event) {
  CollectLayout();
  const shell::CloseDecision decision =
      shell::RunCloseSequence(settings_, {state_, frontEnd_, &committer_}, options_, SettingsFile(),
                              script_.recording != 0, [this] { EndRecording(); });
  if (decision == shell::CloseDecision::Refuse) {
    event->ignore();
    // A Yes that took the changes has changed rows even when the close stops.
    RefreshPreview();
    return;
  }
  event->accept();
}

}  // namespace nomra::ui

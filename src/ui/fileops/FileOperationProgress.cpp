#include "ui/fileops/FileOperationProgress.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "lang/LanguageKeys.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

// Work that ends within this time shows no window at all.
constexpr qint64 kShowAfterMsecs = 400;
constexpr int kBarSteps = 1000;

}  // namespace

FileOperationProgress::FileOperationProgress(const lang::MessageCatalog& catalog, QWidget* parent)
    : QDialog(parent), catalog_(catalog) {
  setObjectName("frmFileOperation");
  setWindowModality(Qt::WindowModal);
  resize(520, 140);
  auto* layout = new QVBoxLayout(this);
  step_ = new QLabel(this);
  step_->setObjectName("lblStep");
  file_ = new QLabel(this);
  file_->setObjectName("lblFile");
  file_->setTextFormat(Qt::PlainText);
  file_->setWordWrap(true);
  bar_ = new QProgressBar(this);
  bar_->setObjectName("barProgress");
  bar_->setRange(0, kBarSteps);
  layout->addWidget(step_);
  layout->addWidget(file_);
  layout->addWidget(bar_);
  QPushButton* cancel = AddCancelButton(*AddButtonRow(*layout), *this);
  connect(cancel, &QPushButton::clicked, this, [this] { cancelled_ = true; });
  LocaliseDialog(*this, catalog, parent, QString());
}

void FileOperationProgress::Begin(const core::ProgressStep&) {
  cancelled_ = false;
  bar_->setValue(0);
  shownAfter_ = QDateTime::currentMSecsSinceEpoch() + kShowAfterMsecs;
}

bool FileOperationProgress::Tick(const core::ProgressStep& step) {
  const std::vector<std::string> numbers = {std::to_string(step.index), std::to_string(step.count)};
  std::string text = catalog_.GetText(lang::kMessagesSection, step.task, numbers);
  if (text.empty()) text = std::to_string(step.index) + " / " + std::to_string(step.count);
  step_->setText(ToQString(text));
  file_->setText(ToQString(step.path));
  // Bytes where there are any, so one large file moves the bar too; files otherwise.
  const double done = step.bytesTotal > 0 ? static_cast<double>(step.bytesDone) / static_cast<double>(step.bytesTotal)
                      : step.count > 0    ? static_cast<double>(step.index - 1) / step.count
                                          : 0.0;
  bar_->setValue(static_cast<int>(done * kBarSteps));
  if (!isVisible() && QDateTime::currentMSecsSinceEpoch() >= shownAfter_) show();
  QCoreApplication::processEvents();
  return !cancelled_;
}

void FileOperationProgress::End() { hide(); }

QString FileOperationProgress::StepText() const { return step_->text(); }
QString FileOperationProgress::FileText() const { return file_->text(); }
int FileOperationProgress::Value() const { return bar_->value(); }

}  // namespace nomra::ui

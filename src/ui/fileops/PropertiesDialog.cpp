#include "ui/fileops/PropertiesDialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/DateText.h"
#include "base/NumberText.h"
#include "fileops/PermissionText.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

constexpr char kSection[] = "frmProperties";
constexpr char kValueSuffix[] = "Value";

// A text of the dialog's section, or the design text where the language has none.
std::string Text(const lang::MessageCatalog& catalog, const char* key, const std::string& design,
                 const std::vector<std::string>& arguments = {}) {
  std::string text = catalog.GetText(kSection, key, arguments);
  return text.empty() ? design : text;
}

std::string TypeText(const platform::FileProperties& p, const lang::MessageCatalog& catalog) {
  switch (p.type) {
    case platform::PropertyType::File: return Text(catalog, "typeFile", "File");
    case platform::PropertyType::Folder: return Text(catalog, "typeFolder", "Folder");
    case platform::PropertyType::Link: return Text(catalog, "typeLink", "Link to " + p.linkTarget, {p.linkTarget});
    case platform::PropertyType::Other: return Text(catalog, "typeOther", "Special file");
    case platform::PropertyType::Missing: break;
  }
  return std::string();
}

}  // namespace

PropertiesDialog::PropertiesDialog(const platform::FileProperties& p, const lang::MessageCatalog& catalog,
                                   QWidget* parent)
    : QDialog(parent) {
  setObjectName(kSection);
  setWindowTitle("Properties");
  resize(520, 0);
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  const std::string size = base::FormatGrouped(p.size);
  const std::string created =
      p.created ? base::FormatListDate(*p.created) : Text(catalog, "notKept", "not kept by this file system");
  const std::pair<const char*, std::pair<const char*, std::string>> rows[] = {
      {"lblPath", {"Path:", p.path}},
      {"lblType", {"Type:", TypeText(p, catalog)}},
      {"lblSize", {"Size:", Text(catalog, "sizeBytes", size + " bytes", {size})}},
      {"lblCreated", {"Created:", created}},
      {"lblModified", {"Modified:", base::FormatListDate(p.modified)}},
      {"lblAccessed", {"Last read:", base::FormatListDate(p.accessed)}},
      {"lblOwner", {"Owner:", p.owner + " (" + p.group + ")"}},
      {"lblPermissions", {"Permissions:", fileops::PermissionText(p.mode)}},
  };
  for (const auto& [name, content] : rows) {
    auto* label = new QLabel(content.first, this);
    label->setObjectName(name);
    auto* value = new QLabel(ToQString(content.second), this);
    value->setObjectName(QString(name) + kValueSuffix);
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setWordWrap(true);
    form->addRow(label, value);
  }
  layout->addLayout(form);
  QPushButton* close = AddOkButton(*AddButtonRow(*layout), *this);
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  LocaliseDialog(*this, catalog, parent, QString());
}

QString PropertiesDialog::Value(const QString& labelName) const {
  const auto* value = findChild<QLabel*>(labelName + kValueSuffix);
  return value == nullptr ? QString() : value->text();
}

}  // namespace nomra::ui

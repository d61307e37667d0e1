#pragma once
#include <QDialog>

#include <string>
#include <vector>

#include "formats/IniFile.h"
#include "lang/ChooseLanguage.h"
#include "lang/MessageCatalog.h"

class QComboBox;

namespace nomra::ui {

// The language page of frmOptions: shown at start when several language
// files lie beside the program and none is the stored choice, and from the
// Options command. The choice is stored as the setting "lng".
class LanguageDialog final : public QDialog {
  Q_OBJECT
 public:
  LanguageDialog(const std::string& appFolder, formats::IniFile settingsFile, const lang::MessageCatalog& catalog,
                 const QString& menuCaption, QWidget* parent = nullptr);

  // The chosen file after OK; "" otherwise.
  const std::string& ChosenFile() const { return chosen_; }
  QComboBox& Choices() { return *choices_; }

 private:
  void Store();

  formats::IniFile settingsFile_;
  std::vector<lang::LanguageFile> files_;
  QComboBox* choices_ = nullptr;
  std::string chosen_;
};

}  // namespace nomra::ui

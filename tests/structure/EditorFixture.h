#pragma once
#include <string>
#include <vector>

#include "lang/MessageCatalog.h"
#include "rename/ActionFixture.h"
#include "support/RealFiles.h"

namespace nomra::testing {

// A list over real files, a data folder for structures.nrp, and a language
// file with the texts the structure dialogs read.
class StructureDialogTest : public ActionTest {
 protected:
  StructureDialogTest() { options.dataFolder = data.Path(); }

  std::string StructuresFile() const { return data.Path() + "structures.nrp"; }
  void WriteStructures(const std::string& content) const { data.WriteFile("structures.nrp", content); }

  static lang::MessageCatalog LanguageOf(const TempFolder& folder, const std::vector<std::string>& lines) {
    std::string content;
    for (const std::string& line : lines) content += line + "\r\n";
    return lang::MessageCatalog(nomra::testing::RealFiles(), folder.WriteFile("Test.lng", content));
  }

  TempFolder app;
  lang::MessageCatalog catalog = LanguageOf(
      app, {"[Messages]", "msgCheckInput=Check your input.", "msgCorrectSyntax=Close every tag.", "[ComboBoxes]",
            "cmbElements-1=Name|<NAME>", "cmbElements-2=Extension|<EXT>", "cmbExif-1=Camera|<EXIF_Make>",
            "cmbMP3Tag-1=Artist|<ID3_Artist>", "cmbDOSTag-1=Short name|<DOSNAME>",
            "cmbFunctions-1=Upper case|<UC></UC>", "cmbFunctions-2=First letters|<NAME_L(3)>"});
};

}  // namespace nomra::testing

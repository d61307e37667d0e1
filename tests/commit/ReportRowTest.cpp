// The failure numbers, the report rows they give and their plain text.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

#include "commit/RenameFailure.h"
#include "commit/ReportRow.h"
#include "commit/ReportRowText.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::commit {
namespace {

TEST(FailureOfError, TakenNamesAreTargetExists) {
  EXPECT_EQ(FailureOfError(EEXIST).kind, base::FailureKind::TargetExists);
  EXPECT_EQ(FailureOfError(ENOTEMPTY).kind, base::FailureKind::TargetExists);
}

TEST(FailureOfError, AccessAndPathErrorsArePathNotUsable) {
  for (int error : {EACCES, EPERM, EROFS, ENOENT, ENOTDIR, ENAMETOOLONG, EINVAL}) {
    EXPECT_EQ(FailureOfError(error).kind, base::FailureKind::PathNotUsable) << std::strerror(error);
    EXPECT_TRUE(FailureOfError(error).systemText.empty());
  }
}

TEST(FailureOfError, AnythingElseCarriesTheSystemText) {
  const base::Failure failure = FailureOfError(EIO);
  EXPECT_EQ(failure.kind, base::FailureKind::Other);
  EXPECT_EQ(failure.systemText, std::strerror(EIO));
}

TEST(RefuseName, EachForbiddenCharacterIsAPathFailure) {
  for (char forbidden : std::string("\\/:?*<>|\"")) {
    const std::optional<base::Failure> failure = RefuseName(std::string("a") + forbidden + "b");
    ASSERT_TRUE(failure.has_value()) << forbidden;
    EXPECT_EQ(failure->kind, base::FailureKind::PathNotUsable);
  }
}

TEST(RefuseName, EmptyNameAndNulByteAreRefused) {
  EXPECT_TRUE(RefuseName("").has_value());
  EXPECT_TRUE(RefuseName(std::string("a\0b", 3)).has_value());
}

TEST(RefuseName, OrdinaryNamesPass) {
  EXPECT_FALSE(RefuseName("Urlaub 01.jpg").has_value());
  EXPECT_FALSE(RefuseName("Grüße €.txt").has_value());
  EXPECT_FALSE(RefuseName("caf\xE9.txt").has_value()) << "a name that isn't UTF-8 is the volume's business";
}

ReportRow Row(const char* textKey, std::vector<std::string> arguments, std::string systemText = "",
              std::string rowKey = "") {
  ReportRow row;
  row.textKey = textKey;
  row.arguments = std::move(arguments);
  row.systemText = std::move(systemText);
  row.rowKey = std::move(rowKey);
  return row;
}

TEST(ReportRowDescribe, NamesTheRenameAndItsReason) {
  EXPECT_EQ(Row("MsgText05", {"\"a.txt\"", "\"b.txt\""}).Describe(), "\"a.txt\" -> \"b.txt\": the target exists");
  EXPECT_EQ(Row("MsgText11", {"\"a.txt\"", "\"b.txt\""}).Describe(),
            "\"a.txt\" -> \"b.txt\": access denied or path not found");
  EXPECT_EQ(Row("MsgText06", {"\"a.txt\"", "\"b.txt\""}, "Input/output error").Describe(),
            "\"a.txt\" -> \"b.txt\": Input/output error");
}

TEST(ReportRowDescribe, RowWithoutNamesNamesItsKeyOrTheProtocol) {
  EXPECT_EQ(Row("MsgText06", {"\"\"", "\"\""}, "No such file or directory", "/d/a").Describe(),
            "\"/d/a\": No such file or directory");
  EXPECT_EQ(Row("MsgText11", {"\"\"", "\"\""}).Describe(), "the rename protocol: access denied or path not found");
}

// A language file of one message with two markers.
lang::MessageCatalog CatalogWith(const nomra::testing::TempFolder& temp, const std::string& line) {
  return lang::MessageCatalog(nomra::testing::RealFiles(), temp.WriteFile("de.lng", "[Messages]\r\n" + line + "\r\n"));
}

TEST(ReportRowText, TellsTheMessageOfTheKeyWithItsArguments) {
  nomra::testing::TempFolder temp;
  const lang::MessageCatalog catalog = CatalogWith(temp, "MsgText05=%1 -> %2: Ziel vorhanden");
  EXPECT_EQ(ReportRowText(Row("MsgText05", {"\"a\"", "\"b\""}), catalog), "\"a\" -> \"b\": Ziel vorhanden");
}

TEST(ReportRowText, PutsTheSystemsWordsAfterAndWhatItIsAboutBefore) {
  nomra::testing::TempFolder temp;
  const lang::MessageCatalog catalog = CatalogWith(temp, "MsgText11=%1 %2 Fehler");
  ReportRow row = Row("MsgText11", {"x", "y"}, "Input/output error");
  row.about = "the commit journal";
  EXPECT_EQ(ReportRowText(row, catalog), "the commit journal: x y Fehler   Input/output error");
}

TEST(ReportRowText, WithoutATextForTheKeyTheRowDescribesItself) {
  const ReportRow row = Row("MsgText05", {"\"a.txt\"", "\"b.txt\""});
  EXPECT_EQ(ReportRowText(row, lang::MessageCatalog()), row.Describe());
}

}  // namespace
}  // namespace nomra::commit

#include <gtest/gtest.h>

#include <string>

#include "settings/IniFile.h"
#include "support/TempFolder.h"

namespace nomra::settings {
namespace {

using nomra::testing::TempFolder;

std::string Repeat(const std::string& piece, int times) {
  std::string out;
  for (int i = 0; i < times; ++i) out += piece;
  return out;
}

TEST(SettingsRead, ValueOfExactly999CharactersIsReadWhole) {
  TempFolder temp;
  const std::string value = Repeat("x", 999);
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nLong=" + value + "\r\n");
  EXPECT_EQ(ReadIniString("Main", "Long", file), value);
}

TEST(SettingsRead, LongerValueLosesItsEndAt999Characters) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nLong=" + Repeat("ab", 600) + "\r\n");
  const std::string read = ReadIniString("Main", "Long", file);
  EXPECT_EQ(read.size(), 999u);
  EXPECT_EQ(read, Repeat("ab", 499) + "a");
}

TEST(SettingsRead, MultiByteValueIsNeverCutInsideACharacter) {
  TempFolder temp;
  // "ä" is two bytes, "€" three: 999 characters are 2 * 500 + 3 * 499 bytes.
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nText=" + Repeat("ä€", 600) + "\r\n");
  EXPECT_EQ(ReadIniString("Main", "Text", file), Repeat("ä€", 499) + "ä");
}

TEST(SettingsRead, MissingKeyReadsEmpty) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nThere=1\r\n");
  EXPECT_EQ(ReadIniString("Main", "Absent", file), "");
  EXPECT_EQ(ReadIniString("Other", "There", file), "");
}

TEST(SettingsRead, MissingFileReadsAsAllKeysMissing) {
  TempFolder temp;
  const std::string file = temp.Path() + "none.nrp";
  EXPECT_EQ(ReadIniString("Main", "Key", file), "");
  EXPECT_EQ(ReadIniInt("Main", "Key", file), -1);
  EXPECT_FALSE(nomra::testing::Exists(file));
}

TEST(SettingsRead, FolderInPlaceOfFileReadsAsAllKeysMissing) {
  TempFolder temp;
  const std::string folder = temp.MakeFolder("settings.nrp");
  EXPECT_EQ(ReadIniString("Main", "Key", folder), "");
  EXPECT_EQ(ReadIniInt("Main", "Key", folder), -1);
}

TEST(SettingsRead, SectionAndKeyNamesIgnoreCase) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nWindowLeft=120\r\n[Ärger]\r\nÖl=1\r\n");
  EXPECT_EQ(ReadIniString("MAIN", "windowleft", file), "120");
  EXPECT_EQ(ReadIniString("äRGER", "öL", file), "1");
}

TEST(SettingsRead, FirstOfTwoEqualSectionsWins) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=first\r\n[main]\r\nA=second\r\nB=only here\r\n");
  EXPECT_EQ(ReadIniString("Main", "A", file), "first");
  // The later section of the same name is never searched.
  EXPECT_EQ(ReadIniString("Main", "B", file), "");
}

TEST(SettingsRead, FirstOfTwoEqualKeysWins) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nKey=first\r\nKEY=second\r\n");
  EXPECT_EQ(ReadIniString("Main", "key", file), "first");
}

TEST(SettingsRead, BlanksAroundNamesAndValuesAreTrimmed) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "  [ Main ]\t\r\n \tKey \t=  a value\t \r\n");
  EXPECT_EQ(ReadIniString("Main", "Key", file), "a value");
}

TEST(SettingsRead, QuotesAreKept) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nQuoted=\"  spaced  \"\r\nSingle='x'\r\n");
  EXPECT_EQ(ReadIniString("Main", "Quoted", file), "\"  spaced  \"");
  EXPECT_EQ(ReadIniString("Main", "Single", file), "'x'");
}

TEST(SettingsRead, ValueKeepsEverythingAfterTheFirstEquals) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nFormula=a=b=c\r\n");
  EXPECT_EQ(ReadIniString("Main", "Formula", file), "a=b=c");
}

TEST(SettingsRead, LinesBeforeTheFirstSectionBelongToNoSection) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "Loose=1\r\n[Main]\r\nInside=2\r\n");
  EXPECT_EQ(ReadIniString("", "Loose", file), "");
  EXPECT_EQ(ReadIniString("Main", "Loose", file), "");
  EXPECT_EQ(ReadIniString("Main", "Inside", file), "2");
}

TEST(SettingsRead, SectionEndsAtTheNextHeader) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[One]\r\nA=1\r\n[Two]\r\nB=2\r\n");
  EXPECT_EQ(ReadIniString("One", "B", file), "");
  EXPECT_EQ(ReadIniString("Two", "A", file), "");
  EXPECT_EQ(ReadIniString("Two", "B", file), "2");
}

TEST(SettingsRead, GarbageLinesAreIgnored) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nno equals sign here\r\n\x01\x02junk\r\n]\r\nKey=ok\r\n");
  EXPECT_EQ(ReadIniString("Main", "no equals sign here", file), "");
  EXPECT_EQ(ReadIniString("Main", "Key", file), "ok");
}

TEST(SettingsRead, LfAndCrLfLineEndsBothRead) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\nUnix=1\r\nDos=2\nLast=3");
  EXPECT_EQ(ReadIniString("Main", "Unix", file), "1");
  EXPECT_EQ(ReadIniString("Main", "Dos", file), "2");
  EXPECT_EQ(ReadIniString("Main", "Last", file), "3");
}

TEST(SettingsRead, Windows1252FileReadsAsUtf8) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nWord=K\xE4se \x80\r\n");
  EXPECT_EQ(ReadIniString("Main", "Word", file), "Käse €");
}

TEST(SettingsRead, ByteOrderMarkIsNotPartOfTheFirstSection) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "\xEF\xBB\xBF[Main]\r\nKey=1\r\n");
  EXPECT_EQ(ReadIniString("Main", "Key", file), "1");
}

}  // namespace
}  // namespace nomra::settings

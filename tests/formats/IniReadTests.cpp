#include <gtest/gtest.h>

#include <string>

#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::formats {
namespace {

using nomra::testing::Ini;

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
  EXPECT_EQ(Ini(file).ReadString("Main", "Long"), value);
}

TEST(SettingsRead, LongerValueLosesItsEndAt999Characters) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nLong=" + Repeat("ab", 600) + "\r\n");
  const std::string read = Ini(file).ReadString("Main", "Long");
  EXPECT_EQ(read.size(), 999u);
  EXPECT_EQ(read, Repeat("ab", 499) + "a");
}

TEST(SettingsRead, MultiByteValueIsNeverCutInsideACharacter) {
  TempFolder temp;
  // "ä" is two bytes, "€" three: 999 characters are 2 * 500 + 3 * 499 bytes.
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nText=" + Repeat("ä€", 600) + "\r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "Text"), Repeat("ä€", 499) + "ä");
}

TEST(SettingsRead, MissingKeyReadsEmpty) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nThere=1\r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "Absent"), "");
  EXPECT_EQ(Ini(file).ReadString("Other", "There"), "");
}

TEST(SettingsRead, MissingFileReadsAsAllKeysMissing) {
  TempFolder temp;
  const std::string file = temp.Path() + "none.nrp";
  EXPECT_EQ(Ini(file).ReadString("Main", "Key"), "");
  EXPECT_EQ(Ini(file).ReadInt("Main", "Key"), -1);
  EXPECT_FALSE(nomra::testing::Exists(file));
}

TEST(SettingsRead, FolderInPlaceOfFileReadsAsAllKeysMissing) {
  TempFolder temp;
  const std::string folder = temp.MakeFolder("settings.nrp");
  EXPECT_EQ(Ini(folder).ReadString("Main", "Key"), "");
  EXPECT_EQ(Ini(folder).ReadInt("Main", "Key"), -1);
}

TEST(SettingsRead, SectionAndKeyNamesIgnoreCase) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nWindowLeft=120\r\n[Ärger]\r\nÖl=1\r\n");
  EXPECT_EQ(Ini(file).ReadString("MAIN", "windowleft"), "120");
  EXPECT_EQ(Ini(file).ReadString("äRGER", "öL"), "1");
}

TEST(SettingsRead, FirstOfTwoEqualSectionsWins) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=first\r\n[main]\r\nA=second\r\nB=only here\r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "A"), "first");
  // The later section of the same name is never searched.
  EXPECT_EQ(Ini(file).ReadString("Main", "B"), "");
}

TEST(SettingsRead, FirstOfTwoEqualKeysWins) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nKey=first\r\nKEY=second\r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "key"), "first");
}

TEST(SettingsRead, BlanksAroundNamesAndValuesAreTrimmed) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "  [ Main ]\t\r\n \tKey \t=  a value\t \r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "Key"), "a value");
}

TEST(SettingsRead, QuotesAreKept) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nQuoted=\"  spaced  \"\r\nSingle='x'\r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "Quoted"), "\"  spaced  \"");
  EXPECT_EQ(Ini(file).ReadString("Main", "Single"), "'x'");
}

TEST(SettingsRead, ValueKeepsEverythingAfterTheFirstEquals) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nFormula=a=b=c\r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "Formula"), "a=b=c");
}

TEST(SettingsRead, LinesBeforeTheFirstSectionBelongToNoSection) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "Loose=1\r\n[Main]\r\nInside=2\r\n");
  EXPECT_EQ(Ini(file).ReadString("", "Loose"), "");
  EXPECT_EQ(Ini(file).ReadString("Main", "Loose"), "");
  EXPECT_EQ(Ini(file).ReadString("Main", "Inside"), "2");
}

TEST(SettingsRead, SectionEndsAtTheNextHeader) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[One]\r\nA=1\r\n[Two]\r\nB=2\r\n");
  EXPECT_EQ(Ini(file).ReadString("One", "B"), "");
  EXPECT_EQ(Ini(file).ReadString("Two", "A"), "");
  EXPECT_EQ(Ini(file).ReadString("Two", "B"), "2");
}

TEST(SettingsRead, GarbageLinesAreIgnored) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nno equals sign here\r\n\x01\x02junk\r\n]\r\nKey=ok\r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "no equals sign here"), "");
  EXPECT_EQ(Ini(file).ReadString("Main", "Key"), "ok");
}

TEST(SettingsRead, LfAndCrLfLineEndsBothRead) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\nUnix=1\r\nDos=2\nLast=3");
  EXPECT_EQ(Ini(file).ReadString("Main", "Unix"), "1");
  EXPECT_EQ(Ini(file).ReadString("Main", "Dos"), "2");
  EXPECT_EQ(Ini(file).ReadString("Main", "Last"), "3");
}

TEST(SettingsRead, Windows1252FileReadsAsUtf8) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nWord=K\xE4se \x80\r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "Word"), "Käse €");
}

TEST(SettingsRead, ByteOrderMarkIsNotPartOfTheFirstSection) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "\xEF\xBB\xBF[Main]\r\nKey=1\r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "Key"), "1");
}

}  // namespace
}  // namespace nomra::formats

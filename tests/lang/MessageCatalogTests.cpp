#include <gtest/gtest.h>

#include <string>

#include "LanguageFile.h"
#include "lang/MessageCatalog.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::lang {
namespace {

using nomra::testing::TempFolder;
using testing::WriteLanguageFile;

std::string Repeat(const std::string& piece, int times) {
  std::string out;
  for (int i = 0; i < times; ++i) out += piece;
  return out;
}

TEST(MessageCatalog, ReadsTextsBySectionAndKeyIgnoringCase) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Messages]", "MsgText03=Datei fehlt"});
  const MessageCatalog catalog(nomra::testing::RealFiles(), file);
  EXPECT_EQ(catalog.GetText("messages", "msgtext03"), "Datei fehlt");
  EXPECT_EQ(catalog.FilePath(), file);
}

TEST(MessageCatalog, MissingKeySectionOrFileReadsEmpty) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Messages]", "MsgText03=Datei fehlt"});
  const MessageCatalog catalog(nomra::testing::RealFiles(), file);
  EXPECT_EQ(catalog.GetText("Messages", "MsgText04"), "");
  EXPECT_EQ(catalog.GetText("Buttons", "MsgText03"), "");
  EXPECT_EQ(MessageCatalog(nomra::testing::RealFiles(), temp.Path() + "none.lng").GetText("Messages", "MsgText03"), "");
  EXPECT_EQ(MessageCatalog().GetText("Messages", "MsgText03"), "");
}

TEST(MessageCatalog, TextIsReadOnceAndKeptWhenTheFileChanges) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Messages]", "MsgText03=alt"});
  const MessageCatalog catalog(nomra::testing::RealFiles(), file);
  WriteLanguageFile(temp, "de.lng", {"[Messages]", "MsgText03=neu"});
  EXPECT_EQ(catalog.GetText("Messages", "MsgText03"), "alt");
}

TEST(MessageCatalog, FillsPlaceholdersInTheOrderOfTheArguments) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Messages]", "MsgStat06=Zeile %1 von %2"});
  EXPECT_EQ(MessageCatalog(nomra::testing::RealFiles(), file).GetText("Messages", "MsgStat06", {"3", "7"}),
            "Zeile 3 von 7");
}

TEST(MessageCatalog, PlaceholderWithoutArgumentStays) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Messages]", "MsgText18=Wirklich?%1Ja: %2"});
  const MessageCatalog catalog(nomra::testing::RealFiles(), file);
  EXPECT_EQ(catalog.GetText("Messages", "MsgText18"), "Wirklich?%1Ja: %2");
  EXPECT_EQ(catalog.GetText("Messages", "MsgText18", {"\n\n"}), "Wirklich?\n\nJa: %2");
}

TEST(MessageCatalog, ReadsAWindows1252FileAsItsCharacters) {
  TempFolder temp;
  // "Schließen" and "Öffnen ..." in Windows-1252: 0xDF is "ß", 0xD6 "Ö", 0x85 "…".
  const auto file = temp.WriteFile("de.lng",
                                   "[Buttons]\r\ncmdClose=Schlie\xDF"
                                   "en\r\ncmdOpen=\xD6"
                                   "ffnen\x85\r\n");
  const MessageCatalog catalog(nomra::testing::RealFiles(), file);
  EXPECT_EQ(catalog.GetText("Buttons", "cmdClose"), "Schließen");
  EXPECT_EQ(catalog.GetText("Buttons", "cmdOpen"), "Öffnen…");
}

TEST(MessageCatalog, ReadsAUtf8FileWithByteOrderMark) {
  TempFolder temp;
  const auto file = temp.WriteFile("de.lng", "\xEF\xBB\xBF[Buttons]\r\ncmdClose=Schließen\r\n");
  EXPECT_EQ(MessageCatalog(nomra::testing::RealFiles(), file).GetText("Buttons", "cmdClose"), "Schließen");
}

TEST(MessageCatalog, ValueIsCutAt999CharactersNeverInsideACharacter) {
  TempFolder temp;
  // "ä" is two bytes, "€" three: the cut must fall between characters.
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Messages]", "MsgText05=" + Repeat("ä€", 600)});
  const std::string text = MessageCatalog(nomra::testing::RealFiles(), file).GetText("Messages", "MsgText05");
  EXPECT_EQ(text, Repeat("ä€", 499) + "ä");
}

TEST(MessageCatalog, ValueOf999CharactersIsReadWhole) {
  TempFolder temp;
  const std::string value = Repeat("x", 999);
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Messages]", "MsgText05=" + value});
  EXPECT_EQ(MessageCatalog(nomra::testing::RealFiles(), file).GetText("Messages", "MsgText05"), value);
}

TEST(MessageCatalog, PlaceholdersAreFilledAfterTheCut) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Messages]", "MsgText05=" + Repeat("x", 997) + "%1yz"});
  EXPECT_EQ(MessageCatalog(nomra::testing::RealFiles(), file).GetText("Messages", "MsgText05", {"ARG"}),
            Repeat("x", 997) + "ARG");
}

TEST(MessageCatalog, LanguageNameIsMainLngname) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Main]", "lngname=Deutsch"});
  EXPECT_EQ(MessageCatalog(nomra::testing::RealFiles(), file).LanguageName(), "Deutsch");
}

TEST(MessageCatalog, CharsetIsReadAsANumber) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "ru.lng", {"[Main]", "charset=204"});
  EXPECT_EQ(MessageCatalog(nomra::testing::RealFiles(), file).Charset(), 204);
}

TEST(MessageCatalog, CharsetMinusOneReadsAsZero) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Main]", "charset=-1"});
  EXPECT_EQ(MessageCatalog(nomra::testing::RealFiles(), file).Charset(), 0);
}

TEST(MessageCatalog, MissingCharsetReadsAsZero) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Main]", "lngname=Deutsch"});
  EXPECT_EQ(MessageCatalog(nomra::testing::RealFiles(), file).Charset(), 0);
}

TEST(MessageCatalog, CharsetThatIsNoNumberReadsAsZeroWithoutFault) {
  TempFolder temp;
  const auto file = WriteLanguageFile(temp, "de.lng", {"[Main]", "charset=western"});
  int charset = -5;
  EXPECT_NO_THROW(charset = MessageCatalog(nomra::testing::RealFiles(), file).Charset());
  EXPECT_EQ(charset, 0);
}

}  // namespace
}  // namespace nomra::lang

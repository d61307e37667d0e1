#include <gtest/gtest.h>

#include <string>

#include "base/Fault.h"
#include "settings/IniFile.h"
#include "support/TempFolder.h"

namespace nomra::settings {
namespace {

using nomra::testing::TempFolder;

TEST(SettingsReadInt, KeyWithEmptyValueReadsAsMissing) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nEmpty=\r\nBlank=   \r\n");
  EXPECT_EQ(ReadIniInt("Main", "Empty", file), -1);
  EXPECT_EQ(ReadIniInt("Main", "Blank", file), -1);
}

TEST(SettingsReadInt, MissingKeyReadsMinusOne) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nOther=5\r\n");
  EXPECT_EQ(ReadIniInt("Main", "Absent", file), -1);
}

TEST(SettingsReadInt, DecimalNumbersWithSignsAndBlanksRead) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=42\r\nB= -17 \r\nC=+8\r\nD=0\r\nE=007\r\n");
  EXPECT_EQ(ReadIniInt("Main", "A", file), 42);
  EXPECT_EQ(ReadIniInt("Main", "B", file), -17);
  EXPECT_EQ(ReadIniInt("Main", "C", file), 8);
  EXPECT_EQ(ReadIniInt("Main", "D", file), 0);
  EXPECT_EQ(ReadIniInt("Main", "E", file), 7);
}

TEST(SettingsReadInt, LimitsOf32BitsRead) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nHigh=2147483647\r\nLow=-2147483648\r\n");
  EXPECT_EQ(ReadIniInt("Main", "High", file), 2147483647L);
  EXPECT_EQ(ReadIniInt("Main", "Low", file), -2147483647L - 1);
}

TEST(SettingsReadInt, HexColourReads) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Colours]\r\nBack=&H80C0FF\r\nFore=&hff\r\n");
  EXPECT_EQ(ReadIniInt("Colours", "Back", file), 8438015);
  EXPECT_EQ(ReadIniInt("Colours", "Fore", file), 255);
}

TEST(SettingsReadInt, EightHexDigitsWrapAsTwosComplement) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nAll=&HFFFFFFFF\r\nSign=&H80000000\r\n");
  EXPECT_EQ(ReadIniInt("Main", "All", file), -1);
  EXPECT_EQ(ReadIniInt("Main", "Sign", file), -2147483647L - 1);
}

TEST(SettingsReadInt, NonNumericValueThrowsRuntimeFaultNamingTheSetting) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nWidth=wide\r\n");
  try {
    ReadIniInt("Main", "Width", file);
    FAIL() << "no fault for a value that is not a number";
  } catch (const RuntimeFault& fault) {
    const std::string message = fault.what();
    EXPECT_NE(message.find("Width"), std::string::npos) << message;
    EXPECT_NE(message.find("Main"), std::string::npos) << message;
    EXPECT_NE(message.find(file), std::string::npos) << message;
    EXPECT_NE(message.find("wide"), std::string::npos) << message;
  }
}

TEST(SettingsReadInt, MalformedNumbersThrow) {
  TempFolder temp;
  const auto file = temp.WriteFile(
      "s.nrp", "[Main]\r\nA=12abc\r\nB=1 2\r\nC=-\r\nD=&H\r\nE=&HXYZ\r\nF=1.5\r\nG=--1\r\n");
  for (const char* key : {"A", "B", "C", "D", "E", "F", "G"}) {
    EXPECT_THROW(ReadIniInt("Main", key, file), RuntimeFault) << key;
  }
}

TEST(SettingsReadInt, NumbersBeyond32BitsThrow) {
  TempFolder temp;
  const auto file = temp.WriteFile(
      "s.nrp", "[Main]\r\nHigh=2147483648\r\nLow=-2147483649\r\nHuge=99999999999999999999\r\nHex=&H100000000\r\n");
  for (const char* key : {"High", "Low", "Huge", "Hex"}) {
    EXPECT_THROW(ReadIniInt("Main", key, file), RuntimeFault) << key;
  }
}

}  // namespace
}  // namespace nomra::settings

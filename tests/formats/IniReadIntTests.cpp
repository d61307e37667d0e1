#include <gtest/gtest.h>

#include <string>

#include "base/Fault.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::formats {
namespace {

using nomra::testing::Ini;

using nomra::testing::TempFolder;

TEST(SettingsReadInt, KeyWithEmptyValueReadsAsMissing) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nEmpty=\r\nBlank=   \r\n");
  EXPECT_EQ(Ini(file).ReadInt("Main", "Empty"), -1);
  EXPECT_EQ(Ini(file).ReadInt("Main", "Blank"), -1);
}

TEST(SettingsReadInt, MissingKeyReadsMinusOne) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nOther=5\r\n");
  EXPECT_EQ(Ini(file).ReadInt("Main", "Absent"), -1);
}

TEST(SettingsReadInt, DecimalNumbersWithSignsAndBlanksRead) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=42\r\nB= -17 \r\nC=+8\r\nD=0\r\nE=007\r\n");
  EXPECT_EQ(Ini(file).ReadInt("Main", "A"), 42);
  EXPECT_EQ(Ini(file).ReadInt("Main", "B"), -17);
  EXPECT_EQ(Ini(file).ReadInt("Main", "C"), 8);
  EXPECT_EQ(Ini(file).ReadInt("Main", "D"), 0);
  EXPECT_EQ(Ini(file).ReadInt("Main", "E"), 7);
}

TEST(SettingsReadInt, LimitsOf32BitsRead) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nHigh=2147483647\r\nLow=-2147483648\r\n");
  EXPECT_EQ(Ini(file).ReadInt("Main", "High"), 2147483647L);
  EXPECT_EQ(Ini(file).ReadInt("Main", "Low"), -2147483647L - 1);
}

TEST(SettingsReadInt, HexColourReads) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Colours]\r\nBack=&H80C0FF\r\nFore=&hff\r\n");
  EXPECT_EQ(Ini(file).ReadInt("Colours", "Back"), 8438015);
  EXPECT_EQ(Ini(file).ReadInt("Colours", "Fore"), 255);
}

TEST(SettingsReadInt, EightHexDigitsWrapAsTwosComplement) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nAll=&HFFFFFFFF\r\nSign=&H80000000\r\n");
  EXPECT_EQ(Ini(file).ReadInt("Main", "All"), -1);
  EXPECT_EQ(Ini(file).ReadInt("Main", "Sign"), -2147483647L - 1);
}

TEST(SettingsReadInt, NonNumericValueThrowsRuntimeFaultNamingTheSetting) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nWidth=wide\r\n");
  try {
    Ini(file).ReadInt("Main", "Width");
    FAIL() << "no fault for a value that is not a number";
  } catch (const base::RuntimeFault& fault) {
    const std::string message = fault.what();
    EXPECT_NE(message.find("Width"), std::string::npos) << message;
    EXPECT_NE(message.find("Main"), std::string::npos) << message;
    EXPECT_NE(message.find(file), std::string::npos) << message;
    EXPECT_NE(message.find("wide"), std::string::npos) << message;
  }
}

TEST(SettingsReadInt, MalformedNumbersThrow) {
  TempFolder temp;
  const auto file =
      temp.WriteFile("s.nrp", "[Main]\r\nA=12abc\r\nB=1 2\r\nC=-\r\nD=&H\r\nE=&HXYZ\r\nF=1.5\r\nG=--1\r\n");
  for (const char* key : {"A", "B", "C", "D", "E", "F", "G"}) {
    EXPECT_THROW(Ini(file).ReadInt("Main", key), base::RuntimeFault) << key;
  }
}

TEST(SettingsReadInt, NumbersBeyond32BitsThrow) {
  TempFolder temp;
  const auto file = temp.WriteFile(
      "s.nrp", "[Main]\r\nHigh=2147483648\r\nLow=-2147483649\r\nHuge=99999999999999999999\r\nHex=&H100000000\r\n");
  for (const char* key : {"High", "Low", "Huge", "Hex"}) {
    EXPECT_THROW(Ini(file).ReadInt("Main", key), base::RuntimeFault) << key;
  }
}

}  // namespace
}  // namespace nomra::formats

// What holds for any structure: plain text stays itself, evaluation ends
// and never throws but at the named faults, and hostile input is text.
#include <chrono>
#include <random>

#include "base/Fault.h"
#include "structure/StructureFixture.h"

namespace nomra::testing {
namespace {

using StructureProperties = StructureTest;

std::string WithoutControlCharacters(std::string text) {
  std::erase_if(text, [](char c) { return c >= 1 && c <= 31; });
  return text;
}

std::string RandomText(std::mt19937& random, std::string_view alphabet, std::size_t maxLength) {
  std::string text;
  const std::size_t length = random() % (maxLength + 1);
  for (std::size_t i = 0; i < length; ++i) text += alphabet[random() % alphabet.size()];
  return text;
}

TEST_F(StructureProperties, TextWithoutOpeningMarkEvaluatesToItselfLessControlCharacters) {
  std::mt19937 random(20261122);
  // Every byte but "<", so also stray bytes that aren't UTF-8.
  std::string alphabet;
  for (int c = 1; c < 256; ++c) {
    if (c != '<') alphabet += static_cast<char>(c);
  }
  AddFiles({"a.txt"});
  for (int round = 0; round < 2000; ++round) {
    const std::string structure = RandomText(random, alphabet, 40);
    if (structure.empty()) continue;
    ASSERT_EQ(structure::EvaluateStructure(state.list.Item(1), structure), WithoutControlCharacters(structure))
        << round;
  }
}

TEST_F(StructureProperties, TagSoupEndsAndThrowsOnlyTheNamedFaults) {
  std::mt19937 random(7);
  const std::vector<std::string> pieces = {
      "<NAME>",    "<NAME_L(", "<NAME_R(", "<NAME_M(", "<NAMEPART(", "<PATH>", "<PATH_L(", "<PATH_R(", "<PATH_M(",
      "<EXT>",     "<.EXT>",   "<BLANK>",  "find(",    ")>",         ")",      "(",        ",",        "\"",
      "-",         "1",        "-1",       "0",        "2.5",        "x",      ">",        "<",        "<UC>",
      "</UC>",     "<LC>",     "</LC>",    "<1C>",     "</1C>",      "<WC>",   "</WC>",    "<SC>",     "</SC>",
      "<IntChar>", "\xC3\xA4", "\xFF",     "\t",       " "};
  AddFiles({"a-b c.txt"});
  int faults = 0;
  for (int round = 0; round < 5000; ++round) {
    std::string structure;
    const int count = 1 + static_cast<int>(random() % 12);
    for (int i = 0; i < count; ++i) structure += pieces[random() % pieces.size()];
    SetNewName(1, round % 2 == 0 ? "a-b c.txt" : structure);
    try {
      structure::EvaluateStructure(state.list.Item(1), structure);
    } catch (const base::RuntimeFault&) {
      ++faults;
    }
  }
  // Some of the soup does reach the faults; anything else thrown fails the test.
  EXPECT_GT(faults, 0);
}

TEST_F(StructureProperties, ThousandsOfTagsEvaluate) {
  AddFiles({"ab.txt"});
  std::string structure;
  for (int i = 0; i < 5000; ++i) structure += "<NAME_L(1)><NAME>";
  const std::string result = structure::EvaluateStructure(state.list.Item(1), structure);
  EXPECT_EQ(result.size(), 5000u * 3);
  EXPECT_EQ(result.substr(0, 6), "aabaab");
}

TEST_F(StructureProperties, VeryLongArgumentsAreText) {
  AddFiles({"ab.txt"});
  const std::string digits(100000, '9');
  EXPECT_EQ(structure::EvaluateStructure(state.list.Item(1), "<NAME_L(" + digits + ")>"), "");
  EXPECT_EQ(structure::EvaluateStructure(state.list.Item(1), "<NAME_L(" + std::string(100000, 'x') + ")>"),
            "<No_Number>");
}

TEST_F(StructureProperties, NameHoldingItsOwnTagEndsInsteadOfGrowingForEver) {
  AddFiles({"x.txt"});
  // Each round the tag gives back the whole stem, which holds the tag again.
  SetNewName(1, "<NAME_M(1,99)><NAME_M(1,99)>.txt");
  const std::string result = structure::EvaluateStructure(state.list.Item(1), "<NAME_M(1,99)>");
  EXPECT_LT(result.size(), 100000u);
  SetNewName(1, "<NAME_M(1,14)>.txt");
  EXPECT_EQ(structure::EvaluateStructure(state.list.Item(1), "<NAME_M(1,14)>"), "<NAME_M(1,14)>");
}

TEST_F(StructureProperties, InvalidUtf8InTheNameKeepsItsBytes) {
  AddFiles({"x.txt"});
  SetNewName(1, "a\xFF\xFE-b.txt");
  EXPECT_EQ(structure::EvaluateStructure(state.list.Item(1), "<NAME_R(3)>|<UC><NAME></UC>"), "\xFE-b|A\xFF\xFE-B");
}

}  // namespace
}  // namespace nomra::testing

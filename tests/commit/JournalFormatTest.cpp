// The commit journal's text: paths of any bytes survive the round trip, and
// a journal cut anywhere gives back exactly its whole records.
#include <gtest/gtest.h>

#include <string>

#include "commit/JournalFormat.h"

namespace nomra::testing {
namespace {

// Names with the bytes a line format would trip over: tab, line break,
// blanks, a colon, digits, a stray byte and the temporary mark.
const std::string kAwkwardSource = "/d/a\tb\nc 12:3\xE9.txt";
const std::string kAwkwardFinal = "/d/x\n\n y\xC3\xBF";

std::string SampleJournal() {
  return std::string(commit::kJournalHeader) + commit::JournalPlanRecord(kAwkwardSource, kAwkwardFinal) +
         commit::JournalPlanRecord("/d/b", "/d/a") + commit::JournalTemporaryRecord("/d/b", "/d/a\xC3\xBF", "/d/a");
}

TEST(JournalText, RecordsAreLengthPrefixedPathsEndedByALineBreak) {
  EXPECT_EQ(commit::JournalPlanRecord("/d/a b", "/d/c"), "P 6:/d/a b 4:/d/c\n");
  EXPECT_EQ(commit::JournalTemporaryRecord("/d/a", "/d/b\xC3\xBF", "/d/b"), "T 4:/d/a 6:/d/b\xC3\xBF 4:/d/b\n");
}

TEST(JournalText, AwkwardNamesComeBackByteForByte) {
  const commit::JournalContent content = commit::ParseJournal(SampleJournal());

  EXPECT_TRUE(content.headerOk);
  EXPECT_FALSE(content.tornTail);
  EXPECT_EQ(content.damagedAt, std::string::npos);
  ASSERT_EQ(content.plan.size(), 2u);
  EXPECT_EQ(content.plan[0].source, kAwkwardSource);
  EXPECT_EQ(content.plan[0].final, kAwkwardFinal);
  EXPECT_EQ(content.plan[1].source, "/d/b");
  ASSERT_EQ(content.temporaries.size(), 1u);
  EXPECT_EQ(content.temporaries[0].source, "/d/b");
  EXPECT_EQ(content.temporaries[0].temporary, "/d/a\xC3\xBF");
  EXPECT_EQ(content.temporaries[0].final, "/d/a");
}

// Every cut of the text, as a crash while writing could leave it: the
// records before the cut are all there, the one it splits is dropped, and
// nothing is called damaged.
TEST(JournalText, ACutAnywhereKeepsTheWholeRecordsAndDropsTheTornOne) {
  const std::string text = SampleJournal();
  const std::size_t firstEnd =
      commit::kJournalHeader.size() + commit::JournalPlanRecord(kAwkwardSource, kAwkwardFinal).size();
  const std::size_t secondEnd = firstEnd + commit::JournalPlanRecord("/d/b", "/d/a").size();
  for (std::size_t length = 0; length < text.size(); ++length) {
    SCOPED_TRACE("cut after " + std::to_string(length) + " bytes");
    const commit::JournalContent content = commit::ParseJournal(std::string_view(text).substr(0, length));
    const std::size_t wholePlans = length >= secondEnd ? 2 : length >= firstEnd ? 1 : 0;
    EXPECT_EQ(content.damagedAt, std::string::npos);
    EXPECT_EQ(content.plan.size(), wholePlans);
    EXPECT_TRUE(content.temporaries.empty());
    EXPECT_EQ(content.headerOk, length >= commit::kJournalHeader.size());
    const bool onRecordBoundary = length == commit::kJournalHeader.size() || length == firstEnd || length == secondEnd;
    EXPECT_EQ(content.tornTail, !onRecordBoundary);
  }
}

TEST(JournalText, GarbageInTheMiddleStopsTheReadingWhereItStarts) {
  const std::string whole = std::string(commit::kJournalHeader) + commit::JournalPlanRecord("/d/a", "/d/b");
  const std::string text = whole + "X 4:/d/c 4:/d/d\n" + commit::JournalPlanRecord("/d/e", "/d/f");

  const commit::JournalContent content = commit::ParseJournal(text);

  EXPECT_EQ(content.damagedAt, whole.size());
  ASSERT_EQ(content.plan.size(), 1u);
  EXPECT_EQ(content.plan[0].final, "/d/b");
}

TEST(JournalText, ALengthThatDoesNotMatchItsRecordIsDamage) {
  // One byte short: the record's end falls inside the path.
  const std::string text = std::string(commit::kJournalHeader) + "P 3:/d/a 4:/d/b\n";
  EXPECT_EQ(commit::ParseJournal(text).damagedAt, commit::kJournalHeader.size());
}

TEST(JournalText, RelativeOrNulHoldingPathsAreDamage) {
  EXPECT_EQ(commit::ParseJournal(std::string(commit::kJournalHeader) + "P 1:a 4:/d/b\n").damagedAt,
            commit::kJournalHeader.size());
  const std::string withNul = std::string(commit::kJournalHeader) + "P 4:/d/" + std::string(1, '\0') + " 4:/d/b\n";
  EXPECT_EQ(commit::ParseJournal(withNul).damagedAt, commit::kJournalHeader.size());
}

TEST(JournalText, AnotherHeaderIsDamageAndNothingIsRead) {
  const commit::JournalContent content =
      commit::ParseJournal("NomraCommitJournal 2\n" + commit::JournalPlanRecord("/d/a", "/d/b"));
  EXPECT_FALSE(content.headerOk);
  EXPECT_EQ(content.damagedAt, 0u);
  EXPECT_TRUE(content.plan.empty());
}

}  // namespace
}  // namespace nomra::testing

// Targets that exist already: nothing is replaced without the user's yes.
#include "fileops/FileListOperations.h"
#include "fileops/OperationsFixture.h"
#include "fileops/PathList.h"
#include "fileops/ShellOperation.h"

namespace nomra::fileops::testing {
namespace {

class CollisionTest : public OperationsTest {
 protected:
  // source/<name> holds "new <name>", target/<name> "old <name>" where taken.
  void Pair(const std::string& name, bool taken) {
    sources.push_back(temp.WriteFile("source/" + name, "new " + name));
    targets.push_back(temp.MakeFolder("target") + name);
    if (taken) temp.WriteFile("target/" + name, "old " + name);
  }
  int Copy() { return CopyFileList(JoinPathList(sources), JoinPathList(targets), false, aborted, services); }
  std::string Target(const std::string& name) { return ReadWholeFile(temp.Path() + "target/" + name); }

  std::vector<std::string> sources;
  std::vector<std::string> targets;
  int aborted = 99;
};

TEST_F(CollisionTest, WithoutAnyAnswerNothingIsReplaced) {
  Pair("a.txt", true);

  Copy();

  EXPECT_EQ(Target("a.txt"), "old a.txt");
  EXPECT_EQ(NamesIn(temp.Path() + "target/"), std::vector<std::string>{"a.txt"});
}

TEST_F(CollisionTest, YesReplacesTheFileThere) {
  Pair("a.txt", true);
  frontEnd.answers = {core::Answer::Yes};

  EXPECT_EQ(Copy(), 0);

  EXPECT_EQ(Target("a.txt"), "new a.txt");
  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kFileExists});
  EXPECT_EQ(ReadWholeFile(sources[0]), "new a.txt");
}

TEST_F(CollisionTest, QuestionNamesTheFileAndBothSizes) {
  Pair("a.txt", true);
  temp.WriteFile("target/a.txt", "older and longer");
  frontEnd.answers = {core::Answer::No, core::Answer::No};

  Copy();

  ASSERT_FALSE(frontEnd.asked.empty());
  const core::Message& question = frontEnd.asked.front();
  EXPECT_EQ(question.style, core::MessageStyle::YesNoCancelDefaultNo);
  EXPECT_EQ(question.arguments.at(0), "a.txt");
  EXPECT_EQ(question.arguments.at(1), temp.Path() + "target/");
  EXPECT_EQ(question.arguments.at(2), temp.Path() + "source/");
  EXPECT_EQ(question.arguments.at(3), "16");
  EXPECT_EQ(question.arguments.at(5), "9");
}

TEST_F(CollisionTest, NoThenNoSkipsTheFile) {
  Pair("a.txt", true);
  frontEnd.answers = {core::Answer::No, core::Answer::No};

  EXPECT_EQ(Copy(), 0);

  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{lang::kFileExists, lang::kKeepBoth}));
  EXPECT_EQ(Target("a.txt"), "old a.txt");
  EXPECT_EQ(NamesIn(temp.Path() + "target/"), std::vector<std::string>{"a.txt"});
  EXPECT_EQ(aborted, 0);
}

TEST_F(CollisionTest, NoThenYesKeepsBothUnderANumberedName) {
  Pair("a.txt", true);
  temp.WriteFile("target/a (2).txt", "another");
  frontEnd.answers = {core::Answer::No, core::Answer::Yes};

  Copy();

  EXPECT_EQ(Target("a.txt"), "old a.txt");
  EXPECT_EQ(Target("a (2).txt"), "another");
  EXPECT_EQ(Target("a (3).txt"), "new a.txt");
  EXPECT_EQ(frontEnd.asked.at(1).arguments.at(0), "a (3).txt");
}

TEST_F(CollisionTest, CancelStopsTheWholeCopy) {
  Pair("a.txt", false);
  Pair("b.txt", true);
  Pair("c.txt", false);
  frontEnd.answers = {core::Answer::Cancel};

  Copy();

  EXPECT_EQ(aborted, -1);
  EXPECT_EQ(Target("b.txt"), "old b.txt");
  EXPECT_EQ(NamesIn(temp.Path() + "target/"), (std::vector<std::string>{"a.txt", "b.txt"}));
}

TEST_F(CollisionTest, SameForAllAnswersTheLaterCollisions) {
  Pair("a.txt", true);
  Pair("b.txt", true);
  Pair("c.txt", true);
  frontEnd.answers = {core::Answer::Yes, core::Answer::Yes};

  Copy();

  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{lang::kFileExists, lang::kSameForAll}));
  EXPECT_EQ(Target("a.txt"), "new a.txt");
  EXPECT_EQ(Target("b.txt"), "new b.txt");
  EXPECT_EQ(Target("c.txt"), "new c.txt");
}

TEST_F(CollisionTest, NotTheSameForAllAsksAgain) {
  Pair("a.txt", true);
  Pair("b.txt", true);
  frontEnd.answers = {core::Answer::Yes, core::Answer::No, core::Answer::No, core::Answer::No};

  Copy();

  EXPECT_EQ(AskedKeys(),
            (std::vector<std::string>{lang::kFileExists, lang::kSameForAll, lang::kFileExists, lang::kKeepBoth}));
  EXPECT_EQ(Target("a.txt"), "new a.txt");
  EXPECT_EQ(Target("b.txt"), "old b.txt");
}

TEST_F(CollisionTest, SameForAllIsNotAskedWhenNoCollisionFollows) {
  Pair("a.txt", true);
  Pair("b.txt", false);
  frontEnd.answers = {core::Answer::Yes};

  Copy();

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kFileExists});
}

TEST_F(CollisionTest, FolderInTheWayIsNeverOfferedForReplacing) {
  Pair("b.txt", false);
  sources.push_back(temp.WriteFile("source/a.txt", "new"));
  targets.push_back(temp.MakeFolder("target/a.txt"));
  targets.back().pop_back();
  frontEnd.answers = {core::Answer::Yes};

  Copy();

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kKeepBoth});
  EXPECT_EQ(Target("a (2).txt"), "new");
  EXPECT_TRUE(NamesIn(temp.Path() + "target/a.txt/").empty());
}

TEST_F(CollisionTest, RenameOnCollisionKeepsBothUnaskedAndReportsTheNames) {
  Pair("a.txt", true);
  Pair("b.txt", false);
  ShellOperation record = TransferRecord(FO_COPY, JoinPathList(sources), JoinPathList(targets), true);

  EXPECT_EQ(RunShellOperation(record, services), 0);

  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(Target("a (2).txt"), "new a.txt");
  EXPECT_EQ(record.mappedOldNames, sources[0]);
  EXPECT_EQ(record.mappedNewNames, temp.Path() + "target/a (2).txt");
  EXPECT_EQ(record.placed, (std::vector<std::string>{temp.Path() + "target/a (2).txt", targets[1]}));
}

TEST_F(CollisionTest, KeepBothNameOfAFileWithoutExtension) {
  Pair("README", true);
  frontEnd.answers = {core::Answer::No, core::Answer::Yes};

  Copy();

  EXPECT_EQ(Target("README (2)"), "new README");
}

}  // namespace
}  // namespace nomra::fileops::testing

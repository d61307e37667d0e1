// nomra-cli history: the rename protocol listed, undone record by record and
// emptied, from outside.
#include <gtest/gtest.h>

#include <set>

#include "cli/CliTestFixture.h"
#include "support/ProtocolFiles.h"

namespace nomra::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kTime = kProtocolTime;

class CliHistory : public CliTest {
 protected:
  std::string Record(const std::string& oldName, const std::string& newName) const {
    return ProtocolLine(files.Path(), oldName, newName);
  }
  void WriteProtocol(const std::vector<std::string>& lines) const { WriteProtocolFile(data, lines); }
  std::string Protocol() const { return ReadProtocolFile(data); }
  void CreateFiles(const std::vector<std::string>& names) const { CreateNamedFiles(files, names); }
  std::set<std::string> NamesOnDisk() const { return NamesIn(files.Path()); }
  JsonValue HistoryJson(std::vector<std::string> extra = {}) const {
    std::vector<std::string> arguments{"history", "--json"};
    arguments.insert(arguments.end(), extra.begin(), extra.end());
    const CliResult result = Run(arguments);
    EXPECT_EQ(result.exitStatus, 0) << result.err;
    return ParseJson(result.out);
  }
  static Texts States(const JsonValue& document) {
    Texts states;
    for (const JsonValue& record : document["records"].items) states.push_back(record["state"].text);
    return states;
  }
};

TEST_F(CliHistory, ListsEachRecordNumberedWithItsStateThenTheCounts) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b"), Record("c", "gone")});

  const CliResult result = Run({"history"});

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, "1  black  2004-03-15, 14:23:05  " + files.Path() + "  a -> b\n" +
                            "2  red    2004-03-15, 14:23:05  " + files.Path() + "  c -> gone\n" +
                            "2 records, 1 black, 1 red\n");
}

TEST_F(CliHistory, JsonHoldsEveryFieldOfEachRecordAndTheCounts) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b"), "no separator"});

  const JsonValue document = HistoryJson();

  ASSERT_EQ(document["records"].items.size(), 2u);
  const JsonValue& first = document["records"][0];
  EXPECT_EQ(first["number"].number, 1);
  EXPECT_EQ(first["time"].text, kTime);
  EXPECT_EQ(first["date"].text, "2004-03-15, 14:23:05");
  EXPECT_EQ(first["folder"].text, files.Path());
  EXPECT_EQ(first["oldName"].text, "a");
  EXPECT_EQ(first["newName"].text, "b");
  EXPECT_EQ(States(document), (Texts{"black", "red"}));
  EXPECT_EQ(document["records"][1]["time"].text, "no separator");
  EXPECT_EQ(document["black"].number, 1);
  EXPECT_EQ(document["red"].number, 1);
  EXPECT_TRUE(document["failures"].items.empty());
}

TEST_F(CliHistory, NameThatIsntUtf8ShowsItsBytesAsEscapes) {
  CreateFileNamed("caf\xE9");
  WriteProtocol({Record("old", "caf\xE9")});

  const CliResult result = Run({"history", "--json"});

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_NE(result.out.find("caf\\udce9"), std::string::npos) << result.out;
  EXPECT_EQ(States(ParseJson(result.out)), (Texts{"black"}));
}

TEST_F(CliHistory, MissingOrEmptyProtocolListsNoRecord) {
  EXPECT_EQ(Run({"history"}).out, "0 records, 0 black, 0 red\n");
  WriteProtocol({});
  const CliResult result = Run({"history"});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, "0 records, 0 black, 0 red\n");
}

TEST_F(CliHistory, ProtocolThatCantBeReadFails) {
  data.MakeFolder("renamed.nrp");
  const CliResult result = Run({"history"});
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("could not be read"), std::string::npos) << result.err;
}

TEST_F(CliHistory, UndoRenamesTheFileBackAndTakesTheRecordOutOfTheProtocol) {
  CreateFiles({"b", "d"});
  WriteProtocol({Record("a", "b"), Record("c", "d")});

  const CliResult result = Run({"history", "--undo", "1"});

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(NamesOnDisk(), (std::set<std::string>{"a", "d"}));
  EXPECT_EQ(Protocol(), Record("c", "d") + "\r\n");
  EXPECT_NE(result.out.find("1 record, 1 black, 0 red"), std::string::npos) << result.out;
}

TEST_F(CliHistory, UndoAnswersTheQuestionByNamingTheRecordsAndNotesIt) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});

  const CliResult result = Run({"history", "--undo=1"});

  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_NE(result.err.find("MsgText18: answered Yes"), std::string::npos) << result.err;
}

TEST_F(CliHistory, RedRecordIsPassedOverNotedAndMakesTheExitStatusOne) {
  CreateFiles({"d"});
  WriteProtocol({Record("a", "gone"), Record("c", "d")});

  const CliResult result = Run({"history", "--undo", "1,2"});

  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("record 1 is red"), std::string::npos) << result.err;
  EXPECT_EQ(NamesOnDisk(), (std::set<std::string>{"c"}));
  EXPECT_EQ(Protocol(), Record("a", "gone") + "\r\n");
}

TEST_F(CliHistory, UndoNeverReplacesAFileAndKeepsTheFailedRecord) {
  CreateFiles({"a", "b"});
  WriteProtocol({Record("a", "b")});

  const JsonValue document = [&] {
    const CliResult result = Run({"history", "--json", "--undo", "1"});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_NE(result.err.find("the target exists"), std::string::npos) << result.err;
    return ParseJson(result.out);
  }();

  EXPECT_EQ(ReadWholeFile(files.Path() + "a"), "a");
  EXPECT_EQ(ReadWholeFile(files.Path() + "b"), "b");
  EXPECT_EQ(Protocol(), Record("a", "b") + "\r\n");
  ASSERT_EQ(document["failures"].items.size(), 1u);
  EXPECT_EQ(document["failures"][0]["textKey"].text, "MsgText05");
}

// B was renamed to C, then A to B: in file order the first undo finds B taken.
TEST_F(CliHistory, ChainInTheWrongOrderNeedsASecondRun) {
  CreateFiles({"B", "C"});
  WriteProtocol({Record("B", "C"), Record("A", "B")});

  const CliResult first = Run({"history", "--undo", "1,2"});

  EXPECT_EQ(first.exitStatus, 1);
  EXPECT_EQ(NamesOnDisk(), (std::set<std::string>{"A", "C"}));
  EXPECT_EQ(Protocol(), Record("B", "C") + "\r\n");

  const CliResult second = Run({"history", "--undo", "1"});

  EXPECT_EQ(second.exitStatus, 0) << second.err;
  EXPECT_EQ(ReadWholeFile(files.Path() + "A"), "B");
  EXPECT_EQ(ReadWholeFile(files.Path() + "B"), "C");
  EXPECT_EQ(Protocol(), "");
}

TEST_F(CliHistory, RecordNumberBeyondTheProtocolChangesNothing) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});

  const CliResult result = Run({"history", "--undo", "1,2"});

  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("no record 2"), std::string::npos) << result.err;
  EXPECT_EQ(NamesOnDisk(), (std::set<std::string>{"b"}));
  EXPECT_EQ(Protocol(), Record("a", "b") + "\r\n");
}

TEST_F(CliHistory, BadRecordNumbersAreBadUsage) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  for (const char* value : {"0", "-1", "one", "1,,2", "1,", "", "99999999999999999999"}) {
    const CliResult result = Run({"history", "--undo", value});
    EXPECT_EQ(result.exitStatus, 2) << value;
    EXPECT_NE(result.err.find("Try 'nomra-cli --help'."), std::string::npos) << value << ": " << result.err;
  }
  EXPECT_EQ(NamesOnDisk(), (std::set<std::string>{"b"}));
}

TEST_F(CliHistory, UnknownOptionsPathsAndMissingValuesAreBadUsage) {
  for (const Texts& arguments :
       {Texts{"history", "--frobnicate"}, Texts{"history", "somewhere"}, Texts{"history", "--undo"},
        Texts{"history", "--clear=yes"}, Texts{"history", "--clear", "--undo", "1"}}) {
    const CliResult result = Run(arguments);
    EXPECT_EQ(result.exitStatus, 2) << arguments.back();
    EXPECT_TRUE(result.out.empty()) << result.out;
  }
}

TEST_F(CliHistory, ClearEmptiesTheProtocolAndTheFilesKeepTheirNames) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b"), Record("c", "d")});

  const CliResult result = Run({"history", "--clear"});

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(Protocol(), "");
  EXPECT_EQ(NamesOnDisk(), (std::set<std::string>{"b"}));
  EXPECT_EQ(result.out, "0 records, 0 black, 0 red\n");
  EXPECT_NE(result.err.find("MsgText19: answered Yes"), std::string::npos) << result.err;
}

TEST_F(CliHistory, ClearWithoutADataFolderFails) {
  const CliResult result = Run({"history", "--clear", "--data-dir", data.Path() + "missing/folder"});
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("could not be written"), std::string::npos) << result.err;
}

TEST_F(CliHistory, DataDirOptionNamesTheFolderOfTheProtocol) {
  TempFolder other;
  other.WriteFile("renamed.nrp", Record("x", "y") + "\r\n");
  WriteProtocol({});

  const JsonValue document = HistoryJson({"--data-dir", other.Path()});

  ASSERT_EQ(document["records"].items.size(), 1u);
  EXPECT_EQ(document["records"][0]["oldName"].text, "x");
}

TEST_F(CliHistory, HelpShowsTheHistoryCommandAndItsOptions) {
  for (const Texts& arguments : {Texts{"--help"}, Texts{"history", "--help"}, Texts{"history", "-h"}}) {
    const CliResult result = Run(arguments);
    EXPECT_EQ(result.exitStatus, 0);
    for (const char* text : {"nomra-cli history", "--undo N[,N...]", "--clear", "Example: nomra-cli history --undo"}) {
      EXPECT_NE(result.out.find(text), std::string::npos) << text;
    }
  }
}

TEST_F(CliHistory, FolderNamedHistoryIsLoadedAfterTheEndOfOptions) {
  files.WriteFile("history/inside.txt", "x");
  CliLaunch launch;
  launch.arguments = {"--json", "--", "history"};
  launch.environment["NOMRA_DATA_DIR"] = data.Path();
  launch.workingFolder = files.Path();

  const CliResult result = RunCli(launch);

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(ColumnOfRows(ParseJson(result.out), core::kColOldName), (Texts{"inside.txt"}));
}

}  // namespace
}  // namespace nomra::testing

// The resource build tool run as the build runs it: a fault fails the run, names the file and
// line, and leaves nothing behind.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>

#include "tests/resources/resource_files.h"
#include "tests/support/test_files.h"

namespace lad::testing {
namespace {

struct ToolRun {
  int status;
  std::string output;
};

ToolRun runTool(const std::string& arguments) {
  const std::string command = std::string(LAD_RESGEN) + " " + arguments + " 2>&1";
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return {-1, "cannot start the tool"};
  std::string output;
  char buffer[256];
  while (std::fgets(buffer, sizeof buffer, pipe)) output += buffer;
  const int status = pclose(pipe);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

std::vector<std::string> filesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

// The run failed, and its output says why.
void expectFailure(const ToolRun& run, const std::string& message) {
  EXPECT_NE(run.status, 0) << message;
  EXPECT_NE(run.output.find(message), std::string::npos) << run.output;
}

class ResgenTool : public ::testing::Test {
 protected:
  std::string file(const std::string& name, std::string_view text) {
    writeFile(dir_.path() / name, text);
    return (dir_.path() / name).string();
  }
  std::string out() const { return (dir_.path() / "out.sqlite").string(); }

  TempDir dir_;
};

TEST_F(ResgenTool, AFaultyScriptFailsAtItsLineAndLeavesNoFile) {
  const auto script = file("bad.sql",
                           "create table t (x integer primary key);\n"
                           "\n"
                           "insert into t values (1);\n"
                           "insert into missing values (2);\n");
  expectFailure(runTool("sql " + out() + " " + script), "bad.sql:4: no such table: missing");
  EXPECT_EQ(filesIn(dir_.path()), std::vector<std::string>{"bad.sql"});

  // A fault that shows only when the statement runs is told at the statement's first line.
  const auto repeat = file("repeat.sql",
                           "create table t (x integer primary key);\n"
                           "insert into t values (1);\n"
                           "-- the same key again\n"
                           "insert into t\n"
                           "  values (1);\n");
  expectFailure(runTool("sql " + out() + " " + repeat), "repeat.sql:4: UNIQUE constraint failed");
  EXPECT_EQ(filesIn(dir_.path()), (std::vector<std::string>{"bad.sql", "repeat.sql"}));
}

TEST_F(ResgenTool, FaultyTranslationSourcesAreRefusedByLine) {
  const std::pair<const char*, const char*> faults[] = {
      {"rus\tger\tfra\nДа\tJa\tOui\nНет\tNein\n", "t.tsv:3: 2 fields, 3 expected"},
      {"rus\tger\tfra\nДа\tJa\tOui\n# c\nДа\tJawohl\tOui\n",
       "t.tsv:4: the Russian text \"Да\" is already on line 2"},
      {"rus\tger\tfra\n\tJa\tOui\n", "t.tsv:2: empty Russian text"},
      {"Да\tJa\tOui\n", "t.tsv:1: the header"},
  };
  for (auto [text, message] : faults) {
    expectFailure(runTool("translate " + out() + " " + file("t.tsv", text)), message);
    EXPECT_EQ(filesIn(dir_.path()), std::vector<std::string>{"t.tsv"});
  }
}

TEST_F(ResgenTool, ContentIsCopiedOnlyWhenEveryFileParses) {
  const auto good = file("a-u.txt", "\ngroupid<val>1<tr>tp<val>1<br>text<val>Да<tr>tp<val>4\n");
  const auto bad = file("b-u.txt",
                        "groupid<val>1<tr>tp<val>1\n"
                        "<br>text<val>Да<tr>tp<val>4\n"
                        "<br>text<val>Нет<tr>tp4\n");
  const auto folder = (dir_.path() / "content").string();
  expectFailure(runTool("content " + folder + " " + good + " " + bad),
                "b-u.txt:3: record 2: field without <val>: \"tp4\"");
  EXPECT_FALSE(std::filesystem::exists(folder));

  const ToolRun run = runTool("content " + folder + " " + good);
  ASSERT_EQ(run.status, 0) << run.output;
  EXPECT_EQ(filesIn(folder), std::vector<std::string>{"a-u.txt"});
  EXPECT_EQ(readFile(std::filesystem::path(folder) / "a-u.txt"),
            "\ngroupid<val>1<tr>tp<val>1<br>text<val>Да<tr>tp<val>4\n");
}

TEST_F(ResgenTool, WeekNoticesFailAtTheRowThatTheMenuCouldNotRead) {
  const auto folder = (dir_.path() / "content").string();
  const std::pair<std::string, std::string> faults[] = {
      {"4<td>12<td>Скрининг<tr>\n5<td>13", "warning.txt:2: a notice needs three fields"},
      {"4<td>12<td>Скрининг<tr>\n\n5<td>13 нед.<td>Текст", "warning.txt:3: week is not a whole"},
      {"\n4<td>12<td>Скрининг<tr>\nпять<td>13<td>Текст", "warning.txt:3: event id is not"},
  };
  for (const auto& [text, message] : faults)
    expectFailure(runTool("content " + folder + " " + file("warning.txt", text)), message);
  const ToolRun run =
      runTool("content " + folder + " " + file("warning.txt", "4<td>12<td>А<tr>\n5<td>13<td>Б"));
  ASSERT_EQ(run.status, 0) << run.output;
  EXPECT_EQ(filesIn(folder), std::vector<std::string>{"warning.txt"});
}

}  // namespace
}  // namespace lad::testing

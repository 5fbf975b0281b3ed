// The program's commands as a person runs them from a terminal: the report and the book
// written from a data folder, a stopped installation synced from the cloud folder, and the
// fake clock kept for test runs.
#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>

#include "app/cli.h"
#include "cloud/cloud_pass.h"
#include "cloud/cloud_writers.h"
#include "core/atomic_file.h"
#include "shell/application.h"
#include "store/records.h"
#include "store/setup_data.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/support/test_files.h"

namespace lad::app {
namespace {

using ::testing::HasSubstr;

struct ProgramRun {
  int status = -1;
  std::string output;  // standard output and error together
};

// Runs the pregnancy edition with the command and its arguments.
ProgramRun runProgram(const std::string& command, const std::string& args) {
  ProgramRun r;
  const std::string line = std::string(LADANEYA_PROGRAM) + " " + command + " " + args + " 2>&1";
  FILE* pipe = popen(line.c_str(), "r");
  char buffer[512];
  while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe)) r.output.append(buffer, n);
  const int status = pclose(pipe);
  r.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return r;
}

// A data folder with a pregnancy of thirty days in the diary, three of them with a photo.
class DocumentCommandTest : public ::testing::Test {
 protected:
  void SetUp() override {
    shell::Application app(ContextOptions{1, 1, data, "", nullptr, LADANEYA_RESOURCES_DIR});
    const Date first = app.context().dates().addDays(app.context().clock().now(), -40);
    testing::addPregnancy(app.store(), "CLI-PROFILE", first, "60");
    testing::generateDiary(app.store(), "CLI-PROFILE", first, 30, 3);
  }
  static std::string pdfHead(const std::filesystem::path& file) {
    return readWholeFile(file).value_or("").substr(0, 5);
  }

  testing::TempDir dir;
  const std::filesystem::path data = dir.path() / "data", none = dir.path() / "none.pdf";
};

TEST(ReportCommand, ArgumentsThatDoNotFitAreRefusedWithTheirReason) {
  std::string error;
  const std::pair<std::vector<std::string>, const char*> refusals[] = {
      {{"--kind", "weight", "-o", "a.pdf"}, "--kind is one of diary, pressure, fluid, not weight"},
      {{"--data", "d"}, "report needs -o FILE.pdf"},
      {{"-o", "a.txt"}, "ending in .pdf"},
      {{"--date", "2026-03-05", "--kind", "pressure", "-o", "a.pdf"}, "dd.MM.yyyy"},
      {{"--date", "05.03.2026", "-o", "a.pdf"}, "--date is for the pressure and fluid reports"},
      {{"--kind", "fluid", "--year", "2", "-o", "a.pdf"}, ""},
      {{"--year", "0", "-o", "a.pdf"}, ""},
      {{"--year", "-o", "a.pdf"}, ""}};
  for (auto [args, reason] : refusals) {
    args.insert(args.begin(), "report");
    EXPECT_FALSE(parseCommandLine(args, &error)) << args[1];
    EXPECT_THAT(error, HasSubstr(reason));
  }
  const auto ok = parseCommandLine(
      {"report", "--data", "d", "--kind", "fluid", "--date", "05.03.2026", "-o", "w.pdf"}, &error);
  ASSERT_TRUE(ok);
  EXPECT_EQ(ok->report.date, "05.03.2026");
}

TEST_F(DocumentCommandTest, TheReportIsWrittenAndNothingOnFailure) {
  const auto diary = dir.path() / "diary.pdf";
  ProgramRun r = runProgram("report", "--data " + data.string() + " -o " + diary.string());
  EXPECT_EQ(r.status, 0) << r.output;
  EXPECT_EQ(pdfHead(diary), "%PDF-");
  // Not on a terminal: no progress line, only the file's name.
  EXPECT_EQ(r.output, diary.string() + "\n");

  // Wrong arguments and a folder without a diary: exit 2, and no file.
  const std::pair<std::string, const char*> refusals[] = {
      {"--data " + data.string() + " --kind fluid --date 31.02.2026",
       "31.02.2026 is no day of the calendar"},
      {"--data " + (dir.path() / "elsewhere").string(), "no diary of ladaneya"},
      {"--data " + data.string() + " --kind diary --year x", "Usage:"}};
  for (const auto& [args, reason] : refusals) {
    r = runProgram("report", args + " -o " + none.string());
    EXPECT_EQ(r.status, 2) << args;
    EXPECT_THAT(r.output, HasSubstr(reason));
  }
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "elsewhere"));
  EXPECT_FALSE(std::filesystem::exists(none));
  // A file that cannot be written: exit 1, the reason, and no piece of it left.
  r = runProgram("report",
                 "--data " + data.string() + " -o " + (dir.path() / "no" / "x.pdf").string());
  EXPECT_EQ(r.status, 1);
  EXPECT_THAT(r.output, HasSubstr("cannot write"));
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "no"));
}

TEST_F(DocumentCommandTest, ABookKindOutsideOneToFiveIsRefusedAndTheBookIsWritten) {
  std::string error;
  for (const char* kind : {"0", "6", "two", "-1"}) {
    EXPECT_FALSE(parseCommandLine({"book", "--kind", kind, "-o", "b.pdf"}, &error));
    EXPECT_EQ(error, std::string("--kind is the book's design, a number from 1 to 5, not ") + kind);
  }
  const auto ok = parseCommandLine({"book", "--data", "d", "--kind", "5", "-o", "b.pdf"}, &error);
  ASSERT_TRUE(ok);
  EXPECT_EQ(ok->book.kind, 5);

  const auto book = dir.path() / "book.pdf";
  ProgramRun r = runProgram("book", "--data " + data.string() + " --kind 4 -o " + book.string());
  EXPECT_EQ(r.status, 0) << r.output;
  EXPECT_EQ(pdfHead(book), "%PDF-");
  r = runProgram("book", "--data " + (dir.path() / "x").string() + " -o " + none.string());
  EXPECT_EQ(r.status, 2);
  EXPECT_THAT(r.output, HasSubstr("no diary of ladaneya"));
  EXPECT_FALSE(std::filesystem::exists(none));
}

TEST(CommandLine, TheFakeClockIsOnlyForTestRuns) {
  const std::vector<std::string> args{"serve", "--fake-clock", "--data", "d"};
  std::string error;
  unsetenv("LADANEYA_TEST_MODE");
  EXPECT_FALSE(parseCommandLine(args, &error));
  EXPECT_EQ(error, "--fake-clock is only for the test suite");

  setenv("LADANEYA_TEST_MODE", "0", 1);
  EXPECT_FALSE(parseCommandLine(args, &error));

  setenv("LADANEYA_TEST_MODE", "1", 1);
  const auto command = parseCommandLine(args, &error);
  ASSERT_TRUE(command);
  EXPECT_TRUE(command->serve.fakeClock);
  unsetenv("LADANEYA_TEST_MODE");
}

constexpr const char* kGid = "5A1E0C3B-0000-4000-8000-000000000001";

// A pregnancy with a weighed day, written into the cloud folder as its screens write it; the
// files then look settled, as a sync tool would leave them after a while.
void writeDiary(const std::filesystem::path& data, const std::filesystem::path& cloud) {
  shell::Application app(ContextOptions{1, 1, data, "", nullptr, LADANEYA_RESOURCES_DIR});
  app.context().settings().set("cloudFolder", cloud.string());
  cloud::chooseCloudSync(app.context());
  Map setup;
  setup.set("sdat1", "2026-02-01");
  setup.set("active", true);
  saveSetupData(app.store(), kSetupWhole, setup, kGid);
  const Date day = app.context().dates().encodeDate(30, 3, 2026);
  {
    StoreBracket bracket = app.store().connectToBase();
    insertValue(app.store(), bracket, "ves", "61.5", day, kGid, true, false);
  }
  cloud::cloudProfileChanged(app.store(), kGid);
  cloud::cloudDayChanged(app.store(), day, kGid);
  for (const auto& file : std::filesystem::directory_iterator(cloud))
    std::filesystem::last_write_time(
        file.path(), std::filesystem::file_time_type::clock::now() - std::chrono::minutes(1));
}

TEST(SyncCommand, AStoppedInstallationTakesInTheFolderOnceAndKeepsTheFolderForLater) {
  testing::TempDir dir;
  const auto cloud = dir.path() / "cloud", data = dir.path() / "laptop";
  std::filesystem::create_directories(cloud);
  writeDiary(dir.path() / "home", cloud);

  ProgramRun r = runProgram("sync", "--data " + data.string());
  EXPECT_EQ(r.status, 2) << r.output;
  EXPECT_THAT(r.output, HasSubstr("give --cloud DIR"));

  r = runProgram("sync", "--data " + data.string() + " --cloud " + cloud.string());
  EXPECT_EQ(r.status, 0) << r.output;
  EXPECT_THAT(r.output, HasSubstr("2 change files applied; the folder is 100% complete"));
  r = runProgram("sync", "--data " + data.string());
  EXPECT_THAT(r.output, HasSubstr("0 change files applied")) << "the folder was kept";

  shell::Application laptop(ContextOptions{1, 1, data, "", nullptr, LADANEYA_RESOURCES_DIR});
  StoreBracket bracket = laptop.store().connectToBase();
  EXPECT_EQ(getDateValue(laptop.store(), bracket, laptop.context().dates().encodeDate(30, 3, 2026),
                         "ves", kGid),
            "61.5");
}

}  // namespace
}  // namespace lad::app

// The report command as a person runs it: the program against a data folder.
#include <gmock/gmock.h>

#include <cstdio>
#include <fstream>

#include "app/cli.h"
#include "shell/application.h"
#include "tests/app/program_run.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/support/test_files.h"

namespace lad::app {
namespace {

using ::testing::HasSubstr;

testing::ProgramRun run(const std::string& args) {
  return testing::runProgram("report", args);
}

std::string head(const std::filesystem::path& file, std::size_t n) {
  std::ifstream in(file, std::ios::binary);
  std::string bytes(n, '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(n));
  return bytes.substr(0, static_cast<std::size_t>(in.gcount()));
}

TEST(ReportCommand, ArgumentsThatDoNotFitAreRefusedWithTheirReason) {
  std::string error;
  const auto refused = [&](std::vector<std::string> args) {
    args.insert(args.begin(), "report");
    return !parseCommandLine(args, &error);
  };
  EXPECT_TRUE(refused({"--kind", "weight", "-o", "a.pdf"}));
  EXPECT_EQ(error, "--kind is one of diary, pressure, fluid, not weight");
  EXPECT_TRUE(refused({"--data", "d"}));
  EXPECT_EQ(error, "report needs -o FILE.pdf");
  EXPECT_TRUE(refused({"-o", "a.txt"}));
  EXPECT_THAT(error, HasSubstr("ending in .pdf"));
  EXPECT_TRUE(refused({"--date", "2026-03-05", "--kind", "pressure", "-o", "a.pdf"}));
  EXPECT_THAT(error, HasSubstr("dd.MM.yyyy"));
  EXPECT_TRUE(refused({"--date", "05.03.2026", "-o", "a.pdf"}));
  EXPECT_THAT(error, HasSubstr("--date is for the pressure and fluid reports"));
  EXPECT_TRUE(refused({"--kind", "fluid", "--year", "2", "-o", "a.pdf"}));
  EXPECT_TRUE(refused({"--year", "0", "-o", "a.pdf"}));
  EXPECT_TRUE(refused({"--year", "-o", "a.pdf"}));
  const auto ok = parseCommandLine(
      {"report", "--data", "d", "--kind", "fluid", "--date", "05.03.2026", "-o", "w.pdf"}, &error);
  ASSERT_TRUE(ok);
  EXPECT_EQ(ok->kind, Command::kReport);
  EXPECT_EQ(ok->report.dataDir, "d");
  EXPECT_EQ(ok->report.date, "05.03.2026");
  EXPECT_EQ(ok->report.output, "w.pdf");
}

TEST(ReportCommand, WritesTheReportsOfAPregnancyAndNothingOnFailure) {
  testing::TempDir dir;
  const auto data = dir.path() / "data";
  {
    shell::Application app(ContextOptions{1, 1, data, "", nullptr, LADANEYA_RESOURCES_DIR});
    const DateCodec& dates = app.context().dates();
    const Date first = dates.addDays(app.context().clock().now(), -40);
    testing::addPregnancy(app.store(), "CLI-PROFILE", first, "60");
    testing::generateDiary(app.store(), "CLI-PROFILE", first, 30, 0);
  }
  const auto diary = dir.path() / "diary.pdf";
  testing::ProgramRun r = run("--data " + data.string() + " -o " + diary.string());
  EXPECT_EQ(r.status, 0) << r.output;
  EXPECT_EQ(head(diary, 5), "%PDF-");
  // Not on a terminal: no progress line, only the file's name.
  EXPECT_EQ(r.output, diary.string() + "\n");

  const auto pressure = dir.path() / "pressure.pdf";
  r = run("--data " + data.string() + " --kind pressure --date 01.03.2026 -o " + pressure.string());
  EXPECT_EQ(r.status, 0) << r.output;
  EXPECT_EQ(head(pressure, 5), "%PDF-");

  // Wrong arguments and a folder without a diary: exit 2, and no file.
  const auto none = dir.path() / "none.pdf";
  r = run("--data " + data.string() + " --kind fluid --date 31.02.2026 -o " + none.string());
  EXPECT_EQ(r.status, 2);
  EXPECT_THAT(r.output, HasSubstr("31.02.2026 is no day of the calendar"));
  r = run("--data " + (dir.path() / "elsewhere").string() + " -o " + none.string());
  EXPECT_EQ(r.status, 2);
  EXPECT_THAT(r.output, HasSubstr("no diary of ladaneya"));
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "elsewhere"));
  r = run("--data " + data.string() + " --kind diary --year x -o " + none.string());
  EXPECT_EQ(r.status, 2);
  EXPECT_THAT(r.output, HasSubstr("Usage:"));
  EXPECT_FALSE(std::filesystem::exists(none));
  // A file that cannot be written: exit 1, the reason, and no piece of it left.
  r = run("--data " + data.string() + " -o " + (dir.path() / "no" / "x.pdf").string());
  EXPECT_EQ(r.status, 1);
  EXPECT_THAT(r.output, HasSubstr("cannot write"));
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "no"));
}

}  // namespace
}  // namespace lad::app

// The book command as a person runs it: the program against a data folder.
#include <gmock/gmock.h>

#include "app/cli.h"
#include "core/atomic_file.h"
#include "shell/application.h"
#include "tests/app/program_run.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/support/test_files.h"

namespace lad::app {
namespace {

using ::testing::HasSubstr;

TEST(BookCommand, AKindOutsideOneToFiveIsRefusedAndTheBookIsWritten) {
  std::string error;
  for (const char* kind : {"0", "6", "two", "-1"}) {
    EXPECT_FALSE(parseCommandLine({"book", "--kind", kind, "-o", "b.pdf"}, &error));
    EXPECT_EQ(error, std::string("--kind is the book's design, a number from 1 to 5, not ") + kind);
  }
  EXPECT_FALSE(parseCommandLine({"book", "--kind", "2"}, &error));
  EXPECT_EQ(error, "book needs -o FILE.pdf");
  const auto ok = parseCommandLine({"book", "--data", "d", "--kind", "5", "-o", "b.pdf"}, &error);
  ASSERT_TRUE(ok);
  EXPECT_EQ(ok->kind, Command::kBook);
  EXPECT_EQ(ok->book.kind, 5);
  EXPECT_EQ(ok->book.output, "b.pdf");

  testing::TempDir dir;
  const auto data = dir.path() / "data";
  {
    shell::Application app(ContextOptions{1, 1, data, "", nullptr, LADANEYA_RESOURCES_DIR});
    const Date first = app.context().dates().addDays(app.context().clock().now(), -40);
    testing::addPregnancy(app.store(), "CLI-PROFILE", first, "60");
    testing::generateDiary(app.store(), "CLI-PROFILE", first, 12, 3);
  }
  const auto book = dir.path() / "book.pdf";
  testing::ProgramRun r =
      testing::runProgram("book", "--data " + data.string() + " --kind 4 -o " + book.string());
  EXPECT_EQ(r.status, 0) << r.output;
  EXPECT_EQ(readWholeFile(book).value_or("").substr(0, 5), "%PDF-");
  EXPECT_EQ(r.output, book.string() + "\n");

  const auto none = dir.path() / "none.pdf";
  r = testing::runProgram("book", "--data " + data.string() + " --kind 9 -o " + none.string());
  EXPECT_EQ(r.status, 2);
  EXPECT_THAT(r.output, HasSubstr("a number from 1 to 5, not 9"));
  r = testing::runProgram("book", "--data " + (dir.path() / "x").string() + " -o " + none.string());
  EXPECT_EQ(r.status, 2);
  EXPECT_THAT(r.output, HasSubstr("no diary of ladaneya"));
  EXPECT_FALSE(std::filesystem::exists(none));
}

}  // namespace
}  // namespace lad::app

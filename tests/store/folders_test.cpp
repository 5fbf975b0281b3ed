#include "store/folders.h"

#include <gtest/gtest.h>

#include "tests/store/store_fixture.h"

namespace lad {
namespace {

TEST(TypeFilePath, SortsEachKindOfFileIntoItsFolderByTheFirstRuleThatHolds) {
  const std::filesystem::path base = "/docs";
  const std::pair<const char*, const char*> cases[] = {
      {"a-1.pdf", "/docs/analizy"},       {"a-x", "/docs"},  // too short for an attachment
      {"a-xy", "/docs/analizy"},          {"d-12", "/docs/documents"},
      {"doc-ab", "/docs/documents"},      {"doc-a", "/docs"},
      {"x-s.jpg", "/docs/picture-s"},     {"-s.jpg", "/docs/picture"},
      {"a.jpg", "/docs/picture"},         {".jpg", "/docs"},
      {"a-photo-s.jpg", "/docs/analizy"},  // the prefix wins over the ending
      {"b.sqlite", "/docs/reserv"},       {"notes.txt", "/docs"},
  };
  for (const auto& [name, folder] : cases) EXPECT_EQ(typeFilePath(base, name), folder) << name;
}

class FoldersTest : public testing::StoreTest {};

TEST_F(FoldersTest, NamedFoldersLieInTheInstallationAndTheCloudFallsBackToTemp) {
  open();
  EXPECT_EQ(getSystemFolder(*context, "Reserv"), dir.path() / "Documents" / "reserv");
  EXPECT_EQ(getSystemFolder(*context, "Root"), std::filesystem::path(LADANEYA_RESOURCES_DIR));
  EXPECT_EQ(getSystemFolder(*context, "Cloud"), getSystemFolder(*context, "Temp"));
  EXPECT_TRUE(isDirectory(*getSystemFolder(*context, "Temp")));
  EXPECT_FALSE(getSystemFolder(*context, "Pictures"));

  context->settings().set("cloudFolder", (dir.path() / "shared" / "diary").string());
  EXPECT_EQ(getSystemFolder(*context, "Cloud"), dir.path() / "shared" / "diary");
  EXPECT_TRUE(isDirectory(dir.path() / "shared" / "diary"));
}

}  // namespace
}  // namespace lad

#include "store/file_names.h"

#include <gtest/gtest.h>

#include "core/ids.h"

namespace lad {
namespace {

TEST(FileNamesTest, OldNumberedNamesTakeTheChildGuid) {
  const std::string g12 = newID2(1, 12);
  EXPECT_EQ(oldFileNameToNew("a-12-1.jpg"), "a-" + g12 + "-1.jpg");
  EXPECT_EQ(oldFileNameToNew("d-12-3.PDF"), "d-" + g12 + "-3.PDF");
  EXPECT_EQ(oldFileNameToNew("12-photo.Jpg"), g12 + "-photo.Jpg");
  EXPECT_EQ(oldFileNameToNew("12.jpg"), g12 + "-.jpg");
}

TEST(FileNamesTest, CurrentForeignAndUnnumberedNamesStay) {
  const std::string current = "a-" + newID2(1, 12) + "-1.jpg";
  EXPECT_EQ(oldFileNameToNew(current), current);
  EXPECT_EQ(oldFileNameToNew("12-photo.png"), "12-photo.png");
  EXPECT_EQ(oldFileNameToNew("a-x.jpg"), "a-x.jpg");
  EXPECT_EQ(oldFileNameToNew("photo.jpg"), "photo.jpg");
  EXPECT_EQ(oldFileNameToNew("12"), "12");
  EXPECT_EQ(oldFileNameToNew(""), "");
  EXPECT_EQ(oldFileNameToNew("1234567890123456789-x.jpg"), "1234567890123456789-x.jpg");
}

}  // namespace
}  // namespace lad

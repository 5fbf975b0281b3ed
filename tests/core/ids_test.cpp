#include "core/ids.h"

#include <gtest/gtest.h>

namespace lad {
namespace {

TEST(Ids, FixedIdentifiersOfAGroupAndANumberAndTheShapeCheck) {
  EXPECT_EQ(newID2(2, 31), "00000000-0000-0000-0002-000000000031");
  EXPECT_EQ(newID2(2, 999999999999), "00000000-0000-0000-0002-999999999999");
  EXPECT_EQ(newID2(2, 1234567890123), "00000000-0000-0000-0002-234567890123");
  EXPECT_TRUE(isID(newID()));
  EXPECT_TRUE(isID("0a1b2c3d-4e5f-6789-abcd-ef0123456789"));
  for (const char* bad :
       {"", "../../Library/Preferences", "0A1B2C3D-4E5F-6789-ABCD-EF012345678",
        "0A1B2C3D-4E5F-6789-ABCD-EF01234567890", "0A1B2C3D_4E5F-6789-ABCD-EF0123456789",
        "0A1B2C3D-4E5F-6789-ABCD-EF012345678G", "0A1B2C3D-4E5F-6789-ABCD-EF012345/../",
        "0A1B2C3D-4E5F-6789-ABCD-EF01234567.."})
    EXPECT_FALSE(isID(bad)) << bad;
}

}  // namespace
}  // namespace lad

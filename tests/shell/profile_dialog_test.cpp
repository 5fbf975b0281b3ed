#include "shell/profile_dialog.h"

#include <gtest/gtest.h>

#include "store/profiles.h"
#include "store/setup_data.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using lad::testing::ApplicationTest;

std::string sourceOf(const ProfileDialog& d, std::string_view field) {
  return (*d.row(field))["source"].text();
}

TEST_F(ApplicationTest, ANewPregnancyIsMadeThroughTheDialog) {
  launchApp();
  ProfileDialog d(*app, std::nullopt);
  EXPECT_EQ(d.caption(), "Новая беременность");
  EXPECT_EQ(d.code(), ProfileDialog::kNewProfile);
  EXPECT_EQ(d.rows().size(), 16u) << "no removal button for a profile not yet made";
  EXPECT_EQ(sourceOf(d, "sdat1"), "23.11.2026");
  EXPECT_EQ(sourceOf(d, "sdat2"), "07.12.2026");
  EXPECT_EQ(sourceOf(d, "sbirthdate"), "30.08.2027");

  EXPECT_FALSE(d.change("sbirthdate", "01.07.2027"));
  EXPECT_EQ(sourceOf(d, "sdat1"), "24.09.2026");
  EXPECT_EQ(sourceOf(d, "sdat2"), "08.10.2026");

  auto refused = d.change("sdat2", "24.09.2026");
  ASSERT_TRUE(refused) << "a conception on the first day itself is refused";
  EXPECT_EQ(refused->caption, "Корректировка даты зачатия");
  EXPECT_EQ(sourceOf(d, "sdat2"), "08.10.2026");

  d.change("rost", "165");
  d.change("ves", "70");
  EXPECT_EQ((*d.row("bodytype"))["caption"].text(),
            "Индекс тела равен 25.7.\nУ вас среднее телосложение.");
  d.change("ves", "abc");
  EXPECT_EQ((*d.row("bodytype"))["caption"].text(), "Индекс тела не определен");
  d.change("ves", "58");
  d.change("sex", 2);
  d.change("name", "Вера");

  const std::string gid = d.finish();
  EXPECT_EQ(gid.size(), 36u);
  const Map saved = loadSetupData(app->store(), gid);
  EXPECT_EQ(saved["sdat1"].text(), "2026-09-24");
  EXPECT_EQ(saved["sbirthdate"].text(), "2027-07-01");
  EXPECT_EQ(saved["name"].text(), "Вера");
  EXPECT_EQ(saved["sex"].intValue(), 2);
  EXPECT_EQ(loadProfils(app->store()).size(), 2u);
}

}  // namespace
}  // namespace lad::shell
